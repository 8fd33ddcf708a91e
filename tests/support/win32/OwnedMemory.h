#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

namespace TestSupport {

// The bytes that this process has allocated from all its heaps and not freed. Unlike its pages, they are the same after
// the same work.
inline std::size_t countOwnedMemory() {
    std::vector<HANDLE> heaps(GetProcessHeaps(0, nullptr));
    heaps.resize(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
    std::size_t bytes = 0;
    for (const HANDLE heap : heaps) {
        PROCESS_HEAP_ENTRY entry{};
        HeapLock(heap);
        while (HeapWalk(heap, &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                bytes += entry.cbData;
        HeapUnlock(heap);
    }
    return bytes;
}

}
