#include "Host/cli/script/EventText.h"

#include <cstdio>

namespace Host::Cli {

std::string describeEvent(const Backend::MidiEngine::MirelMidiMessage& message, int channel) {
    char text[64];
    const int length =
        std::snprintf(text, sizeof(text), "0x%02x %d %d ch=%d out=%d", static_cast<unsigned>(message.getStatus()),
                      static_cast<unsigned char>(message.getD1()), static_cast<unsigned char>(message.getD2()), channel,
                      message.getOutput());
    return std::string(text, static_cast<std::size_t>(length));
}

}
