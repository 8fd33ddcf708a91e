#include "Backend/input/controls/Control.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/input/controls/ControlManager.h"
#include "Backend/midi/engine/MidiEngine.h"
#include "tests/support/DataTable.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

#include <climits>
#include <sstream>
#include <string>
#include <vector>

namespace Backend::Controls {
namespace {

using MidiEngine::MidiMessage;
using MidiEngine::MirelMidiMessage;
using Strings = std::vector<std::string>;

TEST(ControlTypeTest, EachKindHasItsText) {
    const char* const texts[] = {"", "edit", "vfader", "hfader", "knob", "label"};
    for (int kind = 0; kind < 6; ++kind) {
        EXPECT_EQ(ControlType(texts[kind]).getKind(), kind);
        EXPECT_EQ(ControlType(static_cast<ControlType::Kind>(kind)).toXmlString(), texts[kind]);
        EXPECT_EQ(ControlType(static_cast<ControlType::Kind>(kind)).hasValue(), kind != 0 && kind != 5);
    }
}

TEST(ControlTypeTest, TextsAreTrimmedAndCaseCounts) {
    EXPECT_EQ(ControlType(" knob\t").getKind(), ControlType::KNOB);
    for (const char* text : {"Knob", "KNOB", "fader", "edit,", "0", " "})
        EXPECT_EQ(ControlType(text).getKind(), ControlType::NONE) << text;
}

Control readControl(const std::string& xml) {
    const XmlDocument document(xml, false);
    return Control(document.getRootElement());
}

std::string write(const Control& control) {
    std::ostringstream stream;
    control.writeXml(stream, 0);
    return stream.str();
}

TEST(ControlTest, WhatIsMissingTakesItsDefault) {
    const Control control = readControl("<Control><Function/><Other/></Control>");
    EXPECT_EQ(control.cell, Cell());
    EXPECT_EQ(control.name, "");
    EXPECT_EQ(control.type.getKind(), ControlType::NONE);
    EXPECT_EQ(control.value, 0);
    EXPECT_EQ(control.min, 0);
    EXPECT_EQ(control.max, 127);
    EXPECT_EQ(control.release, -1);
    EXPECT_FALSE(control.autoSend);
    EXPECT_EQ(control.size, 1);
    EXPECT_FALSE(control.selected);
    ASSERT_EQ(control.events.size(), 1u);
    EXPECT_FALSE(control.isEventValid(0));
    EXPECT_EQ(control.events[0].output, -1);
    EXPECT_EQ(control.events[0].channel, -1);
    EXPECT_EQ(control.events[0].zone, -1);
}

TEST(ControlTest, AllAttributesAreWrittenInOrder) {
    const std::string xml =
        "<Control cell=\"3,4\" type=\"hfader\" name=\"A &amp; B\" value=\"5\" min=\"100\" max=\"-7\" release=\"6\" "
        "autoSend=\"true\" size=\"3\">\n"
        "\t<Function midiEvent=\"Controller Change,7\" output=\"1\" channel=\"15\" zone=\"127\"/>\n"
        "\t<Function midiEvent=\"Pitch Bend\" output=\"-1\" channel=\"-1\" zone=\"-1\"/>\n"
        "</Control>\n";
    EXPECT_EQ(write(readControl(xml)), xml);
}

TEST(ControlTest, NonsenseTakesTheDefaultAndWideBytesKeepTheirLowOne) {
    const Control control = readControl(
        "<Control cell='x,y' type='wheel' value='high' min='' max='99999999999' "
        "release='none' autoSend='maybe' size='big'>"
        "<Function midiEvent='Whistle' output='511' channel='200' zone='abc'/></Control>");
    EXPECT_EQ(control.cell, Cell());
    EXPECT_EQ(control.value, 0);
    EXPECT_EQ(control.min, 0);
    EXPECT_EQ(control.release, -1);
    EXPECT_FALSE(control.autoSend);
    EXPECT_EQ(control.size, 1);
    ASSERT_EQ(control.events.size(), 1u);
    EXPECT_EQ(control.events[0].output, -1);
    EXPECT_EQ(control.events[0].channel, -56);
    EXPECT_EQ(control.events[0].zone, -1);
}

TEST(ControlTest, EventsAreReplacedOrAppended) {
    Control control;
    control.setEvent(1, MidiMessage(MidiMessage::PitchBend));
    control.setEvent(-1, MidiMessage(MidiMessage::PitchBend));

    EXPECT_EQ(control.events.size(), 0u);

    control.setEvent(0, MidiMessage(MidiMessage::PitchBend));
    ASSERT_EQ(control.events.size(), 1u);
    EXPECT_EQ(control.events[0].output, -1);
    EXPECT_EQ(control.events[0].channel, -1);
    EXPECT_EQ(control.events[0].zone, -1);

    control.events[0].output = 3;
    control.setEvent(0, MidiMessage(MidiMessage::ControllerChange, 9));
    control.setEvent(1, MidiMessage());

    EXPECT_EQ(control.events[0].output, 3);
    EXPECT_EQ(control.events[0].midiMessage.getD1(), 9);
    EXPECT_TRUE(control.isEventValid(0));
    EXPECT_FALSE(control.isEventValid(1));
    EXPECT_FALSE(control.isEventValid(2));
    EXPECT_FALSE(control.isEventValid(-1));
    EXPECT_FALSE(control.isEventValid(INT_MAX));
}

class ControlValueTest : public testing::Test {
protected:
    // What the engine plays for a value of this event.
    std::string play(std::int32_t value, const std::string& event, const std::string& more = "") {
        Control control = readControl(
            "<Control cell='1,2' type='edit' min='-2147483648' max='2147483647'>"
            "<Function midiEvent='" +
            event + "' " + more + "/></Control>");
        control.setValue(m_engine.manager(), value, true);
        return take();
    }

