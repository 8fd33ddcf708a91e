#pragma once

#include "Backend/core/xml/XmlItem.h"

#include <cstdint>

namespace Backend {

// How a length is shown: as one of the named notes or as a number of ppq.
class TimeIntervalType : public XmlItem {
public:
    enum Mode : std::int32_t { noteInterval = 0, ppq = 1 };

    TimeIntervalType() = default;
    explicit TimeIntervalType(Mode mode) : m_mode(mode) {}

    Mode getMode() const { return m_mode; }

    std::string toXmlString() const override { return m_mode == ppq ? "ppq" : "noteInterval"; }

    bool operator==(const TimeIntervalType& other) const { return m_mode == other.m_mode; }

private:
    Mode m_mode = noteInterval;
};

}
