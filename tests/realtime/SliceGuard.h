#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace TestSupport {

// While one lives, its thread is in a slice: taking from the heap or returning to it, waiting, writing, opening files
// and reading the clock are breaches, which are noted with the calls that led there. For the programs of this folder,
// as the calls are caught where a program calls the system's libraries.
class SliceGuard {
public:
    SliceGuard();
    ~SliceGuard();
    SliceGuard(const SliceGuard&) = delete;
    SliceGuard& operator=(const SliceGuard&) = delete;

    // [any] How many guards there have been.
    static std::size_t count();

    // [any] The different breaches since the last call: "malloc in A, called by B, called by C ...".
    static std::vector<std::string> takeBreaches();
};

}
