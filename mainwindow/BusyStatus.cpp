#include "mainwindow/BusyStatus.h"

#include "common/InfoTextNumber.h"

void BusyStatus::BusyBegins() {
    bars_.SetInfoPanelText(
        texts_.GetInfoTextOr(InfoTextNumber::SolidWorksIsBusy, "SolidWorks is busy."));
}

void BusyStatus::BusyEnds() {
    bars_.SetInfoPanelText({});
}

bool BusyStatus::DropInput() {
    return events_.ProcessEventsWithoutInput() || endRequested_;
}
