#include "common/ShownProgress.h"

#include "common/ports/ProgressView.h"

ShownProgress::ShownProgress(ProgressView& view, const std::string& label, std::int32_t maximum)
    : view_(view) {
    view_.ShowProgress(label, 0, maximum);
}

ShownProgress::~ShownProgress() {
    view_.HideProgress();
}

void ShownProgress::Set(std::int32_t value) {
    view_.SetProgress(value);
}

void ShownProgress::Refresh() {
    view_.RefreshProgress();
}
