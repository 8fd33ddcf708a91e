#include "Host/cli/check/FileFormats.h"

#include "Backend/core/files/BankFile.h"
#include "Backend/core/files/Program.h"
#include "Backend/core/xml/Text.h"
#include "Backend/input/KeyConfigurationMap.h"
#include "Backend/input/KeyListElement.h"
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

// Keys

constexpr ElementFormat DOWN{.tag = ButtonConfiguration::DOWN_TAG, .holdsFunction = true, .firstChildCounts = true};
constexpr ElementFormat UP{.tag = ButtonConfiguration::UP_TAG, .holdsFunction = true, .firstChildCounts = true};

constexpr std::array KEY_FUNCTION_CHILDREN = {
    ChildFormat{&DOWN, SOMETIMES, FIRST},
    ChildFormat{&UP, SOMETIMES, FIRST},
};
constexpr ElementFormat KEY_FUNCTION{.tag = ButtonConfiguration::FUNCTION_TAG,
                                     .attributes = attributesOf<ButtonFunction>,
                                     .children = KEY_FUNCTION_CHILDREN};

constexpr std::array KEY_CHILDREN = {ChildFormat{&KEY_FUNCTION}};
constexpr ElementFormat KEY_ELEMENT{.tag = ComputerInput::KeyConfiguration::TAG,
                                    .attributes = attributesOf<ComputerInput::KeyConfiguration>,
                                    .children = KEY_CHILDREN,
                                    .identity = identityOfKey};

constexpr std::array KEYS_CHILDREN = {ChildFormat{&KEY_ELEMENT}};
constexpr ElementFormat KEYS{.tag = ComputerInput::KeyConfigurationMap::TAG,
                             .attributes = attributesOf<ComputerInput::KeyListElement>,
                             .children = KEYS_CHILDREN};
constexpr ElementFormat PROGRAM_KEYS{.tag = ComputerInput::KeyConfigurationMap::TAG,
                                     .attributes = attributesOf<ComputerInput::ProgramKeysElement>,
                                     .children = KEYS_CHILDREN,
                                     .more = &FileCheck::checkKeysOfProgram};

// Controls

constexpr ElementFormat CONTROL_EVENT{.tag = Controls::ControlEvent::TAG,
                                      .attributes = attributesOf<Controls::ControlEvent>};

constexpr std::array CONTROL_CHILDREN = {ChildFormat{&CONTROL_EVENT}};
constexpr ElementFormat CONTROL{.tag = Controls::Control::TAG,
                                .attributes = attributesOf<Controls::Control>,
                                .children = CONTROL_CHILDREN,
                                .identity = identityOfCell,
                                .more = &FileCheck::checkRangeOfControl};

constexpr std::array CONTROLS_CHILDREN = {ChildFormat{&CONTROL}};
constexpr ElementFormat CONTROLS{
    .tag = Controls::ControlMap::TAG, .attributes = attributesOf<ListElement>, .children = CONTROLS_CHILDREN};

// Layers

constexpr ElementFormat SEQUENCE{
    .tag = SequenceManagement::Sequence::TAG, .holdsText = true, .more = &FileCheck::checkSequence};

constexpr std::array SEQUENCE_SETTING_CHILDREN = {ChildFormat{&SEQUENCE, SOMETIMES, FIRST}};
constexpr ElementFormat SEQUENCE_SETTING{.tag = SequenceManagement::SequenceSetting::TAG,
                                         .attributes = attributesOf<SequenceManagement::SequenceSetting>,
                                         .children = SEQUENCE_SETTING_CHILDREN,
                                         .more = &FileCheck::checkSequenceSetting};

template <class Kind>
constexpr ElementFormat ARPEGGIO_OF{.tag = Kind::TYPE_NAME, .attributes = attributesOf<Kind>};
constexpr std::array ARPEGGIO_CHILDREN = {
    ChildFormat{&ARPEGGIO_OF<Arpeggios::ChordArpeggio>},
    ChildFormat{&ARPEGGIO_OF<Arpeggios::UpArpeggio>},
    ChildFormat{&ARPEGGIO_OF<Arpeggios::DownArpeggio>},
    ChildFormat{&ARPEGGIO_OF<Arpeggios::UpDownArpeggio>},
};
constexpr ElementFormat ARPEGGIO{
    .tag = ArpeggioManagement::Arpeggio::TAG, .children = ARPEGGIO_CHILDREN, .firstChildCounts = true};

constexpr std::array LAYER_CHILDREN = {
    ChildFormat{&ARPEGGIO, SOMETIMES, LAST},
    ChildFormat{&SEQUENCE_SETTING, SOMETIMES, LAST},
};
constexpr ElementFormat LAYER{
    .tag = Layers::Layer::TAG, .attributes = attributesOf<Layers::Layer>, .children = LAYER_CHILDREN};
constexpr std::array LAYERS_CHILDREN = {ChildFormat{&LAYER}};
constexpr ElementFormat LAYERS{
    .tag = Layers::LayerList::TAG, .attributes = attributesOf<ListElement>, .children = LAYERS_CHILDREN};

// Zones

constexpr ElementFormat ZONE{
    .tag = Zones::Zone::TAG, .attributes = attributesOf<Zones::Zone>, .identity = identityOfZone};
constexpr std::array ZONES_CHILDREN = {ChildFormat{&ZONE}};
constexpr ElementFormat ZONES{
    .tag = Zones::ZoneMap::TAG, .attributes = attributesOf<Zones::ZonesElement>, .children = ZONES_CHILDREN};

// Programs

constexpr std::array PROGRAM_CHILDREN = {
    ChildFormat{&PROGRAM_KEYS, WITH_CHILDREN, LAST},
    ChildFormat{&CONTROLS, WITH_CHILDREN, LAST},
    ChildFormat{&LAYERS, WITH_CHILDREN, LAST},
    ChildFormat{&ZONES, WITH_CHILDREN, LAST},
};
constexpr ElementFormat PROGRAM{
    .tag = BankFile::PROGRAM_TAG, .attributes = attributesOf<Program>, .children = PROGRAM_CHILDREN};

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
