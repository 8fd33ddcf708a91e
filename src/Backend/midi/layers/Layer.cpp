#include "Backend/midi/layers/Layer.h"

namespace Backend::Layers {

Layer::Layer(const Layer& other)
    : id(other.id),
      selected(other.selected),
      mute(other.mute),
      mono(other.mono),
      solo(other.solo),
      useNoteStack(other.useNoteStack),
      minNote(other.minNote),
      maxNote(other.maxNote),
      minVelocity(other.minVelocity),
      maxVelocity(other.maxVelocity),
      zone(other.zone),
      output(other.output),
      channel(other.channel),
      transpose(other.transpose),
      key(other.key),
      velocity(other.velocity),
      compress(other.compress),
      toggle(other.toggle),
      arpeggio(other.arpeggio ? other.arpeggio->clone() : nullptr),
      sequenceSetting(other.sequenceSetting) {}

Layer& Layer::operator=(const Layer& other) {
    *this = Layer(other);
    return *this;
}

std::string Layer::describe(const std::string& outputName) const {
    std::string text = "L:" + std::to_string(id + 1) + "  Ch:" + std::to_string(channel + 1);
    if (zone >= 0)
        text += "  Z:" + std::to_string(zone + 1);
    if (hasVelocityRange())
        text += "  VR:" + std::to_string(minVelocity) + "-" + std::to_string(maxVelocity);
    if (output >= 0)
        text += "  O:" + outputName;
    if (transpose != RelativeFixedValue()) {
        text += "  T:" + transpose.toXmlString();
        if (key.isNote())
            text += "  K:" + key.getNameWithoutOctave();
    }
    if (velocity != RelativeFixedValue())
        text += "  V:" + velocity.toXmlString();
    if (compress != Fraction())
        text += "  Comp:" + compress.toString();
    if (toggle.getState() == NoteToggle::TYPE1)
        text += "  TOGGLE1";
    if (toggle.getState() == NoteToggle::TYPE2)
        text += "  TOGGLE2";
    if (mono)
        text += "  MONO";
    if (!useNoteStack)
        text += "  STACK OFF";
    if (arpeggio)
        text += "  " + arpeggio->toString();
    return text;
}

}
