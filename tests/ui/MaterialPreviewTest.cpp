// Rules: Active-color editor
#include "mainwindow/panes/FieldBorder.h"
#include "shading/MaterialField.h"
#include "tests/fakes/Dose.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/ScratchRegistry.h"
#include "tests/ui/GuiObjects.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/RealProgram.h"
#include "tests/ui/WindowPicture.h"

#include <commctrl.h>

namespace {

constexpr ColorValueArray kRed{200, 30, 20, 60, 80, 50, 40, 0, 0};
constexpr ColorNumber kRedNumber = 0x141EC8;
constexpr ColorValueArray kGreenGlass{20, 180, 90, 60, 80, 50, 40, 60, 10};

WindowPicture PaintedPicture(HWND window) {
    PumpMessages();
    UpdateWindow(window); // what has not asked for it is not painted
    return PictureOf(window);
}

// What the field shows of a color, within its border.
WindowPicture Expected(const ColorValueArray& values, const WindowPicture& shown, int dpi) {
    MaterialField field;
    const int height = static_cast<int>(shown.pixels.size()) / shown.width;
    const std::uint32_t border = PixelOf(FieldBorderColor());
    const MaterialPicture picture{.values = values,
                                  .width = shown.width - 2,
                                  .height = height - 2,
                                  .dpi = dpi,
                                  .line = border};
    const std::uint32_t* pixels = field.PixelsOf(picture);
    WindowPicture expected{shown.width, std::vector<DWORD>(shown.pixels.size(), border)};
    for (int y = 0; y < picture.height; ++y)
        std::copy_n(pixels + static_cast<std::ptrdiff_t>(y) * picture.width, picture.width,
                    expected.pixels.begin() + static_cast<std::ptrdiff_t>(y + 1) * shown.width + 1);
    return expected;
}

void ExpectMaterial(const ColorValueArray& values, WindowPicture shown, int dpi) {
    for (DWORD& pixel : shown.pixels)
        pixel &= 0xFFFFFF;
    const WindowPicture expected = Expected(values, shown, dpi);
    EXPECT_TRUE(shown == expected) << Difference(shown, expected) << " at " << dpi;
}

// The main window with the large editor.
class MaterialPreviewField : public MainFormTest {
protected:
    MaterialPreviewField() {
        form.Move({0, 0, 18000, 14500}); // the field is in sight at every resolution
        form.ShowWindow();
        events.layout.SetHugeFrame(true);
        events.layout.Resized();
        Show(kRed);
    }

    void Show(const ColorValueArray& values) {
        view.editor.SetLargeSwatch(MakeColorNumber(values[0], values[1], values[2]));
        view.editor.SetMaterial(values);
    }
    [[nodiscard]] HWND Field() const { return Child(IDC_lblActiveColor); }
    [[nodiscard]] WindowPicture Shown() const { return PaintedPicture(Field()); }
    void ChangeResolution(int dpi) {
        RECT bounds{};
        GetWindowRect(form.Handle(), &bounds);
        SendMessageW(form.Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&bounds));
    }
};

TEST_F(MaterialPreviewField, OffTheFieldIsThePlainColorAndSoItIsWhenItIsOffAgain) {
    const WindowPicture before = Shown();
    const auto plain = std::count_if(before.pixels.begin(), before.pixels.end(), [](DWORD pixel) {
        return (pixel & 0xFFFFFF) == PixelOf(kRedNumber);
    });
    RECT area{};
    GetClientRect(Field(), &area);
    EXPECT_EQ(plain, (area.right - 2) * (area.bottom - 2));
    view.editor.ShowMaterial(true);
    EXPECT_FALSE(Shown() == before);
    view.editor.ShowMaterial(false);
    const WindowPicture after = Shown();
    EXPECT_TRUE(after == before) << Difference(after, before);
}

TEST_F(MaterialPreviewField, OffItDoesNotPaintForValuesThatThePlainColorDoesNotShow) {
    static_cast<void>(Shown());
    view.editor.SetMaterial(kGreenGlass);
    EXPECT_EQ(GetUpdateRect(Field(), nullptr, FALSE), FALSE);
}

TEST_F(MaterialPreviewField, OnShowsSceneAndBandAtEveryResolution) {
    view.editor.ShowMaterial(true);
    for (const int dpi : {96, 120, 144, 192}) {
        ChangeResolution(dpi);
        RECT area{};
        GetClientRect(Field(), &area);
        EXPECT_GE(area.bottom, 72 * dpi / 96 + 2) << "there is room for the scene";
        for (const ColorValueArray& values : {kRed, kGreenGlass}) {
            Show(values);
            ExpectMaterial(values, Shown(), dpi);
        }
    }
}

