// What the message managers of controls, layers and zones post, and its effects.
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/values/SelectType.h"
#include "tests/support/DataTable.h"
#include "tests/support/MessageWitness.h"
#include "tests/support/MessageWords.h"
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace Backend {
namespace {

using Controls::Control;
using Controls::ControlType;
using MidiEngine::MidiMessage;
using MidiEngine::MirelMidiMessage;
using TestSupport::releaseCopy;

constexpr std::int32_t HUGE_ID = 2147483647;

Control makeControl(const Cell& cell, ControlType::Kind kind, const std::string& event, std::int32_t value) {
    Control control;
    control.cell = cell;
    control.type = ControlType(kind);
    control.value = value;
    control.events.emplace_back(MidiMessage(event));
    return control;
}

Layers::Layer makeLayer(std::int32_t id, char channel) {
    Layers::Layer layer;
    layer.id = id;
    layer.channel = channel;
    return layer;
}

std::string join(const std::vector<std::string>& texts, const char* divider) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : divider) + text;
    return all;
}

std::string describe(const PresetFolder& presets) {
    std::vector<std::string> names;
    for (const auto& preset : presets.getPresets())
        names.push_back(preset.name + (preset.merge ? "+" : ""));
    return " presets=" + join(names, ",");
}

class DeskComponentsTest : public testing::Test {
protected:
    using Operation = std::function<void()>;

    DeskComponentsTest() {
        m_master.addMessageManager(&m_gate);
        for (auto* witness : {&m_controlWitness, &m_layerWitness, &m_zoneWitness})
            m_master.addMessageManager(witness);
        m_desk.start();
        m_desk.run([](Mirel& mirel) {
            const XmlDocument controls(
                "<Controls><Control cell='0,0' type='edit'/>"
                "<Control cell='0,1' type='edit' value='7'/>"
                "<Control cell='1,0' type='label' value='3'/></Controls>",
                false);
            mirel.getControls().readXml(controls.getRootElement());
            mirel.getZones().clear();
            const XmlDocument zones("<Zones><Zone id='0'/><Zone id='1'/></Zones>", false);
            mirel.getZones().readXml(zones.getRootElement());
        });
        m_desk.playSlice(0, 10);
        m_desk.takePlayed();
        m_desk.openWindow();
        m_desk.takeTold();
    }

    ~DeskComponentsTest() override {
        m_desk.mirel().setGuiWindowHandle(nullptr);
        m_master.stop();
    }

    void changeControl(const Cell& cell, std::int32_t value, bool updateGui) {
        m_controls.postChangeControl({cell, value, updateGui});
    }

    void updateControls(std::int32_t value, bool guiFlag) {
        m_controls.postUpdateControls({makeControl({0, 1}, ControlType::EDIT, "Controller Change,10", value)}, false,
                                      guiFlag);
    }

    // By their names in the table.
    std::map<std::string, Operation> operations() {
        using Ids = std::vector<Layers::LayerId>;
        const auto layers = [](char channel) {
            Layers::LayerList list;
            list.add(makeLayer(-1, channel));
            return list;
        };
        const Control nothing = makeControl({0, 0}, ControlType::NONE, "Pitch Bend", 0);
        Control autoSender = makeControl({1, 1}, ControlType::KNOB, "Channel Pressure", 9);
        autoSender.autoSend = true;
        return {
            {"controls update",
             [=, this] {
                 m_controls.postUpdateControls({nothing, autoSender}, true, true);
             }},
            {"controls update quietly", [this] { updateControls(8, false); }},
            {"controls update flagged", [this] { updateControls(9, true); }},
            {"controls change",
             [this] {
                 changeControl({0, 1}, 1000, true);
             }},
            {"controls change quietly",
             [this] {
                 changeControl({0, 1}, -5, false);
             }},
            {"controls change nowhere",
             [this] {
                 changeControl({HUGE_ID, -7}, 5, true);
             }},
            {"controls send all", [this] { m_controls.postSendAll(false); }},
            {"controls send auto", [this] { m_controls.postSendAll(true); }},
            {"controls follow",
             [this] {
                 EXPECT_TRUE(m_controls.postUpdateControl(
                     MirelMidiMessage(MidiMessage(MidiMessage::ControllerChange, 10, 55, 0), {}, Cell())));
             }},
            {"controls select",
             [this] {
                 m_controls.postSelectControls({{0, 1}, {1, 1}, {9, 9}});
             }},
            {"controls select none", [this] { m_controls.postSelectControls({}); }},
            {"controls save",
             [this] {
                 m_controls.postSavePreset("A", {{0, 1}, {1, 1}});
             }},
            {"controls rename", [this] { m_controls.postRenamePreset("A", "B"); }},
            {"controls load", [this] { m_controls.postLoadPreset("B"); }},
            {"controls delete", [this] { m_controls.postDeletePreset("B"); }},
            {"layers update",
             [this] {
                 m_layers.postUpdateLayers({makeLayer(0, 5), makeLayer(2, 7)}, true);
             }},
            {"layers update quietly", [this] { m_layers.postUpdateLayers({makeLayer(1, 9)}, false); }},
            {"layers update nowhere",
             [this] {
                 m_layers.postUpdateLayers({makeLayer(-1, 1), makeLayer(HUGE_ID, 2)}, true);
             }},
            {"layers select",
             [this] {
                 m_layers.postSelectLayers(Ids{{1}, {-1}, {HUGE_ID}});
             }},
            {"layers save", [this] { m_layers.postSavePreset("A", {}); }},
            {"layers rename", [this] { m_layers.postRenamePreset("A", "B"); }},
            {"layers set", [=, this] { m_layers.postSetLayerList(layers(3), true); }},
            {"layers set quietly", [=, this] { m_layers.postSetLayerList(layers(4), false); }},
            {"layers load", [this] { m_layers.postLoadPreset("B"); }},
            {"layers delete", [this] { m_layers.postDeletePreset("B"); }},
            {"zones transpose", [this] { m_zones.postSetTranspose(1, 12); }},
            {"zones transpose down", [this] { m_zones.postSetTranspose(1, -12); }},
            {"zones transpose far", [this] { m_zones.postSetTranspose(1, 300); }},
            {"zones transpose nowhere", [this] { m_zones.postSetTranspose(9, 5); }},
            {"zones select one", [this] { m_zones.postSelectZone(SelectType(SelectType::SPECIFIC, 1)); }},
            {"zones select missing", [this] { m_zones.postSelectZone(SelectType(SelectType::SPECIFIC, HUGE_ID)); }},
            {"zones select",
             [this] {
                 m_zones.postSelectZones({0, 1, -1});
             }},
        };
    }

