#include "support/settings/CFormPos.h"
#include "support/settings/FormPosition.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFormWindow.h"
#include "tests/fakes/FakeRegistry.h"

#include <cstdint>
#include <cstdlib>
#include <string>

// Any stored text: the window lands with its left and top edge at 0 or beyond, or only changes its
// state; what it is then stored as restores to the same place.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FakeRegistry registry;
    const FakeCodePage codePage = FakeCodePage::Western();
    const modRegistry access(registry, codePage);
    FakeFormWindow form;
    CFormPos position(access);
    position.SetForm(form);
    position.SetRegistryPath("K");
    registry.values["HKLM:K|frmMain"] = {RegistryType::String, std::string(data, data + size)};
    if (!position.RestoreForm(true))
        return 0;
    if (form.moves > 0 && (form.bounds.left < 0 || form.bounds.top < 0))
        std::abort();
    const FormPosition stored =
        ParseFormPosition(FormatFormPosition(form.bounds, WindowState::Normal));
    if (stored.state != 0)
        std::abort();
    return 0;
}
