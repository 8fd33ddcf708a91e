// The bank of the tests of "mirel run".
#pragma once

#include <string>

namespace Host::Cli {

// "Straight" plays each event on channel 1, and notes an octave higher on channel 3 as well. "Arpeggio" plays a quarter
// on and a quarter off, at 250 beats a minute. "Chained" plays C4 as C5 to the first output, and C5 as C6 to the
// second.
inline std::string runTestBank() {
    return R"(<?xml version="1.0" encoding="utf-8"?>
<Bank>
<Program name="Straight" tempo="90" tempoSource="-1">
<ComputerInput>
<Key id="Q"><Function><Down><MidiNoteOn zone="0" note="C4" velocity="100"/></Down><Up><MidiNoteOff zone="0" note="C4" velocity="100"/></Up></Function></Key>
<Key id="W"><Function><Down><MidiNoteOn zone="0" note="D4" velocity="100"/></Down><Up><MidiNoteOff zone="0" note="D4" velocity="100"/></Up></Function></Key>
</ComputerInput>
<Layers>
<Layer channel="0"/>
<Layer channel="2" transpose="+12"/>
</Layers>
</Program>
<Program name="Arpeggio" tempo="250" tempoSource="-1">
<Layers>
<Layer channel="0"><Arpeggio><UpArpeggio beat="480" length="240"/></Arpeggio></Layer>
</Layers>
</Program>
<Program name="Chained" tempo="120" tempoSource="-1">
<Layers>
<Layer channel="0" minNote="C4" maxNote="C4" transpose="+12" output="0"/>
<Layer channel="1" minNote="C5" maxNote="C5" transpose="+12" output="1"/>
</Layers>
</Program>
</Bank>
)";
}

}
