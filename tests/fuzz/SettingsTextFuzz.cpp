#include "app/SettingsStore.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeRegistry.h"

#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>

// Any stored settings: they load, and what loaded is saved and loaded again as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider source(data, size);
    FakeRegistry registry;
    const FakeCodePage codePage = FakeCodePage::Western();
    const modRegistry access(registry, codePage);
    const SettingsStore store(access);
    for (const char* name : {"Language", "AlwaysOnTop", "ConfirmDel", "CreateBackups",
                             "ViewToolbar", "ViewHugeColorDialog", "DefaultColorFile"})
        registry.values[std::string("SOFTWARE\\Chromixs\\TNT4SWX|") + name] = {
            source.ConsumeIntegralInRange<std::uint32_t>(0, 5),
            source.ConsumeRandomLengthString(40)};
    Settings first;
    static_cast<void>(store.Load(first));
    store.Save(first);
    Settings second;
    if (!store.Load(second).empty() || second.language != first.language ||
        second.confirmDel != first.confirmDel)
        std::abort();
    return 0;
}
