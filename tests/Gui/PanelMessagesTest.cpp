// The desk's notifications of layers, zones and controls: the panels' copies, and what is repainted.
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/functions/values/SelectType.h"
#include "Gui/ComputerInput/ComputerInputPanel.h"
#include "Gui/Controls/ControlPanel.h"
#include "Gui/Layers/LayerPanel.h"
#include "Gui/Zones/ZonePanel.h"
#include "tests/support/MessageWords.h"
#include "tests/support/win32/WindowDesk.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace Gui {
namespace {

using Backend::Layers::Layer;
using Backend::Layers::LayerList;
using Backend::Zones::Zone;
using Backend::Zones::ZoneMap;
using TestSupport::releaseCopy;
using Names = std::vector<std::string>;

constexpr SelectionKind EDIT = SelectionKind::EDIT;
constexpr SelectionKind DATA = SelectionKind::DATA;
constexpr int HEIGHT = 100;

// A panel of a real desk in a window of its own, shown with all its contents.
template <class Panel>
class PanelMessagesTest : public testing::Test {
protected:
    PanelMessagesTest() {
        desk.start();
        desk.open();
        ShowWindow(desk.window(), SW_HIDE);
        panel.emplace(desk.gui());
        panel->createWnd(GetModuleHandleA("mirel.dll"), desk.host.handle());
        panel->setupPanels();
        panel->showWnd(true);
        show(panel->getMainPanel());
    }

    void show(Gui::Panel& inner) {
        inner.showWnd(true);
        inner.modifyHeight(HEIGHT);
    }

    void tell(UINT message, WPARAM wParam, LPARAM lParam) {
        TestSupport::pump();
        panel->getMessageManager().handleMessage(message, wParam, lParam);
    }

    // The area that waits to be painted: nothing, "all", or a rectangle.
    static std::string painted(const Gui::Panel& part) {
        RECT waiting{};
        RECT client{};
        if (!GetUpdateRect(part.getWindowHandle(), &waiting, FALSE))
            return "";
        GetClientRect(part.getWindowHandle(), &client);
        if (EqualRect(&waiting, &client))
            return "all";
        return std::to_string(waiting.left) + " " + std::to_string(waiting.top) + " " + std::to_string(waiting.right) +
               " " + std::to_string(waiting.bottom);
    }

    TestSupport::WindowDesk desk;
    std::optional<Panel> panel;
};

class LayerMessagesTest : public PanelMessagesTest<Layers::LayerPanel> {
protected:
    LayerMessagesTest() {
        show(panel->getSettingsPanel());
        LayerList layers;
        for (int i = 0; i < 3; ++i)
            layers.add(Layer());
        panel->setLayerList(layers);
    }

    const Layer& layer(std::int32_t id) { return *panel->getLayerList().find({id}); }

