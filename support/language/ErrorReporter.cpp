#include "support/language/ErrorReporter.h"

#include "common/InfoTextNumber.h"
#include "common/Text.h"

#include <exception>

void ErrorReporter::ReportError(const RuntimeError& error) noexcept {
    try {
        const std::string member = error.Member().empty() ? "" : " (" + error.Member() + ")";
        const std::string what = error.Description(texts_) + member;
        prompts_.ShowMessage(texts_.GetInfoText(InfoTextNumber::ErrorOccurred) + kLineBreak + what,
                             MessageStyle::Exclamation,
                             texts_.GetInfoText(InfoTextNumber::Attention));
    } catch (const std::exception&) {
        // Nothing is left to tell the user with; the program goes on.
        return;
    }
}
