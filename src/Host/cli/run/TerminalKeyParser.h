#pragma once

#include "Backend/input/Key.h"

#include <string>
#include <string_view>
#include <vector>

namespace Host::Cli {

// Parses the bytes of a terminal into keys: characters, which stand for the keys of an American keyboard, control
// characters, the escape sequences of function keys, and those of terminals that report repeats and releases.
class TerminalKeyParser {
public:
    enum class Action { PRESS, REPEAT, RELEASE };

    struct Press {
        Key key;
        Action action = Action::PRESS;
    };

    // The keys in the next bytes. An incomplete sequence is kept for the next call; keys unknown to the desk are left
    // out.
    std::vector<Press> parse(std::string_view bytes);

    // Whether the terminal has said that it reports releases.
    bool tellsReleases() const { return m_tellsReleases; }

    // Treats the rest of a sequence that never ended as the keys it would have begun with.
    std::vector<Press> flush();

private:
    // The length of the first key in the text; 0 if it may be incomplete.
    std::size_t parseFirst(std::string_view text, std::vector<Press>& presses);
    std::size_t parseSequence(std::string_view text, std::vector<Press>& presses);

    std::string m_pending;
    bool m_tellsReleases = false;
};

}
