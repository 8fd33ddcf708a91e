#include "Backend/functions/Functions.h"
#include "Backend/functions/Version2Functions.h"
#include "tests/support/FakeHost.h"
#include "tests/support/FunctionRows.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

using namespace Backend::FunctionManagement;

class Version2FunctionsTest : public testing::Test {
protected:
    // The element that a record becomes; empty for none.
    std::string make(int type, int d1, int d2, int zone = -1, int output = -1, int channel = -1) {
        const auto function = createFromVersion2(m_host.mirel(), type, d1, d2, zone, output, channel);
        return function ? TestSupport::write(*function) : std::string();
    }

    TestSupport::FakeHost m_host;
};

constexpr int TYPES = 61;  // More than there are.

// What each type makes of d1 5, d2 6, zone 1, output 2, channel 3. Types beyond the last make nothing.
const std::string MADE[TYPES] = {
    /*  0 */ "",
    /*  1 */ R"(<MidiNoteOn zone="1" output="2" channel="3" note="F-1" velocity="6"/>)",
    /*  2 */ R"(<MidiNoteOff zone="1" output="2" channel="3" note="F-1" velocity="6"/>)",
    /*  3 */ R"(<MidiKeyPressure zone="1" output="2" channel="3" key="5" pressure="6"/>)",
    /*  4 */ R"(<MidiControllerChange zone="1" output="2" channel="3" controller="5" value="6"/>)",
    /*  5 */ R"(<ProgramChange zone="1" output="2" channel="3" program="5"/>)",
    /*  6 */ R"(<MidiChannelPressure zone="1" output="2" channel="3" pressure="5"/>)",
    /*  7 */ R"(<MidiPitchBend zone="1" output="2" channel="3" value="5"/>)",
    /*  8 */ R"(<ShowDisplay type="toggle"/>)",
    /*  9 */ R"(<ShowMidiInput type="toggle"/>)",
    /* 10 */ R"(<ShowComputerInput type="toggle"/>)",
    /* 11 */ R"(<ShowControl type="toggle"/>)",
    /* 12 */ R"(<ShowOutput type="toggle"/>)",
    /* 13 */ R"(<ShowZone type="toggle"/>)",
    /* 14 */ R"(<ShowLayer type="toggle"/>)",
    /* 15 */ R"(<ChangeDefaultMidiOutput type="up"/>)",
    /* 16 */ R"(<ChangeDefaultMidiOutput type="down"/>)",
    /* 17 */ R"(<ChangeProgram type="up"/>)",
    /* 18 */ R"(<ChangeProgram type="down"/>)",
    /* 19 */ R"(<ShowHelp type="toggle"/>)",
    /* 20 */ R"(<EditSelectLayer type="up"/>)",
    /* 21 */ R"(<EditSelectLayer type="down"/>)",
    /* 22 */ R"(<ChangeLayerTranspose type="selected" value="+1"/>)",
    /* 23 */ R"(<ChangeLayerTranspose type="selected" value="-1"/>)",
    /* 24 */ R"(<ChangeLayerTranspose type="selected" value="+12"/>)",
    /* 25 */ R"(<ChangeLayerTranspose type="selected" value="-12"/>)",
    /* 26 */ R"(<ChangeZoneTranspose type="selected" value="+1"/>)",
    /* 27 */ R"(<ChangeZoneTranspose type="selected" value="-1"/>)",
    /* 28 */ R"(<ChangeZoneTranspose type="selected" value="+12"/>)",
    /* 29 */ R"(<ChangeZoneTranspose type="selected" value="-12"/>)",
    /* 30 */ R"(<SelectZone type="up"/>)",
    /* 31 */ R"(<SelectZone type="down"/>)",
    /* 32 */ R"(<MidiSystemReset zone="1" output="2"/>)",
    /* 33 */ "",
    /* 34 */ R"(<ChangeControl type="selected" value="6"/>)",
    /* 35 */ R"(<SelectControl type="left"/>)",
    /* 36 */ R"(<SelectControl type="right"/>)",
    /* 37 */ R"(<SelectControl type="up"/>)",
    /* 38 */ R"(<SelectControl type="down"/>)",
    /* 39 */ "",
    /* 40 */ "<ShowProgramMenu/>",
    /* 41 */ "<ShowSaveDialog/>",
    /* 42 */ R"(<MoveWindow x="" y="-5"/>)",
    /* 43 */ R"(<MoveWindow x="" y="+5"/>)",
    /* 44 */ R"(<MoveWindow x="-5" y=""/>)",
    /* 45 */ R"(<MoveWindow x="+5" y=""/>)",
    /* 46 */ "",
    /* 47 */ "",
    /* 48 */ R"(<LoadComputerInputPreset preset="005 - Zone 2 Position V"/>)",
    /* 49 */ R"(<SetWidgetFocus type="5,6"/>)",
    /* 50 */ R"(<SendControlData type="all"/>)",
    /* 51 */ "<ResetMirel/>",
    /* 52 */ R"(<ChangeProgram type="4"/>)",
    /* 53 */ R"(<ShowSystem type="toggle"/>)",
};