    void expectPainted(const std::string& main, const std::string& settings) {
        EXPECT_EQ(painted(panel->getMainPanel()), main);
        EXPECT_EQ(painted(panel->getSettingsPanel()), settings);
    }
};

TEST_F(LayerMessagesTest, ChangedLayersAreTakenOver) {
    Layer second;
    second.id = 1;
    second.channel = 5;
    Layer missing;
    missing.id = 3;
    tell(34719, 0, releaseCopy<LPARAM>(std::vector<Layer>{second, missing}));
    EXPECT_EQ(layer(1).channel, 5);
    EXPECT_EQ(panel->getLayerList().size(), 3u);
    expectPainted("all", "all");
}

TEST_F(LayerMessagesTest, ANewListHasNoMarks) {
    panel->getSelection().setSelected(0, true, EDIT);
    LayerList layers;
    layers.add(Layer());
    tell(34720, 0, releaseCopy<LPARAM>(layers));
    EXPECT_EQ(panel->getLayerList().size(), 1u);
    EXPECT_FALSE(panel->getSelection().anySelected(EDIT));
    expectPainted("all", "all");
}

TEST_F(LayerMessagesTest, ASelectedLayerIsMarkedAndTheLastOne) {
    EXPECT_EQ(panel->getLastSelected(), -1);
    tell(34721, 2, 1);
    EXPECT_TRUE(layer(2).selected);
    EXPECT_TRUE(panel->getSelection().isSelected(2, DATA));
    EXPECT_EQ(panel->getLastSelected(), 2);
    expectPainted("all", "");
    tell(34721, 2, 0);
    EXPECT_FALSE(layer(2).selected);
    EXPECT_FALSE(panel->getSelection().isSelected(2, DATA));
}

TEST_F(LayerMessagesTest, TheMarkForTheSettingsMoves) {
    struct Step {
        SelectType type;
        std::int32_t marked;  // -1 for none.
    };
    for (const Step& step : {Step{SelectType(SelectType::DOWN), -1}, Step{SelectType(SelectType::UP), 0},
                             Step{SelectType(SelectType::UP), 1}, Step{SelectType(SelectType::UP), 2},
                             Step{SelectType(SelectType::UP), 2}, Step{SelectType(SelectType::DOWN), 1},
                             Step{SelectType(SelectType::SPECIFIC, 0), 0}, Step{SelectType(SelectType::SPECIFIC, 0), 0},
                             Step{SelectType(SelectType::SPECIFIC, 3), 0}, Step{SelectType(SelectType::ALL), 0}}) {
        tell(34722, 0, releaseCopy<LPARAM>(step.type));
        EXPECT_EQ(panel->getSelection().firstSelected(EDIT).value_or(-1), step.marked) << step.type.toXmlString();
        EXPECT_FALSE(panel->getSelection().nextSelected(false, EDIT)) << step.type.toXmlString();
    }
    EXPECT_FALSE(panel->getSelection().anySelected(DATA));
    tell(34722, 0, releaseCopy<LPARAM>(SelectType(SelectType::UP)));
    expectPainted("all", "all");
}

TEST_F(LayerMessagesTest, FieldsAreTakenOver) {
    tell(34723, 1, releaseCopy<LPARAM>(RelativeFixedValue(true, 7)));
    EXPECT_EQ(layer(1).transpose, RelativeFixedValue(true, 7));
    expectPainted("all", "all");
    tell(34724, 1, releaseCopy<LPARAM>(RelativeFixedValue(false, 90)));
    EXPECT_EQ(layer(1).velocity, RelativeFixedValue(false, 90));
    expectPainted("all", "all");
    tell(34726, 1, 1);
    EXPECT_TRUE(layer(1).mono);
    expectPainted("all", "all");
    tell(34728, 1, NoteToggle::TYPE2);
    EXPECT_EQ(layer(1).toggle, NoteToggle(NoteToggle::TYPE2));
    expectPainted("all", "all");
}

TEST_F(LayerMessagesTest, MuteAndSoloPaintOneButton) {
    tell(34725, 1, 1);
    EXPECT_TRUE(layer(1).mute);
    expectPainted("6 43 21 54", "");
    tell(34727, 0, 1);
    EXPECT_TRUE(layer(0).solo);
    expectPainted("6 27 21 38", "");
}

TEST_F(LayerMessagesTest, LayersThatAreNotThereChangeNothing) {
    for (const WPARAM id : {WPARAM{3}, static_cast<WPARAM>(-1)}) {
        for (const UINT message : {34721u, 34725u, 34726u, 34727u, 34728u})
            tell(message, id, 1);
        for (const UINT message : {34723u, 34724u})
            tell(message, id, releaseCopy<LPARAM>(RelativeFixedValue(true, 7)));
    }
    for (const UINT message : {34719u, 34720u, 34722u, 34723u, 34724u, 34729u})
        tell(message, 0, 0);
    expectPainted("", "");
    EXPECT_EQ(panel->getLastSelected(), -1);
    EXPECT_EQ(panel->getLayerList().size(), 3u);
}

class ZoneMessagesTest : public PanelMessagesTest<Zones::ZonePanel> {
protected:
    ZoneMessagesTest() {
        ZoneMap zones;
        for (const int id : {1, 2, 3})
            zones.set(makeZone(id, 0));
        panel->setZoneMap(zones);
    }

    static Zone makeZone(int id, char transpose) {
        Zone zone;
        zone.id = static_cast<Backend::Zones::ZoneId>(id);
        zone.transpose = transpose;
        return zone;
    }