    std::string take() {
        m_engine.manager().waitUntilIdle();
        m_engine.engine->playTimeSlice(0, 0);
        m_engine.engine->playTimeSlice(0, 1);
        std::string text;
        for (const MirelMidiMessage& message : m_engine.host.played)
            text += (text.empty() ? "" : "; ") + message.getEventName() + " " +
                    std::to_string(static_cast<unsigned char>(message.getD1())) + " " +
                    std::to_string(static_cast<unsigned char>(message.getD2())) +
                    " ch=" + std::to_string(message.getChannel()) + " out=" + std::to_string(message.getOutput()) +
                    " zone=" + std::to_string(message.getZone()) + " in=" + std::to_string(message.getInput()) + " " +
                    message.getFromControl().toXmlString();
        m_engine.host.played.clear();
        return text;
    }

    TestSupport::EngineFixture m_engine;
};

TEST_F(ControlValueTest, TheValueGoesWhereItsEventHasIt) {
    m_engine.setLayers("<Layers><Layer/></Layers>");
    EXPECT_EQ(play(8192, "Pitch Bend"), "Pitch Bend 0 64 ch=0 out=0 zone=-1 in=-1 1,2");
    EXPECT_EQ(play(16383, "Pitch Bend"), "Pitch Bend 127 127 ch=0 out=0 zone=-1 in=-1 1,2");
    EXPECT_EQ(play(99, "Controller Change,7"), "Controller Change 7 99 ch=0 out=0 zone=-1 in=-1 1,2");
    EXPECT_EQ(play(99, "Program Change"), "Program Change 99 0 ch=0 out=0 zone=-1 in=-1 1,2");
    EXPECT_EQ(play(99, "Channel Pressure"), "Channel Pressure 99 0 ch=0 out=0 zone=-1 in=-1 1,2");
    EXPECT_EQ(play(99, "Song Select"), "Song Select 99 0 ch=0 out=0 zone=-1 in=-1 1,2");
}

TEST_F(ControlValueTest, TheEventGoesWhereItSays) {
    EXPECT_EQ(play(1, "Controller Change,7", "output='1' channel='15' zone='3'"),
              "Controller Change 7 1 ch=15 out=1 zone=3 in=-1 1,2");
    EXPECT_EQ(play(1, "Controller Change,7", "output='1' channel='-4'"),
              "Controller Change 7 1 ch=0 out=1 zone=-1 in=-1 1,2");
    EXPECT_EQ(play(1, "Controller Change,7", "output='7'"), "");
}

TEST_F(ControlValueTest, ValuesOutsideOfTheirBytesKeepTheLowOnes) {
    m_engine.setLayers("<Layers><Layer/></Layers>");
    EXPECT_EQ(play(-1, "Pitch Bend"), "Pitch Bend 127 127 ch=0 out=0 zone=-1 in=-1 1,2");
    EXPECT_EQ(play(300, "Controller Change,7"), "Controller Change 7 44 ch=0 out=0 zone=-1 in=-1 1,2");
    EXPECT_EQ(play(INT_MIN, "Program Change"), "Program Change 0 0 ch=0 out=0 zone=-1 in=-1 1,2");
}

TEST_F(ControlValueTest, AValueStaysBetweenItsEndsWhicheverIsLower) {
    Control control = readControl("<Control cell='1,2' type='knob' min='100' max='0'/>");
    const struct {
        int given;
        int kept;
    } values[] = {{101, 100}, {-1, 0}, {55, 55}, {INT_MAX, 100}, {INT_MIN, 0}, {100, 100}, {0, 0}};
    for (const auto& value : values) {
        control.setValue(m_engine.manager(), value.given, false);
        EXPECT_EQ(control.value, value.kept) << value.given;
    }
}

TEST_F(ControlValueTest, LabelsAndControlsWithoutATypeKeepTheirValueToThemselves) {
    m_engine.setLayers("<Layers><Layer/></Layers>");
    for (const char* type : {"label", "", "edit"}) {
        Control control = readControl("<Control cell='1,2' type='" + std::string(type) +
                                      "'><Function midiEvent='Pitch Bend'/></Control>");
        control.setValue(m_engine.manager(), 5, true);
        control.setValue(m_engine.manager(), 6, false);
        EXPECT_EQ(control.value, 6);
        EXPECT_EQ(take(), std::string(type) == "edit" ? "Pitch Bend 5 0 ch=0 out=0 zone=-1 in=-1 1,2" : "") << type;
    }
}

TEST(ControlManagerTest, TheBuiltInControlsAreThoseOfTheTable) {
    TestSupport::RunningDesk desk;
    desk.start();
    ControlMap controls = desk.mirel().getControls().getControlMap();

    const auto rows = TestSupport::readTable("default-controls.txt");
    EXPECT_EQ(controls.size(), rows.size());

    for (const auto& row : rows) {
        ASSERT_EQ(row.size(), 9u);
        const Control* control = controls.find(Cell(row[0]));
        ASSERT_NE(control, nullptr) << row[0];
        EXPECT_EQ(control->type.toXmlString(), row[1]) << row[0];
        EXPECT_EQ(control->name, row[2]) << row[0];
        EXPECT_EQ(std::to_string(control->value), row[3]) << row[0];
        EXPECT_EQ(std::to_string(control->min), row[4]) << row[0];
        EXPECT_EQ(std::to_string(control->max), row[5]) << row[0];
        EXPECT_EQ(std::to_string(control->release), row[6]) << row[0];
        EXPECT_EQ(std::to_string(control->size), row[7]) << row[0];
        EXPECT_FALSE(control->autoSend || control->selected) << row[0];
        ASSERT_EQ(control->events.size(), 1u) << row[0];
        EXPECT_EQ(control->events[0].midiMessage.toXmlString(), row[8]) << row[0];
        EXPECT_EQ(control->events[0].output, -1) << row[0];
        EXPECT_EQ(control->events[0].channel, -1) << row[0];
        EXPECT_EQ(control->events[0].zone, -1) << row[0];
    }
}

class ControlGroupTest : public testing::Test {
protected:
    // Edits in row 0 with these values and room on either side, all selected.
    explicit ControlGroupTest() { m_desk.start(); }

