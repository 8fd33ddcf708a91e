#pragma once

namespace Host::Cli {

enum ExitStatus : int {
    DONE = 0,
    COMPLAINED = 1,  // It was done, and there was something to say.
    FAILED = 2,      // What was asked for could not be done; one line on standard error says why.
};

}
