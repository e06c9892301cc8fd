#include "support/ErrorReporter.h"

#include "common/InfoTextNumber.h"
#include "common/Text.h"

#include <exception>

void ErrorReporter::ReportError(const std::string& description,
                                const std::string& member) noexcept {
    try {
        const std::string what = member.empty() ? description : description + " (" + member + ")";
        prompts_.ShowMessage(texts_.GetInfoText(InfoTextNumber::ErrorOccurred) + kLineBreak + what,
                             MessageStyle::Exclamation,
                             texts_.GetInfoText(InfoTextNumber::Attention));
    } catch (const std::exception&) {
        // Nothing is left to tell the user with; the program goes on.
        return;
    }
}
