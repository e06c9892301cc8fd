#include "support/windows/Banner.h"

#include "common/Numbers.h"
#include "common/RuntimeError.h"
#include "common/Text.h"

#include <algorithm>

namespace {

int NumberOrFirst(const std::string& text) {
    try {
        return TextToInt32(text);
    } catch (const RuntimeError&) {
        return 1;
    }
}

std::string WithoutBlanksAround(const std::string& line) {
    constexpr const char* kBlanks = " \t\r";
    const std::size_t start = line.find_first_not_of(kBlanks);
    return start == std::string::npos
               ? std::string()
               : line.substr(start, line.find_last_not_of(kBlanks) - start + 1);
}

} // namespace

std::vector<std::string> AddressesOfBanners(const std::string& lines,
                                            const std::vector<int>& numbers) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF"; // of editors that write UTF-8
    const std::size_t start = lines.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    const std::vector<std::string> addresses = SplitFields(lines.substr(start), "\n");
    std::vector<std::string> ofPictures;
    for (const int number : numbers) {
        const auto line = static_cast<std::size_t>(number) - 1; // far beyond the end for 0
        ofPictures.push_back(line < addresses.size() ? WithoutBlanksAround(addresses[line]) : "");
    }
    return ofPictures;
}

std::vector<bool> AreLinks(const std::vector<std::string>& addresses) {
    std::vector<bool> links(addresses.size());
    std::transform(addresses.begin(), addresses.end(), links.begin(),
                   [](const std::string& address) { return !address.empty(); });
    return links;
}

void Banner::Start(const std::string& storedIndex) {
    stored_ = NumberOrFirst(storedIndex);
    const bool isPicture = stored_ >= 1 && stored_ <= Count();
    Show(addresses_.empty() ? 0 : (isPicture ? stored_ : 1));
}

void Banner::BannerTicked() {
    if (addresses_.empty())
        return;
    if (counter_ == 0)
        counter_ = index_;
    ++counter_;
    if (counter_ > Count())
        counter_ = 1;
    Show(counter_);
}

void Banner::BannerClicked() {
    if (index_ == 0)
        return;
    const std::string& address = addresses_[static_cast<std::size_t>(index_) - 1];
    if (!address.empty())
        links_.OpenURL(address);
}

void Banner::Show(int index) {
    index_ = index;
    show_(index);
}