TEST_F(MaterialPreviewField, EveryValueIsSeenAtOnce) {
    view.editor.ShowMaterial(true);
    WindowPicture before = Shown();
    for (std::size_t index = 0; index < kColorValueCount; ++index) {
        ColorValueArray values = kRed;
        values.at(index) = static_cast<std::int16_t>(values.at(index) + 20);
        view.editor.SetMaterial(values);
        const WindowPicture after = Shown();
        EXPECT_FALSE(after == before) << index;
        before = after;
    }
}

TEST_F(MaterialPreviewField, SameValuesPaintNothing) {
    view.editor.ShowMaterial(true);
    static_cast<void>(Shown());
    Show(kRed);
    EXPECT_EQ(GetUpdateRect(Field(), nullptr, FALSE), FALSE);
}

TEST_F(MaterialPreviewField, NarrowFieldIsThePlainColorAsWithoutIt) {
    for (const SIZE size : {SIZE{60, 100}, SIZE{150, 70}, SIZE{2, 2}}) {
        SetWindowPos(Field(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        view.editor.ShowMaterial(false);
        const WindowPicture without = Shown();
        view.editor.ShowMaterial(true);
        const WindowPicture with = Shown();
        EXPECT_TRUE(with == without) << Difference(with, without);
    }
}

TEST_F(MaterialPreviewField, FramesHoldNoMoreGraphicsObjectsHoweverManyAreShown) {
    view.editor.ShowMaterial(true);
    GuiObjects first;
    const int frames = Dose("TNT_FRAMES", 1000);
    for (int frame = 0; frame <= frames; ++frame) {
        ColorValueArray values = kRed;
        values.back() = static_cast<std::int16_t>(frame % 100);
        Show(values);
        UpdateWindow(Field());
        if (frame == 100) {
            static_cast<void>(CountGuiObjects()); // some of what the system keeps comes with it
            first = CountGuiObjects();
        }
    }
    const GuiObjects last = CountGuiObjects();
    EXPECT_LE(last.gdi, first.gdi);
    EXPECT_LE(last.user, first.user);
}

// The program with a library of one color.
class MaterialPreviewOfProgram : public testing::Test {
protected:
    MaterialPreviewOfProgram() {
        program.application.Start();
        program.prompts.typed = {"Paints", "Reds", "Signal"};
        program.Run(IDM_mnuColorNewMainNode);
        program.Run(IDM_mnuViewHugeColorDialog);
        program.Run(IDM_mnuViewMaterialPreview);
    }

    [[nodiscard]] HWND Child(int id) const { return FindChild(program.main.Handle(), id); }
    void ExpectShown(const ColorValueArray& values) const {
        ExpectMaterial(values, PaintedPicture(Child(IDC_lblActiveColor)), 96);
    }
    void Drag(std::size_t value, int position) const {
        const HWND window = Child(IDC_sldActiveColor + static_cast<int>(value));
        SendMessageW(window, TBM_SETPOS, TRUE, position);
        SendMessageW(GetParent(window), WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, position),
                     reinterpret_cast<LPARAM>(window));
    }

    ScratchRegistry registry;
    ScratchFolder folder;
    Win32AnsiCodePage codePage{1252};
    RealProgram program{registry, folder.Path(), codePage};
};

constexpr ColorValueArray kNew{255, 255, 255, 100, 100, 100, 30, 0, 0};

ColorValueArray With(std::size_t index, int value) {
    ColorValueArray values = kNew;
    values.at(index) = static_cast<std::int16_t>(value);
    return values;
}

TEST_F(MaterialPreviewOfProgram, FollowsASliderWhileItMoves) {
    ExpectShown(kNew);
    for (const int position : {10, 35, 80}) {
        Drag(7, position);
        ExpectShown(With(7, position));
    }
    Drag(7, 0);
    Drag(1, 90);
    ExpectShown(With(1, 90));
}

TEST_F(MaterialPreviewOfProgram, FollowsTypedValuesUpdateUndoAndTheLanguage) {
    SetWindowTextW(Child(IDC_txtActiveColor + 2), L"17");
    ExpectShown(With(2, 17));
    program.Run(IDM_mnuColorUpdateColor);
    ExpectShown(With(2, 17));
    program.Run(IDM_mnuOptionsLngEnglish);
    ExpectShown(With(2, 17));
    program.Run(IDM_mnuEditUndo);
    ExpectShown(kNew);
    program.Run(IDM_mnuEditRedo);
    program.Run(IDM_mnuOptionsLngGerman);
    ExpectShown(With(2, 17));
}

TEST_F(MaterialPreviewOfProgram, IsBackWhenTheLargeFieldIsShownAgain) {
    program.Run(IDM_mnuViewHugeColorDialog);
    program.Run(IDM_mnuViewMaterialPreview);
    program.Run(IDM_mnuViewMaterialPreview);
    Drag(5, 0);
    program.Run(IDM_mnuViewHugeColorDialog);
    ExpectShown(With(5, 0));
}

} // namespace
