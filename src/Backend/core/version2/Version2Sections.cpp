#include "Backend/core/version2/Version2Sections.h"

#include "Backend/core/xml/Text.h"
#include "Backend/functions/Version2Functions.h"
#include "Backend/midi/arpeggios/ArpeggioFactory.h"
#include "Backend/midi/sequences/OldPresets.h"

namespace Backend {

using Text::lowByte;

namespace {

constexpr int NOT_SET = -1;
constexpr char KEYS = 'K';
constexpr char CONTROLS = 'C';
constexpr char LAYERS = 'L';
constexpr std::string_view TEMPO = "LT";

constexpr int SHIFT = 1;
constexpr int CONTROL = 2;
constexpr int ALT = 4;
constexpr int WIN = 8;

std::unique_ptr<FunctionManagement::Function> readFunction(Version2Fields& fields, MirelIF& mirel) {
    const int type = fields.nextNumber(0);
    const int d1 = fields.nextNumber(0);
    const int d2 = fields.nextNumber(0);
    const int zone = fields.nextNumber(NOT_SET);
    const int output = fields.nextNumber(NOT_SET);
    const int channel = fields.nextNumber(NOT_SET);
    return FunctionManagement::createFromVersion2(mirel, type, d1, d2, zone, output, channel);
}

ComputerInput::KeyConfiguration readKey(Version2Fields& fields, MirelIF& mirel) {
    const int code = fields.nextNumber(Key::NO_KEY);
    const int modifiers = fields.nextNumber(0);
    ComputerInput::KeyConfiguration key(
        Key(code, modifiers & SHIFT, modifiers & CONTROL, modifiers & ALT, modifiers & WIN));
    auto down = readFunction(fields, mirel);
    auto up = readFunction(fields, mirel);
    if (down || up) {
        key.setDownFunction(std::move(down), 0);
        key.setUpFunction(std::move(up), 0);
    }
    key.setKeepSending(0, fields.nextFlag(false));
    key.setGlobal(fields.nextFlag(true));
    return key;
}

Controls::ControlType readControlType(Version2Fields& fields) {
    const int kind = fields.nextNumber(Controls::ControlType::NONE);
    if (kind < Controls::ControlType::NONE || kind > Controls::ControlType::LABEL)
        return Controls::ControlType();
    return Controls::ControlType(static_cast<Controls::ControlType::Kind>(kind));
}

Controls::Control readControl(Version2Fields& fields) {
    Controls::Control control;
    const int row = fields.nextNumber(NOT_SET);
    control.cell = Cell(row, fields.nextNumber(NOT_SET));
    control.type = readControlType(fields);
    control.name = fields.nextText();
    control.value = fields.nextNumber(control.value);
    control.min = fields.nextNumber(control.min);
    control.max = fields.nextNumber(control.max);
    control.release = fields.nextNumber(control.release);
    control.autoSend = fields.nextFlag(control.autoSend);
    control.size = fields.nextNumber(control.size);
    const auto status = static_cast<MidiEngine::MidiMessage::MessageType>(fields.nextNumber(0));
    Controls::ControlEvent event(MidiEngine::MidiMessage(status, lowByte(fields.nextNumber(0))));
    event.zone = lowByte(fields.nextNumber(NOT_SET));
    event.output = lowByte(fields.nextNumber(NOT_SET));
    event.channel = lowByte(fields.nextNumber(NOT_SET));
    if (event.midiMessage.isValid())
        control.events.push_back(event);
    return control;
}

NoteToggle readToggle(Version2Fields& fields) {
    const int state = fields.nextNumber(NoteToggle::OFF);
    return state == NoteToggle::TYPE1 || state == NoteToggle::TYPE2 ? NoteToggle(static_cast<NoteToggle::State>(state))
                                                                    : NoteToggle();
}

// A number or a name; anything that begins as neither is not a note.
Note readNote(Version2Fields& fields, const Note& defaultNote) {
    constexpr std::string_view FIRST_CHARACTERS = "0123456789ABCDEFGabcdefg";
    const std::string text = fields.nextText();
    const bool isNote = !text.empty() && FIRST_CHARACTERS.find(text.front()) != std::string_view::npos;
    return isNote ? Note(std::string_view(text)) : defaultNote;
}

RelativeFixedValue readAmount(Version2Fields& fields) {
    const std::string text = fields.nextText();
    return Text::readInteger(text) ? RelativeFixedValue(text) : RelativeFixedValue();
}

Layers::Layer readLayer(Version2Fields& fields, const SequenceManagement::SequencePresetManager& sequences) {
    Layers::Layer layer;
    layer.mute = fields.nextFlag(layer.mute);
    layer.mono = fields.nextFlag(layer.mono);
    layer.toggle = readToggle(fields);
    layer.useNoteStack = fields.nextFlag(layer.useNoteStack);
    layer.minNote = readNote(fields, layer.minNote);
    layer.maxNote = readNote(fields, layer.maxNote);
    layer.minVelocity = lowByte(fields.nextNumber(layer.minVelocity));
    layer.maxVelocity = lowByte(fields.nextNumber(layer.maxVelocity));
    layer.zone = lowByte(fields.nextNumber(layer.zone));
    layer.output = lowByte(fields.nextNumber(layer.output));
    layer.channel = lowByte(fields.nextNumber(layer.channel));
    layer.transpose = readAmount(fields);
    if (const int key = fields.nextNumber(NOT_SET); key >= 0)
        layer.key = Note(static_cast<std::uint8_t>(key));
    layer.velocity = readAmount(fields);
    const int numerator = fields.nextNumber(1);
    layer.compress = Fraction(numerator, fields.nextNumber(1));
    const int beatSteps = fields.nextNumber(0);
    const int lengthSteps = fields.nextNumber(0);
    layer.arpeggio = ArpeggioManagement::createArpeggio(beatSteps, lengthSteps, fields.nextNumber(NOT_SET));
    const int sequence = fields.nextNumber(NOT_SET);
    layer.sequenceSetting = SequenceManagement::importSequenceSetting(sequence, fields.nextNumber(0), sequences);
    return layer;
}

// No real section has more records; those beyond are skipped.
constexpr int MAX_RECORDS = 10000;

// Calls read with the fields of each line of a section, after its letter.
template <class Read>
void readSection(Version2Reader& reader, char letter, Read read) {
    for (int records = 0; reader.isAt(letter); reader.nextLine()) {
        if (++records > MAX_RECORDS)
            continue;
        Version2Fields fields(reader.getLine());
        const std::string_view tag = fields.next();
        read(tag, fields);
    }
}

}

void readVersion2Keys(Version2Reader& reader, MirelIF& mirel, ComputerInput::KeyConfigurationMap& keys) {
    readSection(reader, KEYS, [&](std::string_view, Version2Fields& fields) { keys.set(readKey(fields, mirel)); });
}

void readVersion2Controls(Version2Reader& reader, Controls::ControlMap& controls) {
    readSection(reader, CONTROLS, [&](std::string_view, Version2Fields& fields) { controls.set(readControl(fields)); });
}

void readVersion2Layers(Version2Reader& reader, const SequenceManagement::SequencePresetManager& sequences,
                        Layers::LayerList& layers, int& tempo, int& tempoSource) {
    readSection(reader, LAYERS, [&](std::string_view tag, Version2Fields& fields) {
        if (tag != TEMPO) {
            layers.add(readLayer(fields, sequences));
            return;
        }
        tempo = fields.nextNumber(tempo);
        tempoSource = fields.nextNumber(tempoSource);
    });
}

}
