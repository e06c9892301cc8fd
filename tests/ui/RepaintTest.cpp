// Rules: Auxiliary windows
#include "mainwindow/frmFind.h"
#include "mainwindow/frmLevels.h"
#include "mainwindow/frmRecover.h"
#include "standin/com/frmStandIn.h"
#include "standin/model/StandInContract.h"
#include "standin/model/StandInModel.h"
#include "support/windows/frmAbout.h"
#include "support/windows/frmProgress.h"
#include "support/windows/frmTxtView.h"
#include "tests/fakes/LibraryNodes.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/WindowPicture.h"

#include <algorithm>

// What is seen depends on the size and the texts of a window, never on those that it had before.
namespace {

constexpr unsigned char kHeader[] = {'B', 'M', 0, 0, 0,  0, 0, 0, 0, 0, 54, 0, 0, 0, 40, 0, 0, 0,
                                     120, 0,   0, 0, 40, 0, 0, 0, 1, 0, 24, 0, 0, 0, 0,  0, 0, 0,
                                     0,   0,   0, 0, 0,  0, 0, 0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0};

// 120 by 40 pixels with a slanting pattern, so that a part of it in another place is seen.
std::string Banner() {
    std::string bytes(std::begin(kHeader), std::end(kHeader));
    for (int line = 0; line < 40; ++line)
        for (int byte = 0; byte < 3 * 120; ++byte)
            bytes += static_cast<char>((byte + 7 * line) % 251);
    return bytes;
}

using Sizes = std::vector<SIZE>;

class Repaint : public testing::Test {
protected:
    // The pointer is out of the way: a button below it looks another one.
    Repaint() {
        folder.Write("banner1.bmp", Banner());
        SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    }
    ~Repaint() override { EXPECT_EQ(errors.reports, std::vector<std::string>{}); }