    // The rows that are marked, whatever their order.
    std::string marked() {
        std::string text;
        for (const int id : {1, 2, 3, 4})
            if (panel->getSelection().isSelected(static_cast<Backend::Zones::ZoneId>(id), DATA))
                text += std::to_string(id);
        return text;
    }
};

TEST_F(ZoneMessagesTest, AZoneIsTakenOver) {
    panel->setSelected(2, true);
    tell(34969, 0, releaseCopy<LPARAM>(makeZone(4, 12)));
    ASSERT_EQ(panel->getZoneMap().size(), 4u);
    EXPECT_EQ(ZoneMap(panel->getZoneMap()).find(4)->transpose, 12);
    EXPECT_EQ(marked(), "2");
    EXPECT_EQ(painted(panel->getMainPanel()), "all");
}

TEST_F(ZoneMessagesTest, AMapKeepsTheMarkOfAZoneThatItHas) {
    panel->setSelected(3, true);
    ZoneMap zones;
    zones.set(makeZone(3, 0));
    zones.set(makeZone(4, 0));
    tell(34970, 0, releaseCopy<LPARAM>(zones));
    EXPECT_EQ(marked(), "3");
    EXPECT_EQ(painted(panel->getMainPanel()), "all");
    ZoneMap other;
    other.set(makeZone(1, 0));
    tell(34970, 0, releaseCopy<LPARAM>(other));
    EXPECT_EQ(marked(), "1");
    tell(34970, 0, releaseCopy<LPARAM>(ZoneMap()));
    EXPECT_EQ(marked(), "");
}

TEST_F(ZoneMessagesTest, ASelectedZoneIsTheOnlyOneMarked) {
    EXPECT_EQ(panel->getLastSelected(), -1);
    for (const bool state : {true, false}) {
        tell(34971, 1, 1);
        tell(34971, 3, state);
        EXPECT_EQ(ZoneMap(panel->getZoneMap()).find(3)->selected, state);
        EXPECT_EQ(marked(), "3");
        EXPECT_EQ(panel->getLastSelected(), 3);
        EXPECT_EQ(painted(panel->getMainPanel()), "all");
    }
    tell(34971, 9, 1);
    EXPECT_EQ(marked(), "3");
    EXPECT_EQ(painted(panel->getMainPanel()), "");
}

class ControlMessagesTest : public PanelMessagesTest<Controls::ControlPanel> {
protected:
    using Control = Backend::Controls::Control;
    using ControlType = Backend::Controls::ControlType;

    ControlMessagesTest() {
        show(panel->getSettingsPanel());
        Backend::Controls::ControlMap controls;
        for (const Cell& cell : {Cell(0, 1), Cell(0, 4), Cell(3, 1)})
            controls.set(makeControl(cell, ControlType::KNOB));
        panel->setControlMap(controls);
    }

    static Control makeControl(const Cell& cell, ControlType::Kind kind) {
        Control control;
        control.cell = cell;
        control.type = ControlType(kind);
        return control;
    }

    static WPARAM word(const Cell& cell) { return static_cast<WPARAM>(cell.getKey()); }

    const Control* find(const Cell& cell) { return panel->getControlMap().find(cell); }

