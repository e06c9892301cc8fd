#include "standin/model/CallLog.h"

#include "standin/model/CallText.h"
#include "standin/model/StandInObject.h"

#include <algorithm>
#include <iterator>

std::string ToText(const CallRecord& record) {
    if (record.kind == CallKind::Put)
        return "put " + record.object + " " + record.member + " = " + record.arguments;
    return "call " + record.object + " " + record.member + "(" + record.arguments + ")";
}

void CallLog::Add(CallRecord record) {
    ++total_;
    if (listener_)
        listener_(record);
    // Taken off in blocks: a vector loses its front slowly.
    if (limit_ != 0 && records_.size() >= 2 * limit_)
        records_.erase(records_.begin(), records_.end() - static_cast<std::ptrdiff_t>(limit_));
    records_.push_back(std::move(record));
}

std::vector<std::string> CallLog::Lines() const {
    std::vector<std::string> lines;
    std::transform(records_.begin(), records_.end(), std::back_inserter(lines), ToText);
    return lines;
}

CallRecord MakeCallRecord(CallKind kind, const AutomationObject& object, const std::string& member,
                          const AutomationArray& arguments) {
    CallRecord record{kind, "object", member, {}};
    if (const auto* own = dynamic_cast<const StandInObject*>(&object))
        record.object = own->Label();
    for (const AutomationValue& argument : arguments)
        record.arguments.append(record.arguments.empty() ? "" : ", ").append(CallText(argument));
    return record;
}