    // Handles what is waiting until every part of the window has been painted.
    static void WaitUntilPainted(HWND window) {
        EXPECT_TRUE(PumpUntil([&] {
            RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
            return GetUpdateRect(window, nullptr, FALSE) == FALSE;
        }));
        PumpMessages();
    }
    static void Resize(HWND window, SIZE size) {
        SetWindowPos(window, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        WaitUntilPainted(window);
    }
    static WindowPicture PictureAfter(HWND window, const Sizes& sizes) {
        for (const SIZE size : sizes)
            Resize(window, size);
        return PictureOf(window);
    }
    template <typename Show>
    static void ExpectSameWayOrNot(const Show& show, SIZE size, const Sizes& before) {
        const WindowPicture made = show(Sizes{size});
        Sizes steps = before;
        steps.push_back(size);
        const WindowPicture came = show(steps);
        EXPECT_TRUE(made == came) << Difference(made, came);
        EXPECT_NE(std::count(made.pixels.begin(), made.pixels.end(), made.pixels.front()),
                  static_cast<std::ptrdiff_t>(made.pixels.size()))
            << "the window is painted";
    }

    WindowPicture ShowMain(const Sizes& sizes, bool hugeFrame) {
        frmMain form(errors, banners);
        MainView view = form.View();
        RecordingMainEvents events(view.layout);
        form.Attach(events.Events());
        view.list.AddColumns({{"Name", "Name", 1500}, {"R", "red", 600}});
        view.list.RowsChanged(5);
        view.tree.NodeAdded(NodeOfLibrary("0D", "Library"), "");
        view.editor.SetColorName("A name that has more characters than the frame has room for");
        view.editor.SetSmallSwatchCaption("A color with a name (R:1 G:2 B:3)");
        view.editor.SetLargeSwatch(0x4080C0);
        view.editor.SetSmallSwatch(0x4080C0, 0xFFFFFF);
        view.bars.SetStatusBarVisible(true);
        view.bars.SetInfoPanelText("A text in the status bar");
        form.SetBanner(1);
        events.layout.SetHugeFrame(hugeFrame);
        Resize(form.Handle(), sizes.front());
        form.ShowWindow();
        SetFocus(FindChild(form.Handle(), IDC_tvColor));
        return PictureAfter(form.Handle(), sizes);
    }

    ScratchFolder folder;
    RecordingErrorSink errors;
    BannerPictures banners{folder.Path()};
};

const Sizes kSteps = {{500, 400}, {503, 402}, {900, 700}, {640, 480}, {1000, 600}};

TEST_F(Repaint, MainWindowWithTheSmallSwatch) {
    const auto show = [this](const Sizes& sizes) { return ShowMain(sizes, false); };
    ExpectSameWayOrNot(show, {800, 600}, kSteps);
    ExpectSameWayOrNot(show, {1100, 800}, {{1090, 800}, {1093, 803}, {1097, 799}});
    ExpectSameWayOrNot(show, {200, 100}, kSteps);
}

TEST_F(Repaint, MainWindowWithTheLargeEditor) {
    const auto show = [this](const Sizes& sizes) { return ShowMain(sizes, true); };
    ExpectSameWayOrNot(show, {800, 600}, kSteps);
    ExpectSameWayOrNot(show, {420, 640}, kSteps);
}

TEST_F(Repaint, Viewer) {
    const auto show = [this](const Sizes& sizes) {
        class : public TextViewerEvents {
        public:
            void EntryChosen(int) override {}
            void BannerClicked() override {}
            [[nodiscard]] TwipsSize TextSize(const TwipsSize& area) const override {
                return {std::max(area.width - 1900, 5.0F), std::max(area.height - 625, 5.0F)};
            }
        } events;
        frmTxtView viewer(nullptr, errors, banners);
        viewer.Attach(events);
        viewer.SetBanner(1);
        viewer.SetText("A text that is longer than a line of the window, so that it is wrapped");
        Resize(viewer.Handle(), sizes.front());
        viewer.ShowModeless();
        return PictureAfter(viewer.Handle(), sizes);
    };
    ExpectSameWayOrNot(show, {700, 500}, {{500, 400}, {1200, 900}, {600, 300}});
}

TEST_F(Repaint, Recover) {
    const auto show = [this](const Sizes& sizes) {
        frmRecover recover(nullptr, errors);
        recover.SetColumnCaptions({"Library", "File", "As of", "Colors"});
        recover.SetRows({{"Reds", "C:\\reds.tnt", "2024-01-02 03:04:05", "7"}});
        Resize(recover.Handle(), sizes.front());
        ShowWindow(recover.Handle(), SW_SHOW);
        return PictureAfter(recover.Handle(), sizes);
    };
    ExpectSameWayOrNot(show, {700, 400}, {{600, 300}, {1200, 900}, {540, 250}});
}

TEST_F(Repaint, Find) {
    const auto show = [this](const Sizes& sizes) {
        class : public FindEvents {
        public:
            void TextChanged(const std::string&) override {}
            void LikeActiveColorChosen(bool) override {}
            void RowSelected(int) override {}
            void RowChosen(int) override {}
            void Ticked() override {}
            void FindClosing() override {}
            [[nodiscard]] std::string CellText(int row, int column) const override {
                return "cell " + std::to_string(row) + "," + std::to_string(column);
            }
            [[nodiscard]] ColorNumber ColorOfRow(int row) const override {
                return static_cast<ColorNumber>(0x203040 * row);
            }
        } events;
        frmFind find(nullptr, errors);
        find.Attach(events);
        find.SetColumnCaptions({"Color", "Group", "Library", "Difference"});
        find.ShowDifferences(true);
        find.ShowActiveColor(0x4080C0);
        find.ShowRows(60, 2);
        find.SetStatus("60 of 3,400 colors");
        Resize(find.Handle(), sizes.front());
        ShowWindow(find.Handle(), SW_SHOW);
        return PictureAfter(find.Handle(), sizes);
    };
    ExpectSameWayOrNot(show, {700, 400}, {{600, 300}, {1200, 900}, {440, 270}});
}

TEST_F(Repaint, Levels) {
    const auto show = [this](const Sizes& sizes) {
        frmLevels levels(nullptr, errors);
        levels.SetColumnCaptions(
            {"Level", "State", "R", "G", "B", "Amb", "Dif", "Spe", "Shi", "Tra", "Emi"});
        levels.ShowSentence("The color of the component covers those of the face and the part.  "
                            "What has a color of its own in it shows that one, wherever it is.");
        levels.ShowRows({{{"Component", "seen", "192"}, 0x4080C0, true},
                         {{"Face", "no color"}, {}, false},
                         {{"Part", "covered", "1"}, 0x203040, false}},
                        0);
        Resize(levels.Handle(), sizes.front());
        ShowWindow(levels.Handle(), SW_SHOW);
        return PictureAfter(levels.Handle(), sizes);
    };
    ExpectSameWayOrNot(show, {700, 400}, {{640, 300}, {1200, 900}, {650, 270}});
}

TEST_F(Repaint, StandIn) {
    const auto show = [this](const Sizes& sizes) {
        StandInModel model("features=2,faces=30");
        ServedObjects objects;
        frmStandIn form(model, objects, errors);
        Resize(form.Handle(), sizes.front());
        form.Open();
        model.Part().FaceAt(0)->SetColor(MaterialValues{1, 0, 0, 1, 1, 1, 0, 0, 0});
        model.Part().FaceAt(0)->Select(false);
        EXPECT_TRUE(PumpUntil([&] { // the window follows its model a little later
            return TextOf(GetDlgItem(form.Handle(), StandInContract::Details))
                .starts_with(L"Face 1");
        }));
        return PictureAfter(form.Handle(), sizes);
    };
    ExpectSameWayOrNot(show, {1000, 700}, {{900, 700}, {1200, 900}, {950, 650}});
}

TEST_F(Repaint, AboutWithOtherTexts) {
    const auto show = [this](const std::vector<std::string>& texts) {
        frmAbout about(nullptr, errors, banners);
        about.SetBanner(1);
        SetWindowPos(about.Handle(), nullptr, 50, 50, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
        for (const std::string& text : texts) {
            for (FormControl* control : about.Controls())
                if (control->TypeName() == "Label" || control->TypeName() == "CommandButton")
                    control->SetProperty("Caption", text);
            PumpMessages();
            WaitUntilPainted(about.Handle());
        }
        return PictureOf(about.Handle());
    };
    std::string longText;
    for (int word = 0; word < 20; ++word)
        longText += "another word ";
    const WindowPicture made = show({"Some words"});
    const WindowPicture came = show({"A", longText, "Some words"});
    EXPECT_TRUE(made == came) << Difference(made, came);
}

TEST_F(Repaint, ProgressWithAnotherText) {
    const auto show = [this](const std::vector<std::string>& texts) {
        frmProgress progress(nullptr, errors);
        for (const std::string& text : texts) {
            progress.ShowProgress({text, 0, 10, 0});
            WaitUntilPainted(progress.Handle());
        }
        return PictureOf(progress.Handle());
    };
    const WindowPicture made = show({"Reading"});
    const WindowPicture came = show({"A text that is longer by far than the other one", "Reading"});
    EXPECT_TRUE(made == came) << Difference(made, came);
}

} // namespace
