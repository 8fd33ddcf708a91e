#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Host {

// Another program at the JACK server, though in this process: what is sent leaves its output "out", and it keeps what
// its input "in" hears.
class JackTestClient {
public:
    struct Event {
        std::vector<std::uint8_t> bytes;
        std::int64_t frame;         // By the server.
        std::int64_t microseconds;  // By the monotonic clock, when the program dealt with it.
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

    // [any] Sends one message in the next cycle, at this frame of it if it has so many.
    void send(std::vector<std::uint8_t> bytes, std::uint32_t frame = 0);

    // [any] What was sent and heard so far.
    std::vector<Event> sent() const;
    std::vector<Event> heard() const;

    // [any] Forgets what was sent and heard.
    void forget();

private:
    struct State;
    const std::unique_ptr<State> m_state;
};

}
