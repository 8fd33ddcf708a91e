#include "Backend/functions/Version2Functions.h"

#include "Backend/core/xml/Text.h"
#include "Backend/functions/ComputerInputPresetNames.h"
#include "Backend/functions/Functions.h"

namespace Backend::FunctionManagement {

using namespace Functions;
using Text::lowByte;

namespace {

struct Record {
    MirelIF& mirel;
    int d1;
    int d2;
    int zone;
    int output;
    int channel;
};

using FunctionPointer = std::unique_ptr<Function>;

template <class Class>
FunctionPointer make(const Record& record) {
    return std::make_unique<Class>(record.mirel);
}

// With all of the record's values that the event has.
template <class Class>
FunctionPointer makeMidi(const Record& record) {
    auto function = std::make_unique<Class>(record.mirel);
    function->setZone(lowByte(record.zone));
    function->setOutput(lowByte(record.output));
    function->setChannel(lowByte(record.channel));
    function->setD1(static_cast<short>(record.d1));
    function->setD2(lowByte(record.d2));
    return function;
}

template <class Class, SelectType::Mode MODE>
FunctionPointer makeSelect(const Record& record) {
    auto function = std::make_unique<Class>(record.mirel);
    function->setSelectType(SelectType(MODE));
    return function;
}

// Transposes what is selected.
template <class Class, int AMOUNT>
FunctionPointer makeTranspose(const Record& record) {
    auto function = std::make_unique<Class>(record.mirel);
    function->setSelectType(SelectType(SelectType::SELECTED));
    function->setValue(RelativeFixedValue(true, AMOUNT));
    return function;
}

template <SelectControlType::Mode MODE>
FunctionPointer makeSelectControl(const Record& record) {
    auto function = std::make_unique<SelectControl>(record.mirel);
    function->setSelectControlType(SelectControlType(MODE));
    return function;
}

FunctionPointer makeChangeControl(const Record& record) {
    auto function = std::make_unique<ChangeControl>(record.mirel);
    const bool hasCell = record.channel == 0;
    function->setSelectControlType(
        hasCell ? SelectControlType(SelectControlType::SPECIFIC, Cell(record.d1 & 15, record.d1 >> 4))
                : SelectControlType(SelectControlType::SELECTED, Cell(0, 0)));
    function->setValue(RelativeFixedValue(record.output == 0, record.d2));
    return function;
}

// Distances are the record's multiplied by these.
template <int X, int Y>
FunctionPointer makeMoveWindow(const Record& record) {
    auto function = std::make_unique<MoveWindowFunction>(record.mirel);
    const auto wideDistance = [&record](int factor) {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(record.d1) * static_cast<std::uint32_t>(factor));
    };
    function->setX(RelativeFixedValue(true, wideDistance(X)));
    function->setY(RelativeFixedValue(true, wideDistance(Y)));
    return function;
}

FunctionPointer makeLoadPreset(const Record& record) {
    const auto index = static_cast<std::size_t>(static_cast<std::int64_t>(record.d1) - 1);
    if (index >= VERSION_2_COMPUTER_INPUT_PRESETS.size())
        return nullptr;
    auto function = std::make_unique<LoadComputerInputPreset>(record.mirel);
    function->setPresetName(VERSION_2_COMPUTER_INPUT_PRESETS[index]);
    return function;
}

FunctionPointer makeSetFocus(const Record& record) {
    auto function = std::make_unique<SetWidgetFocus>(record.mirel);
    function->setSelectControlType(SelectControlType(SelectControlType::SPECIFIC, Cell(record.d1, record.d2)));
    return function;
}

FunctionPointer makeSendAll(const Record& record) {
    auto function = std::make_unique<SendControlData>(record.mirel);
    function->setSelectControlType(SelectControlType(SelectControlType::ALL));
    return function;
}

FunctionPointer makeProgram(const Record& record) {
    auto function = std::make_unique<ChangeProgram>(record.mirel);
    const std::int64_t program = static_cast<std::int64_t>(record.d1) - 1;
    function->setSelectType(SelectType(SelectType::SPECIFIC, static_cast<std::int32_t>(program)));
    return function;
}

FunctionPointer makeNone(const Record&) {
    return nullptr;
}

using Maker = FunctionPointer (*)(const Record&);

// By type.
constexpr std::array<Maker, 54> MAKERS = {
    /*  0 */ makeNone,
    /*  1 */ makeMidi<MidiNoteOn>,
    /*  2 */ makeMidi<MidiNoteOff>,
    /*  3 */ makeMidi<MidiKeyPressure>,
    /*  4 */ makeMidi<MidiControllerChange>,
    /*  5 */ makeMidi<MidiProgramChange>,
    /*  6 */ makeMidi<MidiChannelPressure>,
    /*  7 */ makeMidi<MidiPitchBend>,
    /*  8 */ make<ShowDisplay>,
    /*  9 */ make<ShowMidiInput>,
    /* 10 */ make<ShowComputerInput>,
    /* 11 */ make<ShowControl>,
    /* 12 */ make<ShowOutput>,
    /* 13 */ make<ShowZone>,
    /* 14 */ make<ShowLayer>,
    /* 15 */ makeSelect<ChangeDefaultMidiOutput, SelectType::UP>,
    /* 16 */ makeSelect<ChangeDefaultMidiOutput, SelectType::DOWN>,
    /* 17 */ makeSelect<ChangeProgram, SelectType::UP>,
    /* 18 */ makeSelect<ChangeProgram, SelectType::DOWN>,
    /* 19 */ make<ShowHelp>,
    /* 20 */ makeSelect<EditSelectLayer, SelectType::UP>,
    /* 21 */ makeSelect<EditSelectLayer, SelectType::DOWN>,
    /* 22 */ makeTranspose<ChangeLayerTranspose, 1>,
    /* 23 */ makeTranspose<ChangeLayerTranspose, -1>,
    /* 24 */ makeTranspose<ChangeLayerTranspose, 12>,
    /* 25 */ makeTranspose<ChangeLayerTranspose, -12>,
    /* 26 */ makeTranspose<ChangeZoneTranspose, 1>,
    /* 27 */ makeTranspose<ChangeZoneTranspose, -1>,
    /* 28 */ makeTranspose<ChangeZoneTranspose, 12>,
    /* 29 */ makeTranspose<ChangeZoneTranspose, -12>,
    /* 30 */ makeSelect<SelectZone, SelectType::UP>,
    /* 31 */ makeSelect<SelectZone, SelectType::DOWN>,
    /* 32 */ makeMidi<MidiSystemReset>,
    /* 33 */ makeNone,
    /* 34 */ makeChangeControl,
    /* 35 */ makeSelectControl<SelectControlType::LEFT>,
    /* 36 */ makeSelectControl<SelectControlType::RIGHT>,
    /* 37 */ makeSelectControl<SelectControlType::UP>,
    /* 38 */ makeSelectControl<SelectControlType::DOWN>,
    /* 39 */ makeNone,
    /* 40 */ make<ShowProgramMenu>,
    /* 41 */ make<ShowSaveDialog>,
    /* 42 */ makeMoveWindow<0, -1>,
    /* 43 */ makeMoveWindow<0, 1>,
    /* 44 */ makeMoveWindow<-1, 0>,
    /* 45 */ makeMoveWindow<1, 0>,
    /* 46 */ makeNone,
    /* 47 */ makeNone,
    /* 48 */ makeLoadPreset,
    /* 49 */ makeSetFocus,
    /* 50 */ makeSendAll,
    /* 51 */ make<ResetMirel>,
    /* 52 */ makeProgram,
    /* 53 */ make<ShowSystem>,
};

}

std::unique_ptr<Function> createFromVersion2(MirelIF& mirel, int type, int d1, int d2, int zone, int output,
                                             int channel) {
    if (type < 0 || static_cast<std::size_t>(type) >= MAKERS.size())
        return nullptr;
    return MAKERS[static_cast<std::size_t>(type)]({mirel, d1, d2, zone, output, channel});
}

}
