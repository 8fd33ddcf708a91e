#include "Backend/input/controls/ControlType.h"

#include "Backend/core/xml/Text.h"

#include <algorithm>
#include <array>

namespace Backend::Controls {

namespace {

// By kind.
constexpr std::array<std::string_view, 6> TEXTS = {"", "edit", "vfader", "hfader", "knob", "label"};

}

ControlType::ControlType(std::string_view text) {
    const auto found = std::find(TEXTS.begin(), TEXTS.end(), Text::trim(text));
    if (found != TEXTS.end())
        m_kind = static_cast<Kind>(found - TEXTS.begin());
}

std::string ControlType::toXmlString() const {
    return std::string(TEXTS[static_cast<std::size_t>(m_kind)]);
}

}
