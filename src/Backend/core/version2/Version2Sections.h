// The records of version 2 files. A section is a run of lines that begin with its letter, one record a line, with
// fields between blanks:
//
//   K code modifiers  type d1 d2 zone output channel  type d1 d2 zone output channel  keepSending global
//   C row column type name value min max release autoSend size  status d1 zone output channel
//   L mute mono toggle stack minNote maxNote minVelocity maxVelocity zone output channel transpose key velocity
//     numerator denominator beatSteps lengthSteps arpeggioType sequenceNumber sequenceMode
//   LT tempo tempoSource
//
// In texts "_" stands for a blank and "-" for nothing. A field that is missing or can't be read takes the default.
#pragma once

#include "Backend/core/version2/Version2Reader.h"
#include "Backend/input/KeyConfigurationMap.h"
#include "Backend/input/controls/ControlMap.h"
#include "Backend/midi/layers/LayerList.h"

namespace Backend {

class MirelIF;

// Each takes the lines of its section and adds their contents. The first six fields after the modifiers of a key are
// its down function, the next six its up function, both created from a numeric type.
void readVersion2Keys(Version2Reader& reader, MirelIF& mirel, ComputerInput::KeyConfigurationMap& keys);
void readVersion2Controls(Version2Reader& reader, Controls::ControlMap& controls);
void readVersion2Layers(Version2Reader& reader, const SequenceManagement::SequencePresetManager& sequences,
                        Layers::LayerList& layers, int& tempo, int& tempoSource);

}
