#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace TestSupport {

// While this object exists, its thread is in a slice: allocating or freeing memory, waiting, writing, opening files and
// reading the clock are breaches, which are recorded with the calls that led there. For the programs in this folder,
// since it catches a program's calls of the system's libraries.
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
