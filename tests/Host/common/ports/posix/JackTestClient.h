#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Host {

// Another program at the JACK server, though in this process: what is sent leaves through its output "out", and it
// records what its input "in" receives.
class JackTestClient {
public:
    struct Event {
        std::vector<std::uint8_t> bytes;
        std::int64_t frame;         // By the server.
        std::int64_t microseconds;  // By the monotonic clock, when the program handled it.
    };

    // Throws std::runtime_error without a server.
    explicit JackTestClient(const std::string& name);
    ~JackTestClient();
    JackTestClient(const JackTestClient&) = delete;
    JackTestClient& operator=(const JackTestClient&) = delete;

    // The names of its ports.
    std::string output() const;
    std::string input() const;

    // [any] How many ports are connected to them.
    int outputConnections() const;
    int inputConnections() const;

    // [any] Sends one message in the next cycle, at this frame if the cycle has that many.
    void send(std::vector<std::uint8_t> bytes, std::uint32_t frame = 0);

    // [any] What was sent and received so far.
    std::vector<Event> sent() const;
    std::vector<Event> heard() const;

    // [any] Forgets what was sent and received.
    void forget();

private:
    struct State;
    const std::unique_ptr<State> m_state;
};

}
