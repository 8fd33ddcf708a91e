#include "Host/cli/run/TerminalKeyParser.h"

#include <array>
#include <optional>

namespace Host::Cli {

namespace {

constexpr char ESCAPE = '\x1b';
constexpr char DELETE = '\x7f';

// A capability in a terminal's answer: it distinguishes presses, repeats and releases.
constexpr int TELLS_ACTIONS = 2;

struct NamedCode {
    int code;
    const char* key;
};

// Characters that differ from their key's name.
constexpr std::array CHARACTERS = {
    NamedCode{' ', "Space"},
    NamedCode{'\t', "Tab"},
    NamedCode{'\r', "Enter"},
    NamedCode{'\n', "Enter"},
    NamedCode{DELETE, "Backspace"},
    NamedCode{'\b', "Backspace"},
    NamedCode{ESCAPE, "Escape"},
    NamedCode{'`', "Quote"},
    NamedCode{'-', "Minus"},
    NamedCode{'=', "Equals"},
    NamedCode{'[', "Left Bracket"},
    NamedCode{']', "Right Bracket"},
    NamedCode{'\\', "Backslash"},
    NamedCode{';', "Semicolon"},
    NamedCode{'\'', "Apostrophe"},
    NamedCode{',', "Comma"},
    NamedCode{'.', "Period"},
    NamedCode{'/', "Slash"},
    NamedCode{'~', "Shift Quote"},
    NamedCode{'_', "Shift Minus"},
    NamedCode{'+', "Shift Equals"},
    NamedCode{'{', "Shift Left Bracket"},
    NamedCode{'}', "Shift Right Bracket"},
    NamedCode{'|', "Shift Backslash"},
    NamedCode{':', "Shift Semicolon"},
    NamedCode{'"', "Shift Apostrophe"},
    NamedCode{'<', "Shift Comma"},
    NamedCode{'>', "Shift Period"},
    NamedCode{'?', "Shift Slash"},
    NamedCode{'!', "Shift 1"},
    NamedCode{'@', "Shift 2"},
    NamedCode{'#', "Shift 3"},
    NamedCode{'$', "Shift 4"},
    NamedCode{'%', "Shift 5"},
    NamedCode{'^', "Shift 6"},
    NamedCode{'&', "Shift 7"},
    NamedCode{'*', "Shift 8"},
    NamedCode{'(', "Shift 9"},
    NamedCode{')', "Shift 0"},
};

// Sequences that end with a letter.
constexpr std::array LETTERS = {
    NamedCode{'A', "Up"},   NamedCode{'B', "Down"}, NamedCode{'C', "Right"},        NamedCode{'D', "Left"},
    NamedCode{'H', "Home"}, NamedCode{'F', "End"},  NamedCode{'P', "F1"},           NamedCode{'Q', "F2"},
    NamedCode{'R', "F3"},   NamedCode{'S', "F4"},   NamedCode{'M', "Numpad Enter"},
};

// Sequences that end with "~", by number.
constexpr std::array NUMBERS = {
    NamedCode{1, "Home"},    NamedCode{2, "Insert"},    NamedCode{3, "Delete"}, NamedCode{4, "End"},
    NamedCode{5, "Page Up"}, NamedCode{6, "Page Down"}, NamedCode{7, "Home"},   NamedCode{8, "End"},
    NamedCode{11, "F1"},     NamedCode{12, "F2"},       NamedCode{13, "F3"},    NamedCode{14, "F4"},
    NamedCode{15, "F5"},     NamedCode{17, "F6"},       NamedCode{18, "F7"},    NamedCode{19, "F8"},
    NamedCode{20, "F9"},     NamedCode{21, "F10"},      NamedCode{23, "F11"},   NamedCode{24, "F12"},
};

// Keys without a character, by the private code points that terminals use for them.
constexpr std::array PRIVATE_CODES = {
    NamedCode{57399, "Numpad 0"},     NamedCode{57400, "Numpad 1"}, NamedCode{57401, "Numpad 2"},
    NamedCode{57402, "Numpad 3"},     NamedCode{57403, "Numpad 4"}, NamedCode{57404, "Numpad 5"},
    NamedCode{57405, "Numpad 6"},     NamedCode{57406, "Numpad 7"}, NamedCode{57407, "Numpad 8"},
    NamedCode{57408, "Numpad 9"},     NamedCode{57409, "Numpad ."}, NamedCode{57410, "Numpad /"},
    NamedCode{57411, "Numpad *"},     NamedCode{57412, "Numpad -"}, NamedCode{57413, "Numpad +"},
    NamedCode{57414, "Numpad Enter"},
};

template <class Table>
const char* findName(const Table& table, int code) {
    for (const NamedCode& row : table)
        if (row.code == code)
            return row.key;
    return nullptr;
}

std::optional<Key> keyOfCharacter(int character) {
    if (character >= 'a' && character <= 'z')
        return Key(character - 'a' + 'A', false, false, false, false);
    if (character >= 'A' && character <= 'Z')
        return Key(character, true, false, false, false);
    if (character >= '0' && character <= '9')
        return Key(character, false, false, false, false);
    const char* name = findName(CHARACTERS, character);
    return name ? std::optional(Key(std::string_view(name))) : std::nullopt;
}

// Adds modifiers, given as bits (shift, alt, control, windows) plus 1.
Key withModifiers(const Key& key, int modifiers) {
    const int bits = modifiers > 0 ? modifiers - 1 : 0;
    return Key(key.getCode(), key.isShift() || (bits & 1), key.isControl() || (bits & 4), key.isAlt() || (bits & 2),
               key.isWin() || (bits & 8));
}

// The parameters of a sequence: numbers separated by ";". The second may contain another one after ":".
struct Parameters {
    int first = 0;
    int second = 1;
    int action = 1;
};

int takeNumber(std::string_view& text, int missing) {
    constexpr int LIMIT = 10000000;
    int number = 0;
    std::size_t digits = 0;
    for (; digits < text.size() && text[digits] >= '0' && text[digits] <= '9'; ++digits)
        number = number < LIMIT ? number * 10 + (text[digits] - '0') : LIMIT;
    text.remove_prefix(digits);
    return digits == 0 ? missing : number;
}

Parameters parseParameters(std::string_view text, int missing = 1) {
    Parameters parameters;
    parameters.first = takeNumber(text, missing);
    text.remove_prefix(std::min(text.find(';'), text.size()));
    if (text.empty())
        return parameters;
    text.remove_prefix(1);
    parameters.second = takeNumber(text, 1);
    if (text.starts_with(':')) {
        text.remove_prefix(1);
        parameters.action = takeNumber(text, 1);
    }
    return parameters;
}

TerminalKeyParser::Action toAction(int number) {
    using Action = TerminalKeyParser::Action;
    return number == 3 ? Action::RELEASE : number == 2 ? Action::REPEAT : Action::PRESS;
}

std::optional<Key> keyOfSequence(char final, const Parameters& parameters) {
    if (final == 'u') {
        if (const char* name = findName(PRIVATE_CODES, parameters.first))
            return Key(std::string_view(name));
        return keyOfCharacter(parameters.first);
    }
    const char* name = final == '~' ? findName(NUMBERS, parameters.first) : findName(LETTERS, final);
    return name ? std::optional(Key(std::string_view(name))) : std::nullopt;
}

}

std::vector<TerminalKeyParser::Press> TerminalKeyParser::parse(std::string_view bytes) {
    std::vector<Press> presses;
    m_pending += bytes;
    std::string_view rest = m_pending;
    while (!rest.empty()) {
        const std::size_t length = parseFirst(rest, presses);
        if (length == 0)
            break;
        rest.remove_prefix(length);
    }
    m_pending = std::string(rest);
    return presses;
}

std::vector<TerminalKeyParser::Press> TerminalKeyParser::flush() {
    std::vector<Press> presses;
    for (const char character : m_pending)
        if (const auto key = keyOfCharacter(static_cast<unsigned char>(character)))
            presses.push_back({*key});
    m_pending.clear();
    return presses;
}

std::size_t TerminalKeyParser::parseFirst(std::string_view text, std::vector<Press>& presses) {
    constexpr int LAST_CONTROL = 26;
    const int first = static_cast<unsigned char>(text.front());
    if (first == ESCAPE)
        return parseSequence(text, presses);
    if (const auto key = keyOfCharacter(first))
        presses.push_back({*key});
    else if (first >= 1 && first <= LAST_CONTROL)
        presses.push_back({Key('A' + first - 1, false, true, false, false)});
    return 1;
}

std::size_t TerminalKeyParser::parseSequence(std::string_view text, std::vector<Press>& presses) {
    constexpr std::size_t LONGEST = 64;
    if (text.size() < 2)
        return 0;
    if (text[1] != '[' && text[1] != 'O') {
        // The Alt key puts an escape before the character.
        if (const auto key = keyOfCharacter(static_cast<unsigned char>(text[1])))
            presses.push_back({withModifiers(*key, 3)});
        return 2;
    }
    std::size_t end = 2;
    while (end < text.size() && end < LONGEST && text[end] >= ' ' && text[end] < '@')
        ++end;
    if (end == text.size() && end < LONGEST)
        return 0;
    if (end == LONGEST)
        return end;
    const char final = text[end];
    const std::string_view content = text.substr(2, end - 2);
    if (content.starts_with('?')) {
        if (final == 'u')
            m_tellsReleases = (parseParameters(content.substr(1), 0).first & TELLS_ACTIONS) != 0;
    } else if (content.find_first_of("<=>!") == std::string_view::npos) {
        const Parameters parameters = parseParameters(content);
        if (const auto key = keyOfSequence(final, parameters))
            presses.push_back({withModifiers(*key, parameters.second), toAction(parameters.action)});
    }
    return end + 1;
}

}
