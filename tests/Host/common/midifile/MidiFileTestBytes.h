// Builds MIDI files byte by byte and describes their events as text, for the tests of the MIDI file classes.
#pragma once

#include "Host/common/midifile/MidiFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>

namespace Host::MidiFileTestBytes {

inline std::string bytes(std::initializer_list<int> values) {
    std::string out;
    for (const int value : values)
        out += static_cast<char>(value);
    return out;
}

inline std::string bigEndian(std::size_t number, int size) {
    std::string out;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        out += static_cast<char>(number >> shift & 0xff);
    return out;
}

inline std::string chunk(std::string_view kind, std::string_view body) {
    return std::string(kind) + bigEndian(body.size(), 4) + std::string(body);
}

inline std::string header(std::size_t format, std::size_t tracks, std::size_t division) {
    return chunk("MThd", bigEndian(format, 2) + bigEndian(tracks, 2) + bigEndian(division, 2));
}

inline const std::string END = bytes({0x00, 0xff, 0x2f, 0x00});

// A file of one track with the division 96; the body's first byte is byte 22 of the file.
inline std::string oneTrack(std::string_view body) {
    return header(0, 1, 96) + chunk("MTrk", body);
}

// "0:90.1(3c,40) 10:f0[01f7] 12:ff51[07a120]": tick, status, channel, data bytes; all but the tick in hex.
inline std::string tell(const MidiFileEvent& event) {
    char text[64];
    if (event.isChannelEvent())
        std::snprintf(text, sizeof text, ":%02x.%x(%02x,%02x)", event.status, event.channel, event.d1, event.d2);
    else if (event.status == MIDI_FILE_META)
        std::snprintf(text, sizeof text, ":ff%02x[", event.d1);
    else
        std::snprintf(text, sizeof text, ":%02x[", event.status);
    std::string out = std::to_string(event.tick) + text;
    if (event.isChannelEvent())
        return out;
    for (const char c : event.data) {
        std::snprintf(text, sizeof text, "%02x", static_cast<std::uint8_t>(c));
        out += text;
    }
    return out + "]";
}

inline std::string tell(const MidiFileTrack& track) {
    std::string out;
    for (const MidiFileEvent& event : track.events)
        out += (out.empty() ? "" : " ") + tell(event);
    return out;
}

}
