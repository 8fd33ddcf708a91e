#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Backend::Controls {

// The appearance of a control.
class ControlType : public XmlItem {
public:
    enum Kind : std::int32_t { NONE = 0, EDIT = 1, VERTICAL_FADER = 2, HORIZONTAL_FADER = 3, KNOB = 4, LABEL = 5 };

    ControlType() = default;
    explicit ControlType(Kind kind) : m_kind(kind) {}

    // From its text, case-sensitive; anything else is none.
    explicit ControlType(std::string_view text);

    Kind getKind() const { return m_kind; }

    // Whether it has a value to send.
    bool hasValue() const { return m_kind != NONE && m_kind != LABEL; }

    std::string toXmlString() const override;

    bool operator==(const ControlType& other) const { return m_kind == other.m_kind; }

private:
    Kind m_kind = NONE;
};

}
