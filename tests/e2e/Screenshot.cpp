#include "tests/e2e/Screenshot.h"

#include "platform/Handles.h"
#include "platform/Utf16.h"

// GDI+ wants these two of the standard library by their short names.
#include <algorithm>
namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus

#include <objidl.h>
#include <gdiplus.h>

namespace {

// The encoder for "image/png".
constexpr CLSID kPngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

// The screen's device belongs to the system.
class ScreenDevice {
public:
    ScreenDevice() : device_(GetDC(nullptr)) {}
    ScreenDevice(const ScreenDevice&) = delete;
    ScreenDevice& operator=(const ScreenDevice&) = delete;
    ~ScreenDevice() { ReleaseDC(nullptr, device_); }
    [[nodiscard]] HDC Get() const noexcept { return device_; }

private:
    HDC device_;
};

BitmapHandle CopyScreen() {
    const ScreenDevice screen;
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    BitmapHandle picture(CreateCompatibleBitmap(screen.Get(), width, height));
    const MemoryDevice memory(CreateCompatibleDC(screen.Get()));
    HGDIOBJ before = SelectObject(memory.Get(), picture.Get());
    BitBlt(memory.Get(), 0, 0, width, height, screen.Get(), 0, 0, SRCCOPY | CAPTUREBLT);
    SelectObject(memory.Get(), before);
    return picture;
}

} // namespace

Screenshot::Screenshot() {
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    token_ = token;
}

Screenshot::~Screenshot() {
    Gdiplus::GdiplusShutdown(static_cast<ULONG_PTR>(token_));
}

bool Screenshot::Save(const std::string& path) const {
    const BitmapHandle picture = CopyScreen();
    Gdiplus::Bitmap bitmap(picture.Get(), nullptr);
    return bitmap.Save(ToUtf16(path).c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}
