#include "Backend/input/Key.h"

#include "Backend/input/KeyNames.h"

#include <algorithm>
#include <array>

using namespace Backend::ComputerInput;

namespace {

constexpr int SHIFT = 1;
constexpr int CONTROL = 2;
constexpr int ALT = 4;
constexpr int WIN = 8;

struct Prefix {
    std::string_view text;
    int modifiers;
};

// The first match counts. A longer prefix comes before each one that it begins with.
constexpr std::array<Prefix, 15> PREFIXES = {{
    {"Shift Control Alt Win ", SHIFT | CONTROL | ALT | WIN},
    {"Shift Control Alt ", SHIFT | CONTROL | ALT},
    {"Shift Control Win ", SHIFT | CONTROL | WIN},
    {"Shift Control ", SHIFT | CONTROL},
    {"Shift Alt Win ", SHIFT | ALT | WIN},
    {"Shift Alt ", SHIFT | ALT},
    {"Shift Win ", SHIFT | WIN},
    {"Shift ", SHIFT},
    {"Control Alt Win ", CONTROL | ALT | WIN},
    {"Control Alt ", CONTROL | ALT},
    {"Control Win ", CONTROL | WIN},
    {"Control ", CONTROL},
    {"Alt Win ", ALT | WIN},
    {"Alt ", ALT},
    {"Win ", WIN},
}};

// A key is unavailable in a state that contains all modifiers of one of its rows and, where a row says so, none of
// another set.
struct Taken {
    std::int32_t firstCode;
    std::int32_t lastCode;
    int held;
    int notHeld = 0;
};

constexpr Taken TAKEN[] = {
    {1, 1, 0},
    {5, 5, 0},
    {91, 92, 0},
    {16, 17, SHIFT},
    {16, 17, CONTROL},
    {16, 17, ALT},
    {16, 17, WIN},
    {225, 225, SHIFT},
    {225, 225, CONTROL},
    {225, 225, ALT},
    {225, 225, WIN},
    {164, 165, ALT},
    {9, 9, ALT},
    {9, 9, WIN},
    {13, 13, ALT | WIN},
    {19, 19, CONTROL},
    {19, 19, WIN},
    {27, 27, ALT},
    {27, 27, CONTROL},
    {46, 46, CONTROL | ALT},
    {48, 48, WIN},
    {48, 48, SHIFT | CONTROL},
    {96, 106, SHIFT},
    {109, 109, SHIFT},
    {111, 111, SHIFT},
    {107, 107, SHIFT},
    {107, 107, WIN},
    {110, 110, SHIFT},
    {110, 110, CONTROL | ALT},
    {144, 144, CONTROL},
    {144, 144, SHIFT},
    {145, 145, CONTROL, SHIFT},
    {145, 145, CONTROL | WIN},
    {226, 226, ALT | WIN},
    {226, 226, SHIFT | CONTROL | WIN},
    {32, 32, WIN},
    {36, 40, WIN},
    {49, 57, WIN},
    {66, 66, WIN},
    {68, 71, WIN},
    {76, 77, WIN},
    {80, 80, WIN},
    {82, 82, WIN},
    {84, 85, WIN},
    {112, 112, WIN},
    {187, 187, WIN},
};

}

Key::Key(std::int32_t code, bool shift, bool control, bool alt, bool win)
    : m_code(code), m_shift(shift), m_control(control), m_alt(alt), m_win(win) {}

Key::Key(std::string_view id) {
    const auto prefix = std::find_if(PREFIXES.begin(), PREFIXES.end(),
                                     [id](const Prefix& candidate) { return id.starts_with(candidate.text); });
    if (prefix != PREFIXES.end()) {
        m_shift = prefix->modifiers & SHIFT;
        m_control = prefix->modifiers & CONTROL;
        m_alt = prefix->modifiers & ALT;
        m_win = prefix->modifiers & WIN;
        id.remove_prefix(prefix->text.size());
    }
    m_code = keyCodeOfName(id);
}

Key Key::fromIdentity(std::int32_t identity) {
    const int modifiers = identity >> 8;
    return Key(identity & 0xff, modifiers & SHIFT, modifiers & CONTROL, modifiers & ALT, modifiers & WIN);
}

int Key::getModifierIndex() const {
    return (m_shift ? SHIFT : 0) | (m_control ? CONTROL : 0) | (m_alt ? ALT : 0) | (m_win ? WIN : 0);
}

std::string Key::toXmlString() const {
    std::string text;
    if (m_shift)
        text += "Shift ";
    if (m_control)
        text += "Control ";
    if (m_alt)
        text += "Alt ";
    if (m_win)
        text += "Win ";
    return text + getName();
}

std::string Key::getName() const {
    return keyNameOfCode(m_code);
}

std::string Key::getLabel() const {
    return keyLabelOfCode(m_code);
}

bool Key::isAvailable() const {
    const int modifiers = getModifierIndex();
    return std::none_of(std::begin(TAKEN), std::end(TAKEN), [&](const Taken& taken) {
        return m_code >= taken.firstCode && m_code <= taken.lastCode && (modifiers & taken.held) == taken.held &&
               (modifiers & taken.notHeld) == 0;
    });
}
