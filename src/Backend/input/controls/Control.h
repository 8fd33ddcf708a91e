#pragma once

#include "Backend/core/xml/Attribute.h"
#include "Backend/input/controls/ControlEvent.h"
#include "Backend/input/controls/ControlType.h"
#include "Backend/midi/Cell.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace Backend::MidiEngine {
class MidiEngineMessageManager;
}

namespace Backend::Controls {

// A fader, knob, edit box or label in a cell of the grid. It sends its value as MIDI events.
class Control {
public:
    static constexpr const char* TAG = "Control";
    static constexpr std::int32_t STAYS = -1;

    static auto attributes() {
        return std::tuple{
            Attribute{"cell", &Control::cell},
            Attribute{"type", &Control::type},
            Attribute{"name", &Control::name},
            Attribute{"value", &Control::value, 0, ANY_NUMBER},
            Attribute{"min", &Control::min, 0, ANY_NUMBER},
            Attribute{"max", &Control::max, 127, ANY_NUMBER},
            Attribute{"release", &Control::release, STAYS, ANY_NUMBER},
            Attribute{"autoSend", &Control::autoSend, false},
            Attribute{"size", &Control::size, 1, {1, 16}},
        };
    }

    Control() = default;
    virtual ~Control() = default;
    Control(const Control&) = default;
    Control& operator=(const Control&) = default;
    Control(Control&&) = default;
    Control& operator=(Control&&) = default;

    // Reads its element.
    explicit Control(const XmlElement& element);

    // Writes the element on its own lines, indented by this many tabs.
    void writeXml(std::ostream& stream, int indent) const;

    // Stores a value, clamped between min and max whichever is lower, and sends it if requested.
    void setValue(MidiEngine::MidiEngineMessageManager& engine, std::int32_t newValue, bool send);

    // Sends the unchanged value with every event, if the control has one.
    void sendEvents(MidiEngine::MidiEngineMessageManager& engine) const;

    // Whether there is an event with this index, from 0, and it is a MIDI event.
    bool isEventValid(int index) const;

    // Replaces what an event of the list sends, but not where; the index after the last adds one. Others are ignored.
    void setEvent(int index, const MidiEngine::MidiMessage& message);

    // The event that the control follows; null if it has none.
    const ControlEvent* getFirstEvent() const { return events.empty() ? nullptr : &events.front(); }

    Cell cell;
    std::string name;
    ControlType type;
    std::int32_t value = 0;
    std::int32_t min = 0;  // May be above max.
    std::int32_t max = 127;
    std::int32_t release = STAYS;  // Its value once it is released.
    bool autoSend = false;         // Sends automatically when it is loaded.
    std::int32_t size = 1;         // In cells.
    std::vector<ControlEvent> events;
    bool selected = false;  // Not saved.
};

}