TEST_F(Version2FunctionsTest, EachTypeMakesItsFunction) {
    for (int type = 0; type < TYPES; ++type)
        EXPECT_EQ(make(type, 5, 6, 1, 2, 3), MADE[type]) << type;
}

TEST_F(Version2FunctionsTest, OtherTypesMakeNothing) {
    for (const int type : {-1, -53, 54, 61, 128, 256, 257, 1000, INT32_MAX, INT32_MIN})
        EXPECT_EQ(make(type, 5, 6, 1, 2, 3), "") << type;
}

TEST_F(Version2FunctionsTest, EventsWithoutRoutingHaveNone) {
    EXPECT_EQ(make(1, 60, 100), R"(<MidiNoteOn note="C4" velocity="100"/>)");
    EXPECT_EQ(make(7, 16383, 0), R"(<MidiPitchBend value="16383"/>)");
    EXPECT_EQ(make(32, 0, 0), "<MidiSystemReset/>");
}

TEST_F(Version2FunctionsTest, NumbersKeepTheLowBitsOfTheirField) {
    EXPECT_EQ(make(1, 316, 356, 257, 258, 259),
              R"(<MidiNoteOn zone="1" output="2" channel="3" note="C4" velocity="100"/>)");
    EXPECT_EQ(make(7, 65536 + 8192, 0), R"(<MidiPitchBend value="8192"/>)");
}

TEST_F(Version2FunctionsTest, ChangeControlTakesACellWithChannelZeroOnly) {
    EXPECT_EQ(make(34, 0x23, 6, 0, 1, 0), R"(<ChangeControl type="3,2" value="6"/>)");
    EXPECT_EQ(make(34, 0xff, 6, 0, 1, 0), R"(<ChangeControl type="15,15" value="6"/>)");
    for (const int channel : {-1, 1, 16})
        EXPECT_EQ(make(34, 0x23, 6, 0, 1, channel), R"(<ChangeControl type="selected" value="6"/>)");
    const auto selected = createFromVersion2(m_host.mirel(), 34, 0x23, 6, 0, 1, 1);
    EXPECT_EQ(dynamic_cast<SelectControlSettingsType&>(*selected).getSelectControlType().getCell(), Cell(0, 0));
}

TEST_F(Version2FunctionsTest, ChangeControlIsRelativeWithOutputZeroOnly) {
    EXPECT_EQ(make(34, 0, 6, 0, 0, 1), R"(<ChangeControl type="selected" value="+6"/>)");
    EXPECT_EQ(make(34, 0, -6, 0, 0, 1), R"(<ChangeControl type="selected" value="-6"/>)");
    EXPECT_EQ(make(34, 0, 0, 0, 0, 1), R"(<ChangeControl type="selected" value=""/>)");
    for (const int output : {-1, 1})
        EXPECT_EQ(make(34, 0, 0, 0, output, 1), R"(<ChangeControl type="selected" value="0"/>)");
}

TEST_F(Version2FunctionsTest, MoveWindowTurnsWithTheSignOfItsDistance) {
    EXPECT_EQ(make(42, -3, 0), R"(<MoveWindow x="" y="+3"/>)");
    EXPECT_EQ(make(45, -3, 0), R"(<MoveWindow x="-3" y=""/>)");
    EXPECT_EQ(make(43, 0, 0), R"(<MoveWindow x="" y=""/>)");
    EXPECT_EQ(make(42, INT32_MIN, 0), R"(<MoveWindow x="" y="-2147483648"/>)");
}

TEST_F(Version2FunctionsTest, ProgramsCountFromOne) {
    EXPECT_EQ(make(52, 1, 0), R"(<ChangeProgram type="0"/>)");
    EXPECT_EQ(make(52, 0, 0), R"(<ChangeProgram type="-1"/>)");
    EXPECT_FALSE(make(52, INT32_MIN, 0).empty());
}

TEST_F(Version2FunctionsTest, PresetsHaveNumbers) {
    const std::string positions[] = {"I", "II", "III", "IV", "V", "VI", "VII"};
    for (int number = 1; number <= 28; ++number) {
        const std::string digits = std::to_string(number);
        const std::string name = std::string(3 - digits.size(), '0') + digits + " - Zone " +
                                 (number <= 14 ? "2" : "1") + " Position " + positions[(number - 1) % 7] +
                                 ((number - 1) / 7 % 2 == 1 ? " (down an octave)" : "");
        EXPECT_EQ(make(48, number, 0), R"(<LoadComputerInputPreset preset=")" + name + R"("/>)");
    }
    EXPECT_EQ(make(48, 29, 0), R"(<LoadComputerInputPreset preset="000 - Default"/>)");
    for (const int number : {0, 30, -1, 256, INT32_MIN, INT32_MAX})
        EXPECT_EQ(make(48, number, 0), "") << number;
}

TEST_F(Version2FunctionsTest, WhatIsMadeIsReadBack) {
    for (int type = 0; type < TYPES; ++type) {
        const auto function = createFromVersion2(m_host.mirel(), type, 5, 6, 1, 2, 3);
        if (!function)
            continue;
        const auto read = TestSupport::readFunction(TestSupport::write(*function), m_host.mirel());
        ASSERT_TRUE(read) << type;
        EXPECT_EQ(TestSupport::write(*read), MADE[type]);
    }
}

}
