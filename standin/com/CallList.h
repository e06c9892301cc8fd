#pragma once

#include "platform/controls/Control.h"
#include "standin/model/CallLog.h"

// The last calls received, the newest at the end.
class CallList : public Control {
public:
    CallList(ControlHost& host, const ControlPlace& place, const CallLog& log);

    // Shows what the log holds now.
    void Refresh();

    MessageResult OnNotify(NMHDR& header) override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;

private:
    void SizeColumn();

    const CallLog& log_;
    std::size_t shownTotal_ = 0;
};
