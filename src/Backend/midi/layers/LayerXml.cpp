// How a layer is stored.
#include "Backend/core/xml/ElementWriter.h"
#include "Backend/core/xml/Text.h"
#include "Backend/midi/arpeggios/ArpeggioFactory.h"
#include "Backend/midi/layers/Layer.h"

namespace Backend::Layers {

namespace {

// The first known kind counts.
std::unique_ptr<ArpeggioManagement::Arpeggio> readArpeggio(const XmlElement& element) {
    for (auto child = element.begin(); child != element.end(); child.next()) {
        auto arpeggio = ArpeggioManagement::createArpeggio(child.getName());
        if (!arpeggio)
            continue;
        readAttributes(child, *arpeggio);
        return arpeggio;
    }
    return nullptr;
}

}

Layer::Layer(const XmlElement& element, const SequenceManagement::SequencePresetManager& presets) : Layer() {
    readAttributes(element, *this);
    for (auto child = element.begin(); child != element.end(); child.next()) {
        if (child.getName() == ArpeggioManagement::Arpeggio::TAG)
            arpeggio = readArpeggio(child);
        else if (child.getName() == SequenceManagement::SequenceSetting::TAG)
            sequenceSetting = SequenceManagement::SequenceSetting(child, presets);
    }
}

void Layer::writeXml(std::ostream& stream, int indent) const {
    const ElementWriter layer(stream, indent, TAG, *this);
    if (arpeggio)
        layer.begin(ArpeggioManagement::Arpeggio::TAG).write(*arpeggio);
    if (sequenceSetting.getSequence().hasNodes())
        layer.write(sequenceSetting);
}

RelativeFixedValue Layer::readChange(const std::string& text) {
    return Text::readInteger(text) ? RelativeFixedValue(text) : RelativeFixedValue();
}

}
