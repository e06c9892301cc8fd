#include "support/windows/modinternet.h"

#include "common/Text.h"

namespace {

constexpr int kShowNormal = 1;
constexpr int kShow = 5;

std::string MailLink(const std::string& address, const std::string& subject,
                     const std::string& body) {
    const std::string scheme = "mailto:";
    std::string link =
        ToLowerAscii(address.substr(0, scheme.size())) == scheme ? address : scheme + address;
    if (!subject.empty())
        link += "?subject=" + subject;
    if (!body.empty())
        link += (subject.empty() ? "?body=" : "&body=") + body;
    return link;
}

} // namespace

void modinternet::OpenURL(const std::string& address) const {
    // The directory is the text of the number 0, on purpose.
    shell_.Execute({ShellOwner::ActiveWindow, "Open", address, "", "0", kShowNormal});
}

bool modinternet::SendMail(const std::string& address, const std::string& subject,
                           const std::string& body) const {
    return shell_.Execute(
               {ShellOwner::None, "open", MailLink(address, subject, body), {}, {}, kShow}) == 0;
}
