#pragma once

// A window that is made when it is first wanted: windows that are not shown would take a good part
// of the program's start.
template <typename View>
class OnDemand {
public:
    OnDemand() = default;
    OnDemand(const OnDemand&) = delete;
    OnDemand& operator=(const OnDemand&) = delete;
    virtual ~OnDemand() = default;

    // The window, which is made by the first call.
    [[nodiscard]] virtual View& Get() = 0;

    // Null while nobody has wanted it.
    [[nodiscard]] virtual View* IfMade() noexcept = 0;
};
