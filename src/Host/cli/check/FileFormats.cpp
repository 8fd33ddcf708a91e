#include "Host/cli/check/FileFormats.h"

#include "Backend/core/files/BankFile.h"
#include "Backend/core/xml/Text.h"
#include "Backend/input/KeyConfigurationMap.h"
#include "Backend/input/controls/ControlMap.h"
#include "Backend/midi/arpeggios/ChordArpeggio.h"
#include "Backend/midi/arpeggios/DownArpeggio.h"
#include "Backend/midi/arpeggios/UpArpeggio.h"
#include "Backend/midi/arpeggios/UpDownArpeggio.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "Host/cli/check/FileCheck.h"

#include <array>

namespace Host::Cli {

using namespace Backend;
namespace Arpeggios = ArpeggioManagement::Arpeggios;
using enum Written;
using enum Counts;

namespace {

std::int64_t identityOfKey(const std::string& id) {
    return Key(std::string_view(id)).getIdentity();
}

std::int64_t identityOfCell(const std::string& cell) {
    return Cell(std::string_view(cell)).getKey();
}

std::int64_t identityOfZone(const std::string& id) {
    return Text::lowByte(Text::readInteger(id, 0));
}

constexpr AttributeRule CHANNEL_NUMBER = number(-1, 15);
constexpr AttributeRule BYTE_OR_NONE = number(-1, 127);
constexpr AttributeRule VELOCITY = number(0, 127);
constexpr AttributeRule TEMPO = number(20, 250);

// Keys

constexpr ElementFormat DOWN{.tag = ButtonConfiguration::DOWN_TAG, .holdsFunction = true, .firstChildCounts = true};
constexpr ElementFormat UP{.tag = ButtonConfiguration::UP_TAG, .holdsFunction = true, .firstChildCounts = true};

constexpr std::array KEY_FUNCTION_ATTRIBUTES = {
    AttributeFormat{"keepSending", ALWAYS, "false", BOOLEAN},
};
constexpr std::array KEY_FUNCTION_CHILDREN = {
    ChildFormat{&DOWN, SOMETIMES, FIRST},
    ChildFormat{&UP, SOMETIMES, FIRST},
};
constexpr ElementFormat KEY_FUNCTION{
    .tag = ButtonConfiguration::FUNCTION_TAG, .attributes = KEY_FUNCTION_ATTRIBUTES, .children = KEY_FUNCTION_CHILDREN};

constexpr std::array KEY_ATTRIBUTES = {
    AttributeFormat{"id", ALWAYS, "", KEY},
    AttributeFormat{"global", ALWAYS, "true", BOOLEAN},
};
constexpr std::array KEY_CHILDREN = {ChildFormat{&KEY_FUNCTION}};
constexpr ElementFormat KEY_ELEMENT{.tag = ComputerInput::KeyConfiguration::TAG,
                                    .attributes = KEY_ATTRIBUTES,
                                    .children = KEY_CHILDREN,
                                    .idAttribute = "id",
                                    .identity = identityOfKey};

// A program's keys may be those of a preset. What an import writes has no useKeyUpMod.
constexpr std::array KEYS_ATTRIBUTES = {
    AttributeFormat{"merge", ALWAYS, "false", BOOLEAN},
    AttributeFormat{"useKeyUpMod", SOMETIMES, "false", BOOLEAN},
};
constexpr std::array PROGRAM_KEYS_ATTRIBUTES = {
    AttributeFormat{"preset", SOMETIMES, "", ANY_TEXT},
    AttributeFormat{"merge", ALWAYS, "false", BOOLEAN},
    AttributeFormat{"useKeyUpMod", SOMETIMES, "false", BOOLEAN},
};
constexpr std::array KEYS_CHILDREN = {ChildFormat{&KEY_ELEMENT}};
constexpr ElementFormat KEYS{
    .tag = ComputerInput::KeyConfigurationMap::TAG, .attributes = KEYS_ATTRIBUTES, .children = KEYS_CHILDREN};
constexpr ElementFormat PROGRAM_KEYS{.tag = ComputerInput::KeyConfigurationMap::TAG,
                                     .attributes = PROGRAM_KEYS_ATTRIBUTES,
                                     .children = KEYS_CHILDREN,
                                     .more = &FileCheck::checkKeysOfProgram};

// Controls

constexpr std::array CONTROL_EVENT_ATTRIBUTES = {
    AttributeFormat{"midiEvent", ALWAYS, "", MIDI_EVENT},
    AttributeFormat{"output", ALWAYS, "-1", BYTE_OR_NONE},
    AttributeFormat{"channel", ALWAYS, "-1", CHANNEL_NUMBER},
    AttributeFormat{"zone", ALWAYS, "-1", BYTE_OR_NONE},
};
constexpr ElementFormat CONTROL_EVENT{.tag = Controls::ControlEvent::TAG, .attributes = CONTROL_EVENT_ATTRIBUTES};

constexpr std::array CONTROL_ATTRIBUTES = {
    AttributeFormat{"cell", ALWAYS, "-1,-1", CELL},      AttributeFormat{"type", ALWAYS, "", CONTROL_TYPE},
    AttributeFormat{"name", ALWAYS, "", ANY_TEXT},       AttributeFormat{"value", ALWAYS, "0", number()},
    AttributeFormat{"min", ALWAYS, "0", number()},       AttributeFormat{"max", ALWAYS, "127", number()},
    AttributeFormat{"release", ALWAYS, "-1", number()},  AttributeFormat{"autoSend", ALWAYS, "false", BOOLEAN},
    AttributeFormat{"size", ALWAYS, "1", number(1, 16)},
};
constexpr std::array CONTROL_CHILDREN = {ChildFormat{&CONTROL_EVENT}};
constexpr ElementFormat CONTROL{.tag = Controls::Control::TAG,
                                .attributes = CONTROL_ATTRIBUTES,
                                .children = CONTROL_CHILDREN,
                                .idAttribute = "cell",
                                .identity = identityOfCell,
                                .more = &FileCheck::checkRangeOfControl};

constexpr std::array MERGE_ATTRIBUTES = {AttributeFormat{"merge", ALWAYS, "false", BOOLEAN}};
constexpr std::array CONTROLS_CHILDREN = {ChildFormat{&CONTROL}};
constexpr ElementFormat CONTROLS{
    .tag = Controls::ControlMap::TAG, .attributes = MERGE_ATTRIBUTES, .children = CONTROLS_CHILDREN};

// Layers

constexpr ElementFormat SEQUENCE{
    .tag = SequenceManagement::Sequence::TAG, .holdsText = true, .more = &FileCheck::checkSequence};

constexpr std::array SEQUENCE_SETTING_ATTRIBUTES = {
    AttributeFormat{"preset", ALWAYS, "", ANY_TEXT},
    AttributeFormat{"useNote", ALWAYS, "true", BOOLEAN},
    AttributeFormat{"useVelocity", ALWAYS, "true", BOOLEAN},
    AttributeFormat{"useLength", ALWAYS, "true", BOOLEAN},
};
constexpr std::array SEQUENCE_SETTING_CHILDREN = {ChildFormat{&SEQUENCE, SOMETIMES, FIRST}};
constexpr ElementFormat SEQUENCE_SETTING{.tag = SequenceManagement::SequenceSetting::TAG,
                                         .attributes = SEQUENCE_SETTING_ATTRIBUTES,
                                         .children = SEQUENCE_SETTING_CHILDREN,
                                         .more = &FileCheck::checkSequenceSetting};

constexpr std::array ARPEGGIO_ATTRIBUTES = {
    AttributeFormat{"beat", ALWAYS, "480", number(1)},
    AttributeFormat{"length", ALWAYS, "480", number(0)},
};
constexpr ElementFormat CHORD_ARPEGGIO{.tag = Arpeggios::ChordArpeggio::TYPE_NAME, .attributes = ARPEGGIO_ATTRIBUTES};
constexpr ElementFormat UP_ARPEGGIO{.tag = Arpeggios::UpArpeggio::TYPE_NAME, .attributes = ARPEGGIO_ATTRIBUTES};
constexpr ElementFormat DOWN_ARPEGGIO{.tag = Arpeggios::DownArpeggio::TYPE_NAME, .attributes = ARPEGGIO_ATTRIBUTES};
constexpr ElementFormat UP_DOWN_ARPEGGIO{.tag = Arpeggios::UpDownArpeggio::TYPE_NAME,
                                         .attributes = ARPEGGIO_ATTRIBUTES};
constexpr std::array ARPEGGIO_CHILDREN = {
    ChildFormat{&CHORD_ARPEGGIO},
    ChildFormat{&UP_ARPEGGIO},
    ChildFormat{&DOWN_ARPEGGIO},
    ChildFormat{&UP_DOWN_ARPEGGIO},
};
constexpr ElementFormat ARPEGGIO{
    .tag = ArpeggioManagement::Arpeggio::TAG, .children = ARPEGGIO_CHILDREN, .firstChildCounts = true};

constexpr std::array LAYER_ATTRIBUTES = {
    AttributeFormat{"mute", ALWAYS, "false", BOOLEAN},       AttributeFormat{"mono", ALWAYS, "false", BOOLEAN},
    AttributeFormat{"toggle", ALWAYS, "off", NOTE_TOGGLE},   AttributeFormat{"useNoteStack", ALWAYS, "true", BOOLEAN},
    AttributeFormat{"minNote", ALWAYS, "C-1", NOTE},         AttributeFormat{"maxNote", ALWAYS, "G9", NOTE},
    AttributeFormat{"minVelocity", ALWAYS, "0", VELOCITY},   AttributeFormat{"maxVelocity", ALWAYS, "127", VELOCITY},
    AttributeFormat{"zone", ALWAYS, "-1", BYTE_OR_NONE},     AttributeFormat{"output", ALWAYS, "-1", BYTE_OR_NONE},
    AttributeFormat{"channel", ALWAYS, "0", CHANNEL_NUMBER}, AttributeFormat{"transpose", ALWAYS, "", AMOUNT},
    AttributeFormat{"key", ALWAYS, "", NOTE_OR_NONE},        AttributeFormat{"velocity", ALWAYS, "", AMOUNT},
    AttributeFormat{"compress", ALWAYS, "1_1", FRACTION},
};
constexpr std::array LAYER_CHILDREN = {
    ChildFormat{&ARPEGGIO, SOMETIMES, LAST},
    ChildFormat{&SEQUENCE_SETTING, SOMETIMES, LAST},
};
constexpr ElementFormat LAYER{.tag = Layers::Layer::TAG, .attributes = LAYER_ATTRIBUTES, .children = LAYER_CHILDREN};
constexpr std::array LAYERS_CHILDREN = {ChildFormat{&LAYER}};
constexpr ElementFormat LAYERS{
    .tag = Layers::LayerList::TAG, .attributes = MERGE_ATTRIBUTES, .children = LAYERS_CHILDREN};

// Zones

constexpr std::array ZONE_ATTRIBUTES = {
    AttributeFormat{"id", ALWAYS, "0", number(0, Zones::MAX_ZONE)},
    AttributeFormat{"transpose", ALWAYS, "0", number(-128, 127)},
};
constexpr ElementFormat ZONE{
    .tag = Zones::Zone::TAG, .attributes = ZONE_ATTRIBUTES, .idAttribute = "id", .identity = identityOfZone};
constexpr std::array ZONES_ATTRIBUTES = {AttributeFormat{"merge", ALWAYS, "false", FALSE_ALONE}};
constexpr std::array ZONES_CHILDREN = {ChildFormat{&ZONE}};
constexpr ElementFormat ZONES{.tag = Zones::ZoneMap::TAG, .attributes = ZONES_ATTRIBUTES, .children = ZONES_CHILDREN};

// Programs. One that holds nothing yet has but its name.

constexpr std::array PROGRAM_ATTRIBUTES = {
    AttributeFormat{"name", ALWAYS, "", ANY_TEXT},
    AttributeFormat{"tempo", WITH_CHILDREN, "120", TEMPO},
    AttributeFormat{"tempoSource", WITH_CHILDREN, "-1", BYTE_OR_NONE},
};
constexpr std::array PROGRAM_CHILDREN = {
    ChildFormat{&PROGRAM_KEYS, WITH_CHILDREN, LAST},
    ChildFormat{&CONTROLS, WITH_CHILDREN, LAST},
    ChildFormat{&LAYERS, WITH_CHILDREN, LAST},
    ChildFormat{&ZONES, WITH_CHILDREN, LAST},
};
constexpr ElementFormat PROGRAM{
    .tag = BankFile::PROGRAM_TAG, .attributes = PROGRAM_ATTRIBUTES, .children = PROGRAM_CHILDREN};

// Files

constexpr std::array BANK_CHILDREN = {ChildFormat{&PROGRAM}};
constexpr std::array PROGRAM_FILE_CHILDREN = {ChildFormat{&PROGRAM, ALWAYS, FIRST}};

constexpr std::array FILES = {
    ElementFormat{.tag = BankFile::BANK_TAG, .children = BANK_CHILDREN, .more = &FileCheck::checkLinesOfBank},
    ElementFormat{.tag = BankFile::PROGRAM_FILE_TAG, .children = PROGRAM_FILE_CHILDREN},
    ElementFormat{.tag = BankFile::PROGRAM_TEXT_TAG,
                  .children = PROGRAM_FILE_CHILDREN,
                  .more = &FileCheck::checkFirstChildIsProgram},
    KEYS,
    CONTROLS,
    LAYERS,
    ZONES,
    SEQUENCE,
};

}

const ElementFormat* findFileFormat(std::string_view rootTag) {
    for (const ElementFormat& format : FILES)
        if (rootTag == format.tag)
            return &format;
    return nullptr;
}

}
