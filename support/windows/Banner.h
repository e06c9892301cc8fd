#pragma once

#include "support/windows/BannerEvents.h"
#include "support/windows/modinternet.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

// The address of each banner picture.  lines: of the addresses' file; the picture with the number n
// has line n, and none when that line is empty or not there.  numbers: of the pictures in their
// order, from 1; 0: a picture without a number, which has no address.
[[nodiscard]] std::vector<std::string> AddressesOfBanners(const std::string& lines,
                                                          const std::vector<int>& numbers);

// Which pictures a click opens something for: those with an address, in their order.
[[nodiscard]] std::vector<bool> AreLinks(const std::vector<std::string>& addresses);

// One picture at a time out of a list, each with the web address that a click on it opens, if it
// has one.
class Banner : public BannerEvents {
public:
    // addresses: one for each picture, or empty.  show: puts the picture with an index (from 1; 0:
    // none) into the banner picture boxes.
    Banner(const modinternet& links, std::vector<std::string> addresses,
           std::function<void(int)> show)
        : links_(links), addresses_(std::move(addresses)), show_(std::move(show)) {}

    // The index that start-up read as text; anything but the number of a picture gives 1.
    void Start(const std::string& storedIndex);

    // The next picture, after the last one the first.
    void BannerTicked() override;
    void BannerClicked() override;

    // From 1; 0: there are no pictures.
    [[nodiscard]] int Index() const noexcept { return index_; }

    // What Quit stores; without pictures the number that was stored before.
    [[nodiscard]] int IndexToStore() const noexcept { return index_ > 0 ? index_ : stored_; }

private:
    [[nodiscard]] int Count() const noexcept { return static_cast<int>(addresses_.size()); }
    void Show(int index);

    const modinternet& links_;
    std::vector<std::string> addresses_;
    std::function<void(int)> show_;
    int index_ = 0;
    int stored_ = 1;
    int counter_ = 0; // of the timer; starts from the index
};
