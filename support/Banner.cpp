#include "support/Banner.h"

#include "common/Numbers.h"
#include "common/RuntimeError.h"

#include <sstream>

namespace {

int NumberOrFirst(const std::string& text) {
    try {
        return TextToInt32(text);
    } catch (const RuntimeError&) {
        return 1;
    }
}

} // namespace

std::vector<std::string> ParseBannerAddresses(const std::string& text) {
    std::vector<std::string> addresses;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
            line.pop_back();
        if (!line.empty())
            addresses.push_back(line);
    }
    return addresses;
}

void Banner::Start(const std::string& storedIndex) {
    stored_ = NumberOrFirst(storedIndex);
    const bool isPicture = stored_ >= 1 && stored_ <= Count();
    Show(addresses_.empty() ? 0 : (isPicture ? stored_ : 1));
}

void Banner::Tick() {
    if (addresses_.empty())
        return;
    if (counter_ == 0)
        counter_ = index_;
    ++counter_;
    if (counter_ > Count())
        counter_ = 1;
    Show(counter_);
}

void Banner::Click() const {
    if (index_ > 0)
        links_.OpenURL(addresses_[static_cast<std::size_t>(index_ - 1)]);
}

void Banner::Show(int index) {
    index_ = index;
    show_(index);
}