    std::string describeControls() {
        std::vector<std::string> texts;
        Controls::ControlMap map = m_desk.mirel().getControls().getControlMap();
        for (const Control* control : map.inOrder())
            texts.push_back(control->cell.toXmlString() + "=" + std::to_string(control->value) +
                            (control->selected ? "*" : ""));
        return join(texts, " ") + describe(m_desk.mirel().getControls().getPresets());
    }

    std::string describeLayers() {
        std::vector<std::string> texts;
        for (const Layers::Layer& layer : m_desk.mirel().getLayers().getLayerList())
            texts.push_back(std::to_string(layer.id) + ":" + std::to_string(layer.channel) +
                            (layer.selected ? "*" : ""));
        return join(texts, " ") + describe(m_desk.mirel().getLayers().getPresets());
    }

    std::string describeZones() {
        std::vector<std::string> texts;
        Zones::ZoneMap map = m_desk.mirel().getZones().getZoneMap();
        for (const Zones::Zone* zone : map.inOrder())
            texts.push_back(std::to_string(zone->id) + ":" + std::to_string(zone->transpose) +
                            (zone->selected ? "*" : ""));
        return join(texts, " ");
    }

    // Without the notifications of events shown.
    std::vector<std::string> takeNotifications() {
        std::vector<std::string> told = m_desk.takeTold();
        std::erase_if(told, [](const std::string& text) { return text.starts_with("33254 "); });
        return told;
    }

    std::string play(const std::string& component) {
        if (component != "controls") {
            const char zone = component == "zones" ? char{1} : char{-1};
            m_desk.mirel().playMidi(MirelMidiMessage(MidiMessage::NoteOn, 60, 100, {.zone = zone}));
        }
        m_desk.settle();
        m_desk.playSlice(10, 10);
        m_desk.playSlice(10, 11);
        std::vector<std::string> played = m_desk.takePlayed();
        std::erase_if(played, [](const std::string& text) { return text.starts_with("0x80"); });
        return join(played, "; ");
    }

    TestSupport::RunningDesk m_desk;
    MessageManagerMaster m_master;
    Controls::ControlMessageManager m_controls{m_master, m_desk.mirel().getControls()};
    Layers::LayerMessageManager m_layers{m_master, m_desk.mirel().getLayers()};
    Zones::ZoneMessageManager m_zones{m_master, m_desk.mirel().getZones()};
    TestSupport::WorkerGate m_gate{m_master};
    TestSupport::MessageWitness m_controlWitness{m_master, m_controls};
    TestSupport::MessageWitness m_layerWitness{m_master, m_layers};
    TestSupport::MessageWitness m_zoneWitness{m_master, m_zones};
};

void expectWord(const std::string& expected, std::int64_t word, const std::string& row) {
    if (expected == "heap")
        EXPECT_NE(word, 0) << row;
    else
        EXPECT_EQ(word, std::stoll(expected)) << row;
}

