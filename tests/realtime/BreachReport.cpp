// For the program only, not for the tests: whatever a script printed, the program fails if a slice did something
// forbidden.
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
