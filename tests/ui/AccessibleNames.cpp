#include "tests/ui/AccessibleNames.h"

#include "platform/Utf16.h"

#include <array>
#include <oleacc.h>

namespace {

// Owns the object for as long as it is asked.
class Accessible {
public:
    explicit Accessible(HWND window) {
        void* object = nullptr;
        if (SUCCEEDED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                                 __uuidof(IAccessible), &object)))
            object_ = static_cast<IAccessible*>(object);
        self_.vt = VT_I4;
        self_.lVal = CHILDID_SELF;
    }
    Accessible(const Accessible&) = delete;
    Accessible& operator=(const Accessible&) = delete;
    ~Accessible() {
        if (object_ != nullptr)
            object_->Release();
    }

    [[nodiscard]] std::string Name() const {
        BSTR text = nullptr;
        if (object_ == nullptr || object_->get_accName(self_, &text) != S_OK || text == nullptr)
            return {};
        const std::string name = ToUtf8(text);
        SysFreeString(text);
        return name;
    }
    [[nodiscard]] DWORD Role() const {
        VARIANT role{};
        const bool isNumber = object_ != nullptr && object_->get_accRole(self_, &role) == S_OK;
        return isNumber && role.vt == VT_I4 ? static_cast<DWORD>(role.lVal) : 0;
    }
    [[nodiscard]] DWORD State() const {
        VARIANT state{};
        const bool isNumber = object_ != nullptr && object_->get_accState(self_, &state) == S_OK;
        return isNumber && state.vt == VT_I4 ? static_cast<DWORD>(state.lVal) : 0;
    }

private:
    IAccessible* object_ = nullptr;
    VARIANT self_{};
};

std::string WindowText(HWND window) {
    std::array<wchar_t, 512> text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return ToUtf8(text.data());
}

std::string ClassName(HWND window) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return ToUtf8(name.data());
}

std::string RoleText(DWORD role) {
    std::array<wchar_t, 64> text{};
    GetRoleTextW(role, text.data(), static_cast<UINT>(text.size()));
    return ToUtf8(text.data());
}

std::string StateText(DWORD state) {
    std::string whole;
    for (DWORD bit = 1; bit != 0; bit <<= 1) {
        std::array<wchar_t, 64> text{};
        if ((state & bit) != 0 &&
            GetStateTextW(bit, text.data(), static_cast<UINT>(text.size())) > 0)
            whole += (whole.empty() ? "" : ", ") + ToUtf8(text.data());
    }
    return whole;
}

// The platform names what has no text of its own by the label before it.
std::string NameOf(const Accessible& object, HWND window) {
    const std::string own = object.Name();
    const HWND before = own.empty() ? GetWindow(window, GW_HWNDPREV) : nullptr;
    return before != nullptr && ClassName(before) == "Static" ? WindowText(before) : own;
}

BOOL CALLBACK AddControl(HWND window, LPARAM list) {
    const Accessible object(window);
    reinterpret_cast<std::vector<AccessibleControl>*>(list)->push_back(
        {GetDlgCtrlID(window), ClassName(window), NameOf(object, window), RoleText(object.Role()),
         StateText(object.State())});
    return TRUE;
}

} // namespace

std::vector<AccessibleControl> AccessibleControlsOf(HWND form) {
    std::vector<AccessibleControl> controls;
    EnumChildWindows(form, AddControl, reinterpret_cast<LPARAM>(&controls));
    return controls;
}