    void expectPainted(const std::string& main, const std::string& settings) {
        EXPECT_EQ(painted(panel->getMainPanel()), main);
        EXPECT_EQ(painted(panel->getSettingsPanel()), settings);
    }
};

TEST_F(ControlMessagesTest, ChangedControlsAreTakenOver) {
    panel->setSelected(Cell(0, 1), true);
    const std::vector<Control> changed = {makeControl(Cell(0, 1), ControlType::NONE),
                                          makeControl(Cell(5, 5), ControlType::LABEL)};
    tell(33969, 1, releaseCopy<LPARAM>(changed));
    EXPECT_EQ(find(Cell(0, 1)), nullptr);
    EXPECT_NE(find(Cell(5, 5)), nullptr);
    EXPECT_FALSE(panel->getSelection().anySelected(DATA));
    expectPainted("all", "all");
}

TEST_F(ControlMessagesTest, ANewMapHasNoMarks) {
    panel->setSelected(Cell(0, 1), true);
    panel->getSelection().setSelected(Cell(7, 7), true, EDIT);
    Backend::Controls::ControlMap controls;
    controls.set(makeControl(Cell(0, 1), ControlType::LABEL));
    tell(33970, 0, releaseCopy<LPARAM>(controls));
    EXPECT_EQ(panel->getControlMap().size(), 1u);
    for (const SelectionKind kind : {EDIT, DATA})
        EXPECT_FALSE(panel->getSelection().anySelected(kind));
    EXPECT_EQ(panel->getAnchor(), Cell());
    expectPainted("all", "all");
}

TEST_F(ControlMessagesTest, AValueIsTakenOver) {
    tell(33971, word(Cell(3, 1)), 99);
    EXPECT_EQ(find(Cell(3, 1))->value, 99);
    expectPainted("all", "");
}

TEST_F(ControlMessagesTest, ASelectedControlIsTheOnlyOneMarked) {
    for (const bool state : {true, false}) {
        panel->setSelected(Cell(0, 1), true);
        tell(33972, word(Cell(0, 4)), state);
        EXPECT_EQ(find(Cell(0, 4))->selected, state);
        EXPECT_EQ(panel->getSelection().firstSelected(DATA), Cell(0, 4));
        EXPECT_EQ(panel->getSelection().nextSelected(false, DATA), std::nullopt);
        EXPECT_EQ(panel->getAnchor(), Cell(0, 4));
        expectPainted("all", "");
    }
}

TEST_F(ControlMessagesTest, TheFocusMoves) {
    const auto focus = [this](SelectControlType::Mode mode, const Cell& cell = {}) {
        tell(33973, static_cast<WPARAM>(mode), cell.getKey());
        return panel->getFocusCell();
    };
    EXPECT_EQ(focus(SelectControlType::LEFT), Cell());
    EXPECT_EQ(focus(SelectControlType::RIGHT), Cell(0, 1));
    EXPECT_EQ(focus(SelectControlType::RIGHT), Cell(0, 4));
    EXPECT_EQ(focus(SelectControlType::RIGHT), Cell(3, 1));
    EXPECT_EQ(focus(SelectControlType::RIGHT), Cell(3, 1));
    EXPECT_EQ(focus(SelectControlType::UP), Cell(0, 1));
    EXPECT_EQ(focus(SelectControlType::SPECIFIC, Cell(0, 4)), Cell(0, 4));
    EXPECT_EQ(focus(SelectControlType::SPECIFIC, Cell(9, 9)), Cell(0, 4));
    panel->setSelected(Cell(3, 1), true);
    EXPECT_EQ(focus(SelectControlType::SELECTED), Cell(3, 1));
}

TEST_F(ControlMessagesTest, CellsWithoutAControlChangeNothing) {
    for (const UINT message : {33971u, 33972u})
        tell(message, word(Cell(9, 9)), 1);
    for (const UINT message : {33969u, 33970u, 33974u})
        tell(message, 0, 0);
    expectPainted("", "");
    EXPECT_EQ(panel->getControlMap().size(), 3u);
    EXPECT_EQ(panel->getAnchor(), Cell());
}

class KeyMessagesTest : public PanelMessagesTest<ComputerInput::ComputerInputPanel> {};

TEST_F(KeyMessagesTest, ANewMapFillsTheSettingsAnew) {
    auto& settings = panel->getSettingsPanel();
    settings.showWnd(true);
    for (Gui::Panel* part : std::initializer_list<Gui::Panel*>{
             &settings.getMainSettingsPanel(), &settings.getDownFunctionPanel(), &settings.getUpFunctionPanel()})
        show(*part);
    tell(33470, 1, releaseCopy<LPARAM>(Backend::ComputerInput::KeyConfigurationMap()));
    EXPECT_TRUE(panel->getUseKeyUpMod());
    EXPECT_EQ(painted(settings.getMainSettingsPanel()), "all");
    EXPECT_EQ(painted(settings.getDownFunctionPanel()), "all");
    EXPECT_EQ(painted(settings.getUpFunctionPanel()), "all");
}

// The desk's own windows are notified of each change of the presets.
TEST(PresetNames, ReachTheWindow) {
    TestSupport::WindowDesk desk;
    desk.start();
    desk.mirel().getLayerMessageManager().postSavePreset("Early", {});
    desk.open();
    for (Preset::PresetGuiOwner* const owner :
         {&desk.gui().getLayerPanelAsPresetGuiOwner(), &desk.gui().getControlPanelAsPresetGuiOwner(),
          &desk.gui().getComputerInputPanelAsPresetGuiOwner()}) {
        const bool isLayers = owner == &desk.gui().getLayerPanelAsPresetGuiOwner();
        const auto names = [&](Names expected) {
            if (isLayers)
                expected.insert(expected.begin(), "Early");
            desk.settle();
            EXPECT_EQ(owner->getPresetNames(), expected);
        };
        names({});
        owner->addPreset("Two", false);
        owner->addPreset("One", false);
        names({"One", "Two"});
        owner->editPreset("Two", "Last");
        names({"Last", "One"});
        owner->deletePreset("One");
        names({"Last"});
    }
}

}
}
