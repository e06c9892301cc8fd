#include "mainwindow/BusyStatus.h"

#include "common/InfoTextNumber.h"

void BusyStatus::BusyBegins() {
    bars_.SetInfoPanelText(texts_.GetInfoText(InfoTextNumber::SolidWorksIsBusy));
}

void BusyStatus::BusyEnds() {
    bars_.SetInfoPanelText({});
}

bool BusyStatus::DropInput() {
    return events_.ProcessEventsWithoutInput() || endRequested_;
}
