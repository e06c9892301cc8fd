#include "tests/ui/HeldResources.h"

#include "platform/KernelHandle.h"
#include "tests/ui/GuiObjects.h"

#include <array>
#include <psapi.h>

namespace {

unsigned long CountHandles(HANDLE process) {
    DWORD count = 0;
    GetProcessHandleCount(process, &count);
    return count;
}

std::size_t MemoryOf(HANDLE process) {
    PROCESS_MEMORY_COUNTERS counters{};
    K32GetProcessMemoryInfo(process, &counters, sizeof counters);
    return counters.PagefileUsage;
}

std::size_t BytesInUse(HANDLE heap) {
    std::size_t bytes = 0;
    HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry) != FALSE)
        bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
    HeapUnlock(heap);
    return bytes;
}

std::size_t BytesInUse() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    std::size_t bytes = 0;
    for (DWORD i = 0; i < count && i < heaps.size(); ++i)
        bytes += BytesInUse(heaps.at(i));
    return bytes;
}

} // namespace

HeldResources HeldByThisProcess() {
    const GuiObjects objects = CountGuiObjects();
    return {CountHandles(GetCurrentProcess()), objects.gdi, objects.user, BytesInUse(),
            MemoryOf(GetCurrentProcess())};
}

HeldResources HeldByProcessOf(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const KernelHandle process(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id));
    return {CountHandles(process.Get()), 0, 0, 0, MemoryOf(process.Get())};
}
