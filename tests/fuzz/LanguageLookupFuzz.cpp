#include "common/RuntimeError.h"
#include "support/language/clsMultiLanguage.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFiles.h"
#include "tests/fakes/FakeForm.h"
#include "tests/fakes/FakeProfile.h"

#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>

namespace {

constexpr const char* kIni = "a.ini";

void AddControls(FakeForm& form) {
    for (const char* type : {"Menu", "Label", "TextBox", "ComboBox", "ListBox", "TreeView"})
        form.Add("x", type);
    form.Add("t", "Toolbar").toolbar.buttons = {
        {"New", ToolbarButtonStyle::DropDown, {{"NewColor", "c"}}, {}}};
}

} // namespace

// Any values in a language file: every text is at most 255 characters of the code page, and the
// walk ends, be it with an error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider source(data, size);
    FakeProfile profile;
    FakeFiles files;
    files.contents[kIni] = "";
    const FakeCodePage codePage = FakeCodePage::Western();
    clsMultiLanguage language(profile, files, codePage);
    language.SetIniFile(kIni);
    for (const char* key : {"x.Caption", "x.Text", "x.ToolTipText", "x.ListCount", "x.AddItem0",
                            "x.Default", "t.New.Caption", "t.New.NewColor.Text"})
        if (source.ConsumeBool())
            profile.values[{kIni, "frmMain", key}] = source.ConsumeRandomLengthString(300);
    profile.values[{kIni, "Info", "Text.1"}] = source.ConsumeRemainingBytesAsString();
    FakeForm form("frmMain");
    AddControls(form);
    try {
        language.SetAllControlText(form);
    } catch (const RuntimeError&) {
        // a list's count or default that is none
    }
    if (codePage.Encode(language.GetInfoText(1)).bytes.size() > 255)
        std::abort();
    return 0;
}
