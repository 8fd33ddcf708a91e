#pragma once

#include "tests/Host/common/ports/posix/ChildProcess.h"

#include <optional>
#include <string>

namespace Host {

// A JACK server with the dummy driver, under a name that no other test uses at the same time. This process and those
// that it starts find this server and no other.
class JackTestServer {
public:
    enum class Cycles {
        IN_TIME,   // A client that is late misses what was sent to it, as with a real card.
        COMPLETE,  // The server waits for its clients, so nothing is lost on a busy computer.
    };

    static constexpr int CALM_FRAMES = 1024;  // For a busy computer.

    // Takes a name but starts nothing. Throws std::runtime_error if there is none for a long time.
    JackTestServer();
    ~JackTestServer();
    JackTestServer(const JackTestServer&) = delete;
    JackTestServer& operator=(const JackTestServer&) = delete;

    // Starts it, or another one under the same name, with this many frames in a cycle at 48000 a second. False if it
    // doesn't work in the end.
    bool start(Cycles cycles = Cycles::IN_TIME, int frames = CALM_FRAMES);

    // Null before the first start.
    ChildProcess* process() { return m_process ? &*m_process : nullptr; }

private:
    void tryName(const std::string& name);

    int m_lock = -1;
    std::string m_name;
    std::optional<ChildProcess> m_process;
};

}
