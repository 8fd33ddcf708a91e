// Messages to the display's thread, as rows of what their first and second word carry.
#pragma once

#include "Backend/core/messages/MessageFamily.h"
#include "Platform/AutoResetEvent.h"

#include <string>
#include <vector>

namespace Backend::MidiEngine {
class MirelMidiMessage;
struct MidiInputPort;
struct MidiOutputPort;
}

namespace Backend::Display {

class DisplayListener;

// The event of a waiting sender, or null. It is set once the message has been handled or disposed of.
struct Waiter {};

}

template <>
struct Backend::Carried<Backend::Display::Waiter> : Carried<Platform::AutoResetEvent*> {
    template <class Word>
    static void drop(Word word) {
        if (Platform::AutoResetEvent* const event = get(word))
            event->set();
    }
};

namespace Backend::Display::Messages {

// clang-format off

inline constexpr Message<32870, Nothing, Heap<std::string>>                    ADD_TEXT;
inline constexpr Message<32871>                                                SEND_ALL;
inline constexpr Message<32872>                                                FLUSH;
inline constexpr Message<32873, Nothing, Heap<MidiEngine::MirelMidiMessage>>   ADD_INPUT_EVENT;
inline constexpr Message<32874, Nothing, Heap<MidiEngine::MirelMidiMessage>>   ADD_OUTPUT_EVENT;
inline constexpr Message<32875, Waiter, DisplayListener*>                      SET_LISTENER;
inline constexpr Message<32876, bool>                                          SET_DISPLAY_NUMBERS;
inline constexpr Message<32877, bool>                                          SET_DISPLAY_INPUTS;
inline constexpr Message<32878, bool>                                          SET_DISPLAY_OUTPUTS;
inline constexpr Message<32879, Heap<std::vector<MidiEngine::MidiInputPort>>>  SET_INPUT_PORTS;
inline constexpr Message<32880, Heap<std::vector<MidiEngine::MidiOutputPort>>> SET_OUTPUT_PORTS;

inline constexpr auto FAMILY = familyOf<DISPLAY_RANGE>(
    Unused<>(),
    ADD_TEXT, SEND_ALL, FLUSH, ADD_INPUT_EVENT, ADD_OUTPUT_EVENT, SET_LISTENER, SET_DISPLAY_NUMBERS,
    SET_DISPLAY_INPUTS, SET_DISPLAY_OUTPUTS, SET_INPUT_PORTS, SET_OUTPUT_PORTS);

// clang-format on

}