    void start(const std::vector<int>& values) {
        std::string xml = "<Controls>";
        std::vector<Cell> cells;
        for (const int value : values) {
            const Cell cell(0, static_cast<int>(cells.size()));
            cells.push_back(cell);
            xml += "<Control cell='" + cell.toXmlString() + "' type='edit' min='-1000' max='1000' value='" +
                   std::to_string(value) + "'/>";
        }
        const XmlDocument document(xml + "</Controls>", false);
        m_desk.run([&](Mirel& mirel) {
            mirel.getControls().readXml(document.getRootElement());
            mirel.getControls().selectControls(cells);
        });
    }

    // Moves the first control; returns all values.
    std::vector<int> moveFirst(std::int32_t value) {
        m_desk.run([value](Mirel& mirel) { mirel.getControls().changeControl({Cell(0, 0), value, true}); });
        ControlMap controls = m_desk.mirel().getControls().getControlMap();
        std::vector<int> values;
        for (const Control* control : controls.inOrder())
            values.push_back(control->value);
        return values;
    }

    std::int32_t overshoot() { return m_desk.mirel().getControls().getGroupOvershoot(); }

    TestSupport::RunningDesk m_desk;
};

using Values = std::vector<int>;

TEST_F(ControlGroupTest, TheSecondStopsAt127AndWaitsThere) {
    start({10, 100});
    EXPECT_EQ(moveFirst(50), (Values{50, 127}));
    EXPECT_EQ(overshoot(), 37);
    EXPECT_EQ(moveFirst(37), (Values{37, 127}));
    EXPECT_EQ(overshoot(), 37);
    EXPECT_EQ(moveFirst(36), (Values{36, 126}));
    EXPECT_EQ(overshoot(), 0);
}

TEST_F(ControlGroupTest, TheGroupStopsTogetherWhenOneIsAtTheEnd) {
    start({50, 20, 40});
    EXPECT_EQ(moveFirst(10), (Values{10, 0, 20}));
    EXPECT_EQ(overshoot(), -30);
    EXPECT_EQ(moveFirst(0), (Values{0, 0, 20}));
    EXPECT_EQ(moveFirst(30), (Values{30, 0, 20}));
    EXPECT_EQ(moveFirst(31), (Values{31, 1, 21}));
    EXPECT_EQ(overshoot(), 0);
}

TEST_F(ControlGroupTest, ANewSelectionForgetsTheOvershoot) {
    start({10, 100});
    moveFirst(50);
    EXPECT_EQ(overshoot(), 37);
    m_desk.mirel().getControlMessageManager().postSelectControls({Cell(0, 0), Cell(0, 1)});
    m_desk.settle();
    EXPECT_EQ(overshoot(), 0);
    EXPECT_EQ(moveFirst(49), (Values{49, 126}));
}

TEST_F(ControlGroupTest, TheDistanceIsThatBeforeTheLimitOfTheFirst) {
    start({990, 10});
    EXPECT_EQ(moveFirst(1040), (Values{1000, 60}));
}

TEST_F(ControlGroupTest, AStepBeyondAllNumbersStopsAtTheEnd) {
    start({0, 60});
    EXPECT_EQ(moveFirst(INT_MAX), (Values{1000, 127}));
    start({0, 60});
    EXPECT_EQ(moveFirst(INT_MIN), (Values{-1000, 0}));
}

// Both ends are checked, one after the other: a step that the lower end turns upwards may reach the upper one.
TEST_F(ControlGroupTest, AControlBelowZeroComesUpToItAsFarAsTheOthersCan) {
    start({50, -20, 120});
    EXPECT_EQ(moveFirst(40), (Values{40, -13, 127}));
}

TEST_F(ControlGroupTest, WithoutOthersOnlyTheFirstMoves) {
    start({10});
    EXPECT_EQ(moveFirst(60), Values{60});
    EXPECT_EQ(moveFirst(5), Values{5});
}

}
}
