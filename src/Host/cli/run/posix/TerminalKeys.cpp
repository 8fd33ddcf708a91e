#include "Host/cli/run/TerminalKeys.h"

#include "Host/cli/run/TerminalKeyParser.h"

#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <csignal>
#include <map>
#include <string_view>

namespace Host::Cli {

namespace {

using Clock = std::chrono::steady_clock;

// Requests every key, with repeats and releases, and the terminal's capabilities; the second sequence cancels that.
// Terminals that don't support it ignore both.
constexpr std::string_view ASK_FOR_RELEASES = "\x1b[>11u\x1b[?u";
constexpr std::string_view STOP_ASKING = "\x1b[<u";

// How long a note lasts if the terminal doesn't report key releases.
constexpr std::chrono::milliseconds ASSUMED_PRESS{300};

void writeToTerminal(std::string_view text) {
    [[maybe_unused]] const auto written = ::write(STDOUT_FILENO, text.data(), text.size());
}

// A terminal that reports every key no longer turns these into a signal.
bool isInterrupt(const Key& key) {
    return key == Key(std::string_view("Control C")) || key == Key(std::string_view("Control Backslash"));
}

bool isPause(const Key& key) {
    return key == Key(std::string_view("Control Z"));
}

class PosixTerminalKeys : public TerminalKeys {
public:
    explicit PosixTerminalKeys(const termios& state) : m_state(state) { takeTerminal(); }

    ~PosixTerminalKeys() override { giveTerminalBack(); }

    PosixTerminalKeys(const PosixTerminalKeys&) = delete;
    PosixTerminalKeys& operator=(const PosixTerminalKeys&) = delete;

    std::vector<KeyEvent> read(std::chrono::milliseconds limit) override {
        std::vector<KeyEvent> events;
        pollfd input = {STDIN_FILENO, POLLIN, 0};
        if (::poll(&input, 1, static_cast<int>(limit.count())) > 0) {
            char bytes[256];
            const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof(bytes));
            m_isClosed = m_isClosed || count <= 0;
            for (const auto& press : m_parser.parse({bytes, count > 0 ? static_cast<std::size_t>(count) : 0}))
                take(press, events);
        } else {
            for (const auto& press : m_parser.flush())
                take(press, events);
        }
        releaseOld(events);
        return events;
    }

    bool isInterrupted() const override { return m_isInterrupted || m_isClosed; }

    std::vector<KeyEvent> giveBack() override {
        giveTerminalBack();
        std::vector<KeyEvent> events;
        for (const auto& entry : m_down)
            events.push_back({entry.first, false, false});
        m_down.clear();
        m_parser = {};
        return events;
    }

    void takeAgain() override {
        // It may have been changed in the meantime.
        ::tcgetattr(STDIN_FILENO, &m_state);
        takeTerminal();
    }

private:
    using Press = TerminalKeyParser::Press;
    using Action = TerminalKeyParser::Action;

    void takeTerminal() const {
        termios raw = m_state;
        raw.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
        ::tcsetattr(STDIN_FILENO, TCSANOW, &raw);
        writeToTerminal(ASK_FOR_RELEASES);
    }

    void giveTerminalBack() const {
        writeToTerminal(STOP_ASKING);
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_state);
    }

    void take(const Press& press, std::vector<KeyEvent>& events) {
        if (isInterrupt(press.key))
            m_isInterrupted = true;
        if (isPause(press.key) && press.action == Action::PRESS)
            ::kill(0, SIGTSTP);  // To the whole process group, as the terminal would have done.
        if (press.action == Action::RELEASE) {
            m_down.erase(press.key);
            events.push_back({press.key, false, false});
            return;
        }
        const bool isDown = m_down.contains(press.key);
        m_down[press.key] = Clock::now();
        events.push_back({press.key, true, press.action == Action::REPEAT || isDown});
    }

    void releaseOld(std::vector<KeyEvent>& events) {
        if (m_parser.tellsReleases())
            return;
        for (auto key = m_down.begin(); key != m_down.end();) {
            if (Clock::now() - key->second >= ASSUMED_PRESS) {
                events.push_back({key->first, false, false});
                key = m_down.erase(key);
            } else {
                ++key;
            }
        }
    }

    termios m_state;  // As it was before.
    TerminalKeyParser m_parser;
    std::map<Key, Clock::time_point> m_down;  // With the time each was last reported.
    bool m_isInterrupted = false;
    bool m_isClosed = false;
};

}

std::unique_ptr<TerminalKeys> TerminalKeys::open() {
    termios state = {};
    if (!::isatty(STDIN_FILENO) || ::tcgetattr(STDIN_FILENO, &state) != 0)
        return nullptr;
    return std::make_unique<PosixTerminalKeys>(state);
}

}
