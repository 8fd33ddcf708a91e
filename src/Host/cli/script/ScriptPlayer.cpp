#include "Host/cli/script/ScriptPlayer.h"

#include "Backend/core/WindowMessages.h"
#include "Host/cli/script/EventText.h"
#include "Host/cli/script/WindowText.h"
#include "Platform/MessageThread.h"

#include <utility>

namespace Host::Cli {

using Backend::MidiEngine::MirelMidiMessage;
using Backend::WindowMessages::DISPLAY_MIDI_OUTPUT_EVENT;

ScriptPlayer::ScriptPlayer(Options options) : m_options(options), m_threadId(Platform::currentThreadId()) {}

std::string ScriptPlayer::takeOutput() {
    const std::lock_guard lock(m_outputLock);
    return std::exchange(m_output, std::string());
}

void ScriptPlayer::tell(const std::string& lines) {
    const std::lock_guard lock(m_outputLock);
    m_output += lines;
}

void ScriptPlayer::playMidi(const MirelMidiMessage& message) {
    tellEvent("play", message, message.getChannel(), "");
}

// A script has no devices or clock of its own.
void ScriptPlayer::enableMidiInput(int, bool) {}
void ScriptPlayer::enableMidiOutput(int, bool) {}
void ScriptPlayer::setTempo(int) {}

void ScriptPlayer::tellUpdate(const MirelMidiMessage& message) {
    if (m_options.updates)
        tellEvent("update", message,
                  message.isDefaultChannel() ? MirelMidiMessage::DEFAULT_CHANNEL : message.getChannel(),
                  " zone=" + std::to_string(message.getZone()) + " in=" + std::to_string(message.getInput()));
}

void ScriptPlayer::windowMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == DISPLAY_MIDI_OUTPUT_EVENT.NUMBER && m_options.show)
        DISPLAY_MIDI_OUTPUT_EVENT.open(wParam, lParam, [this](const MirelMidiMessage& shown) {
            tellEvent("show", shown, shown.getChannel(), " in=" + std::to_string(shown.getInput()));
        });
    const std::string text = takeWindowText(message, wParam, lParam);
    if (m_options.window && !isListForMenus(message))
        tell("window " + std::to_string(message) + (text.empty() ? "" : " ") + text + "\n");
}

void ScriptPlayer::tellEvent(const char* what, const MirelMidiMessage& message, int channel, const std::string& more) {
    tell("@" + std::to_string(m_sliceFrom) + " " + what + " " + describeEvent(message, channel) + more + "\n");
}

}
