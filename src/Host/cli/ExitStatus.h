#pragma once

namespace Host::Cli {

enum ExitStatus : int {
    DONE = 0,
    COMPLAINED = 1,  // Done, with something to report.
    FAILED = 2,      // It could not be done; one line on standard error says why.
};

}
