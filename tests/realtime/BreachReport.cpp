// Of the program alone, not of the tests: whatever a script printed, it fails if a slice did what it must not.
#include "tests/realtime/SliceGuard.h"

#include <unistd.h>

#include <cstdio>

namespace {

struct BreachReport {
    ~BreachReport() {
        const auto breaches = TestSupport::SliceGuard::takeBreaches();
        if (breaches.empty())
            return;
        for (const std::string& breach : breaches)
            std::fprintf(stderr, "in a slice: %s\n", breach.c_str());
        std::fflush(nullptr);
        _exit(3);
    }
};

const BreachReport REPORT;

}
