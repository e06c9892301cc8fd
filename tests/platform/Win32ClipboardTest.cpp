// Rules: Editing commands
#include "platform/Win32Clipboard.h"

#include "tests/platform/MessageWindow.h"
#include "tests/platform/PollUntil.h"

#include <cstring>
#include <future>
#include <gtest/gtest.h>
#include <thread>

namespace {

// Puts memory of any content on the clipboard, as other programs may.
void PutOnClipboard(HWND owner, UINT format, const void* bytes, std::size_t size) {
    ASSERT_TRUE(OpenClipboard(owner));
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(memory), bytes, size);
    GlobalUnlock(memory);
    SetClipboardData(format, memory);
    CloseClipboard();
}

// Another thread that holds the clipboard open until it is let go, as other programs do.
class ClipboardHolder {
public:
    ClipboardHolder()
        : thread_([this] {
              EXPECT_TRUE(PollUntil([] { return OpenClipboard(nullptr) != FALSE; }));
              isOpen_.set_value();
              isOver_.get_future().wait();
              CloseClipboard();
          }) {
        isOpen_.get_future().wait();
    }
    ClipboardHolder(const ClipboardHolder&) = delete;
    ClipboardHolder& operator=(const ClipboardHolder&) = delete;
    ~ClipboardHolder() { LetGo(); }

    // The clipboard is free when it returns.
    void LetGo() {
        if (!thread_.joinable())
            return;
        isOver_.set_value();
        thread_.join();
    }

private:
    std::promise<void> isOpen_; // a semaphore of this library can miss its wake-up on this target
    std::promise<void> isOver_;
    std::thread thread_;
};

class Win32ClipboardTest : public testing::Test {
protected:
    MessageWindow window;
    int pauses = 0;
    std::function<void()> onPause;
    Win32Clipboard clipboard{[this] { return window.Handle(); },
                             [this] {
                                 ++pauses;
                                 if (onPause)
                                     onPause();
                             }};
};

} // namespace

TEST_F(Win32ClipboardTest, TextIsReadBackAsItWasSet) {
    const std::string text = "E#Gr\xC3\xBCn \xF0\x9F\x8E\xA8=0DG1:x,1,2";
    ASSERT_TRUE(clipboard.SetText(text));
    EXPECT_EQ(clipboard.Text(), text);
}

TEST_F(Win32ClipboardTest, EmptyTextIsAText) {
    ASSERT_TRUE(clipboard.SetText(""));
    EXPECT_EQ(clipboard.Text(), "");
}

TEST_F(Win32ClipboardTest, SettingReplacesWhatWasThereInEveryFormat) {
    PutOnClipboard(window.Handle(), CF_TEXT, "old", 4);
    ASSERT_TRUE(clipboard.SetText("new"));
    EXPECT_EQ(clipboard.Text(), "new");
}

TEST_F(Win32ClipboardTest, TextOfAnAnsiProgramIsRead) {
    PutOnClipboard(window.Handle(), CF_TEXT, "E#x", 4);
    EXPECT_EQ(clipboard.Text(), "E#x");
}

TEST_F(Win32ClipboardTest, TextEndsAtItsFirstNul) {
    PutOnClipboard(window.Handle(), CF_UNICODETEXT, L"ab\0cd", 12);
    EXPECT_EQ(clipboard.Text(), "ab");
}

TEST_F(Win32ClipboardTest, TextWithoutANulEndsWithItsMemory) {
    const std::wstring text(4096, L'x');
    PutOnClipboard(window.Handle(), CF_UNICODETEXT, text.data(), text.size() * sizeof(wchar_t));
    const std::string read = clipboard.Text().value();
    // The platform may put a NUL over the last character, or round the memory's size up.
    EXPECT_TRUE(read.starts_with(std::string(4095, 'x')));
    EXPECT_LT(read.size(), 4200U);
}

TEST_F(Win32ClipboardTest, OtherFormatsAreNoText) {
    PutOnClipboard(window.Handle(), RegisterClipboardFormatW(L"tnt test"), "x", 2);
    EXPECT_EQ(clipboard.Text(), "");
}

TEST_F(Win32ClipboardTest, AbsurdlyLongTextIsNoText) {
    const std::string text((1U << 24U) + 2, 'x');
    PutOnClipboard(window.Handle(), CF_UNICODETEXT, text.data(), text.size());
    EXPECT_EQ(clipboard.Text(), "");
}

TEST_F(Win32ClipboardTest, WaitsForAProgramThatHoldsTheClipboardForAMoment) {
    ASSERT_TRUE(clipboard.SetText("x"));
    ClipboardHolder holder;
    onPause = [&] {
        if (pauses == 4)
            holder.LetGo();
    };
    EXPECT_EQ(clipboard.Text(), "x");
    EXPECT_EQ(pauses, 4);
}

TEST_F(Win32ClipboardTest, GivesUpOnAProgramThatKeepsTheClipboard) {
    ASSERT_TRUE(clipboard.SetText("x"));
    {
        const ClipboardHolder holder;
        EXPECT_FALSE(clipboard.Text());
        EXPECT_EQ(pauses, 9) << "between ten tries";
        EXPECT_FALSE(clipboard.SetText("y"));
        EXPECT_EQ(pauses, 18);
    }
    EXPECT_EQ(clipboard.Text(), "x");
}

// It may be about to put a text there.
TEST_F(Win32ClipboardTest, ProgramThatKeepsAClipboardWithoutATextIsToldToo) {
    PutOnClipboard(window.Handle(), RegisterClipboardFormatW(L"tnt test"), "x", 2);
    const ClipboardHolder holder;
    EXPECT_FALSE(clipboard.Text());
}
