// The smallest program around a desk: it presses a key, lets it go, and prints what the desk plays.
#include "Backend/core/MirelFactory.h"
#include "Backend/core/MirelIF.h"
#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/input/Key.h"
#include "Backend/midi/MidiPlayer.h"
#include "Backend/midi/MidiPort.h"
#include "Backend/midi/MirelMidiMessage.h"
#include "Backend/midi/engine/MidiEngineMessageManager.h"

#include <cstdio>
#include <memory>

using namespace Backend;

class PrintingPlayer : public MidiEngine::MidiPlayer {
public:
    void playMidi(const MidiEngine::MirelMidiMessage& message) override {
        const MidiEngine::MidiMessage& event = message.getMidiMessage();
        std::printf("%02x %d %d channel %d output %d\n", event.getStatus() & 0xFF, event.getD1(), event.getD2(),
                    message.getChannel(), message.getOutput());
    }
    void enableMidiInput(int, bool) override {}
    void enableMidiOutput(int, bool) override {}
    DWORD getThreadId() override { return 0; }
    void pulseSequencer() override {}
    void setTempo(int) override {}
    void setTempoSource(char) override {}
    char getTempoSource() override { return -1; }
};

int main(int, char** arguments) {
    MirelUtils::useDataFolder(arguments[1]);
    PrintingPlayer player;
    const std::unique_ptr<MirelIF> desk(MirelFactory::createMirel("First Note", player, false));
    desk->start();
    MirelMessageManager& messages = desk->getMessageManager();
    messages.sendInitialize();
    messages.sendEndInitialize();

    // A desk plays nothing before its host names the outputs that there are.
    MidiEngine::MidiOutputPort synth;
    synth.name = "Synth";
    messages.sendSetMidiOutputPorts({synth});
    messages.postChangeDefaultMidiOutput(SelectType(SelectType::SPECIFIC, 0));

    for (int time = 0; time < 40; time += 10) {
        if (time == 10)
            messages.postKeyDown(Key("Q"), false);
        if (time == 20)
            messages.postKeyUp(Key("Q"));
        desk->getMessageManagerMaster().waitUntilIdle();
        desk->getMidiEngineMessageManager().waitUntilIdle();
        desk->playTimeSlice(time, time + 10);
    }
    messages.sendEnd();
    desk->stop();
}