TEST_F(DeskComponentsTest, EachPostHasItsNumberAndWordsAndItsEffect) {
    const auto all = operations();
    std::set<std::string> seen;
    m_master.start();

    int line = 0;
    for (const auto& row : TestSupport::readTable("component-messages.txt")) {
        ASSERT_EQ(row.size(), 7u) << row[1];
        const std::string where = std::to_string(++line) + " " + row[1];
        const std::string component = row[1].substr(0, row[1].find(' '));
        ASSERT_TRUE(all.contains(row[1])) << where;
        seen.insert(row[1]);
        all.at(row[1])();
        m_master.waitUntilIdle();
        m_desk.settle();
        auto& witness = component == "controls" ? m_controlWitness
                        : component == "layers" ? m_layerWitness
                                                : m_zoneWitness;
        const std::vector<MSG> messages = witness.takeSeen();
        ASSERT_EQ(messages.size(), 1u) << where;
        EXPECT_EQ(messages[0].message, std::stoul(row[0])) << where;
        expectWord(row[2], static_cast<std::int64_t>(messages[0].wParam), where);
        expectWord(row[3], static_cast<std::int64_t>(messages[0].lParam), where);
        EXPECT_EQ(join(takeNotifications(), "; "), row[4]) << where;
        EXPECT_EQ(component == "controls" ? describeControls()
                  : component == "layers" ? describeLayers()
                                          : describeZones(),
                  row[5])
            << where;
        EXPECT_EQ(play(component), row[6]) << where;
        m_desk.takeTold();
    }

    EXPECT_EQ(seen.size(), all.size());
}

TEST_F(DeskComponentsTest, TheWindowGetsTheFlagsOfAnUpdateOfControls) {
    m_master.start();
    for (const bool flag : {false, true}) {
        m_controls.postUpdateControls({makeControl({0, 1}, ControlType::EDIT, "Pitch Bend", 0)}, true, flag);
        m_master.waitUntilIdle();
        const auto posted = m_desk.takePosted();
        ASSERT_EQ(posted.size(), 1u);
        EXPECT_EQ(posted[0].message, 33969u);
        EXPECT_EQ(posted[0].wParam, flag ? 0x10001u : 1u);
    }
}

TEST_F(DeskComponentsTest, AnyValueOfAHalfWordNotifiesTheWindow) {
    m_master.start();
    m_master.postMessage(33969, releaseCopy<WPARAM>(std::vector<Control>{}), 0x40002);
    m_master.waitUntilIdle();
    const auto posted = m_desk.takePosted();
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].wParam, 0x10001u);
}

TEST_F(DeskComponentsTest, NumbersWithoutAMeaningDoNothing) {
    m_master.start();
    const std::string before = describeControls() + describeLayers() + describeZones();
    for (const UINT number : {33968u, 33978u, 34718u, 34726u, 34968u, 34972u})
        m_master.postMessage(number, ~WPARAM{0}, -1);
    m_master.waitUntilIdle();
    m_desk.settle();
    EXPECT_EQ(m_controlWitness.takeSeen().size(), 2u);
    EXPECT_EQ(m_layerWitness.takeSeen().size(), 2u);
    EXPECT_EQ(m_zoneWitness.takeSeen().size(), 2u);
    EXPECT_EQ(describeControls() + describeLayers() + describeZones(), before);
    EXPECT_EQ(m_desk.takeTold(), std::vector<std::string>());
}

TEST_F(DeskComponentsTest, OnlyTheLowByteOfAZoneCounts) {
    m_master.start();
    m_master.postMessage(34969, 0x7fffffffffffff01, 0x7fffffffffffff05);
    m_master.waitUntilIdle();
    EXPECT_EQ(describeZones(), "0:0* 1:5");
}

// The address sanitizer finds what is not destroyed.
TEST_F(DeskComponentsTest, WhatComesAfterTheEndIsDisposedOfAndChangesNothing) {
    const std::string before = describeControls() + describeLayers() + describeZones();
    m_master.start();
    m_master.postMessage(TestSupport::WorkerGate::NUMBER, 0, 0);
    m_master.postMessage(QUIT_BACKEND_WORKER, 0, 0);

    std::size_t count = 0;
    for (const auto& [name, operation] : operations()) {
        operation();
        ++count;
    }
    m_gate.open();
    m_master.stop();
    EXPECT_EQ(m_controlWitness.getDisposed().size() + m_layerWitness.getDisposed().size() +
                  m_zoneWitness.getDisposed().size(),
              count);
    EXPECT_EQ(describeControls() + describeLayers() + describeZones(), before);
    EXPECT_EQ(m_desk.takeTold(), std::vector<std::string>());
}

}
}
