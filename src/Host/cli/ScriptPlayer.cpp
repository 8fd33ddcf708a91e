#include "Host/cli/ScriptPlayer.h"

#include "Backend/core/WindowMessages.h"
#include "Platform/MessageThread.h"

#include <cstdio>
#include <utility>

namespace Host::Cli {

using Backend::MidiEngine::MirelMidiMessage;

ScriptPlayer::ScriptPlayer(Options options) : m_options(options), m_threadId(Platform::currentThreadId()) {}

std::string ScriptPlayer::takeOutput() {
    return std::exchange(m_output, std::string());
}

void ScriptPlayer::playMidi(const MirelMidiMessage& message) {
    tell("play", message, message.getChannel());
    m_output += '\n';
}

// A script has no devices and no clock of its own.
void ScriptPlayer::enableMidiInput(int, bool) {}
void ScriptPlayer::enableMidiOutput(int, bool) {}
void ScriptPlayer::setTempo(int) {}

void ScriptPlayer::postUpdateControl(const MirelMidiMessage& message) {
    if (!m_options.updates)
        return;
    tell("update", message, message.isDefaultChannel() ? MirelMidiMessage::DEFAULT_CHANNEL : message.getChannel());
    m_output += " zone=" + std::to_string(message.getZone()) + " in=" + std::to_string(message.getInput()) + "\n";
}

void ScriptPlayer::windowMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != Backend::WindowMessages::DISPLAY_MIDI_OUTPUT_EVENT)
        return;
    const MirelMidiMessage shown(std::uint64_t{wParam}, std::int64_t{lParam});
    tell("show", shown, shown.getChannel());
    m_output += " in=" + std::to_string(shown.getInput()) + "\n";
}

void ScriptPlayer::tell(const char* what, const MirelMidiMessage& message, int channel) {
    char line[96];
    const int length =
        std::snprintf(line, sizeof(line), "@%d %s 0x%02x %d %d ch=%d out=%d", static_cast<int>(m_sliceFrom), what,
                      static_cast<unsigned>(message.getStatus()), static_cast<unsigned char>(message.getD1()),
                      static_cast<unsigned char>(message.getD2()), channel, message.getOutput());
    m_output.append(line, static_cast<std::size_t>(length));
}

}
