#include "Backend/functions/FunctionList.h"
#include "Backend/midi/MidiNames.h"
#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Platform/Shell.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <array>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace Gui {
namespace {

HINSTANCE module() {
    return static_cast<HINSTANCE>(Platform::getModuleInstance());
}

std::string loadText(int id) {
    std::array<char, 5001> text{};
    LoadStringA(module(), static_cast<UINT>(id), text.data(), static_cast<int>(text.size()));
    return text.data();
}

struct Entry {
    std::string text;
    int id;

    bool operator==(const Entry&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Entry& entry) {
    return stream << entry.id << " \"" << entry.text << "\"";
}

std::vector<Entry> entriesOf(int menu) {
    const GdiManager gdi = GdiManager::create();
    const PopupMenu popup(gdi, menu);
    std::vector<Entry> entries;
    for (const auto& item : popup.getItems())
        entries.push_back({item->text, item->id});
    return entries;
}

// The rows at which columns open.
std::vector<int> columnsOf(int menu) {
    const GdiManager gdi = GdiManager::create();
    const PopupMenu popup(gdi, menu);
    std::vector<int> rows;
    for (int row = 0; row < GetMenuItemCount(popup.handle()); ++row)
        if (GetMenuState(popup.handle(), static_cast<UINT>(row), MF_BYPOSITION) & (MF_MENUBREAK | MF_MENUBARBREAK))
            rows.push_back(row);
    return rows;
}

std::string titleOf(int menu) {
    const HMENU loaded = LoadMenuA(module(), MAKEINTRESOURCEA(menu));
    char text[100] = "";
    GetMenuStringA(loaded, 0, text, sizeof text, MF_BYPOSITION);
    DestroyMenu(loaded);
    return text;
}

TEST(Menus, OfTheDisplay) {
    EXPECT_EQ(titleOf(102), "Display Function Popup");
    EXPECT_EQ(entriesOf(102), (std::vector<Entry>{{"Clear", 40001}, {"Copy", 40002}}));
}

TEST(Menus, OfTheMainScreen) {
    EXPECT_EQ(titleOf(127), "System Function Popup");
    EXPECT_EQ(entriesOf(127), (std::vector<Entry>{{"Save...", IDM_SYSTEM_SAVE},
                                                  {"Load...", IDM_SYSTEM_LOAD},
                                                  {"Setup...", IDM_SYSTEM_SETUP},
                                                  {"Import Version 2 File...", IDM_SYSTEM_IMPORT}}));
}

TEST(Menus, OfValues) {
    std::vector<Entry> expected;
    for (int value = 0; value < 128; ++value)
        expected.push_back({std::to_string(value), value + 1});
    EXPECT_EQ(entriesOf(117), expected);
    EXPECT_EQ(columnsOf(117), (std::vector<int>{16, 32, 48, 64, 80, 96, 112}));
}

TEST(Menus, OfPrograms) {
    std::vector<Entry> expected;
    for (int value = 0; value < 128; ++value)
        expected.push_back(
            {std::to_string(value) + " " + Backend::MidiEngine::programName(static_cast<char>(value)), value + 1});
    EXPECT_EQ(expected.front().text, "0 Acoustic Grand");
    EXPECT_EQ(expected.back().text, "127 Gunshot");
    EXPECT_EQ(entriesOf(124), expected);
    EXPECT_EQ(columnsOf(124), (std::vector<int>{32, 64, 96}));
}

// In dialog units, as the template has them.
struct Template {
    int id;
    int width;
    int height;
    const char* caption;
};

constexpr Template TEMPLATES[] = {
    {235, 374, 16, "Gui::System::SystemPanel"},
    {182, 370, 119, "Gui::Display::DisplayPanel"},
    {106, 370, 120, "Gui::Help::HelpPanel"},
    {236, 227, 144, "General"},
    {210, 227, 144, "Display"},
    {212, 227, 144, "Midi Outputs"},
};

TEST(Dialogs, HaveTheirSizesAndTitles) {
    const HWND parent = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 800, 600, nullptr, nullptr, nullptr, nullptr);
    for (const Template& row : TEMPLATES) {
        const HWND dialog = CreateDialogParamA(
            module(), MAKEINTRESOURCEA(row.id), parent, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; }, 0);
        ASSERT_NE(dialog, nullptr) << row.id;
        RECT units{0, 0, row.width, row.height};
        MapDialogRect(dialog, &units);
        RECT client{};
        GetClientRect(dialog, &client);
        EXPECT_EQ(client.right, units.right) << row.id;
        EXPECT_EQ(client.bottom, units.bottom) << row.id;
        char title[100] = "";
        GetWindowTextA(dialog, title, sizeof title);
        EXPECT_STREQ(title, row.caption);
        EXPECT_EQ(GetWindowLongPtrA(dialog, GWL_STYLE) & WS_VISIBLE, 0) << row.id;
        DestroyWindow(dialog);
    }
    DestroyWindow(parent);
}

// Every id that is named for a help text, by its name.
std::map<std::string, int> helpIds() {
    std::map<std::string, int> ids;
    std::ifstream header(MIREL_PROJECT_FOLDER "/src/Gui/ResourceIds.h");
    const std::regex definition("#define (HELP_\\w+) (\\d+)\r?");
    for (std::string line; std::getline(header, line);)
        if (std::smatch match; std::regex_match(line, match, definition))
            ids[match[1]] = std::stoi(match[2]);
    return ids;
}

TEST(HelpTexts, EveryNamedIdHasOne) {
    const auto ids = helpIds();
    EXPECT_GT(ids.size(), 190u);
    for (const auto& [name, id] : ids)
        EXPECT_FALSE(loadText(id).empty()) << name;
}

TEST(HelpTexts, NoIdHasTwoNames) {
    std::set<int> seen;
    for (const auto& [name, id] : helpIds())
        EXPECT_TRUE(seen.insert(id).second) << name;
}

TEST(HelpTexts, AreSentences) {
    for (const auto& [name, id] : helpIds()) {
        const std::string text = loadText(id);
        ASSERT_FALSE(text.empty()) << name;
        EXPECT_EQ(text.back(), '.') << name;
        EXPECT_TRUE(std::isupper(static_cast<unsigned char>(text.front()))) << name;
        EXPECT_EQ(text.find("  "), std::string::npos) << name;
    }
}

TEST(HelpTexts, OfFunctionsAreThoseOfTheList) {
    int rows = 0;
    const auto check = [&](const auto& row) {
        EXPECT_EQ(loadText(row.helpId), row.helpText);
        ++rows;
    };
    std::apply([&](const auto&... row) { (check(row), ...); }, Backend::FunctionManagement::FUNCTION_LIST);
    EXPECT_EQ(rows, 64);
}

// The ids that the screens' controls carry.
constexpr int USED_IDS[] = {
    112,  113,  115,  122,  123,  124,  125,  126,  127,  131,  133,  134,  135,  136,  137,  138,  139,  140,
    142,  143,  144,  145,  146,  148,  154,  156,  157,  159,  160,  161,  162,  163,  166,  167,  168,  169,
    170,  171,  172,  173,  174,  175,  176,  177,  178,  179,  180,  181,  182,  183,  184,  185,  186,  187,
    188,  189,  190,  191,  192,  193,  194,  195,  196,  197,  198,  202,  5221, 5222, 5262, 5263, 5264, 5265,
    5271, 5272, 5273, 5287, 5288, 5289, 5290, 5291, 5292, 5293, 5294, 5295, 5296, 5346, 5347, 5348, 5349, 5350,
    5399, 5400, 5401, 5402, 5403, 5404, 5405, 5406, 5407, 5408, 5409, 5410, 5411, 5412, 5413, 5414, 5415, 5416,
    5418, 5419, 5420, 5421, 5422, 5423, 5424, 5425, 5426, 5427, 5428, 5429, 5430, 5431, 5432, 5433, 5434, 5435,
    5436, 5437, 5438, 5439, 5440, 5441, 5442, 5443, 5444, 5445, 5446, 5447, 5448, 5449,
};

TEST(HelpTexts, AreThereForAllControls) {
    for (const int id : USED_IDS)
        EXPECT_FALSE(loadText(id).empty()) << id;
}

struct Triple {
    int first;
    const char* text;
};

constexpr Triple TRIPLES[] = {
    {5342, "Enable global keyboard."},     {5338, "Enable midi thru."},    {5330, "Show zone screen."},
    {5298, "Show main screen."},           {5322, "Show output screen."},  {5314, "Show oscillator screen."},
    {5279, "Show midi input screen."},     {5326, "Show layer screen."},   {5318, "Show joystick screen."},
    {5302, "Show help screen."},           {5310, "Show display screen."}, {5306, "Show control screen."},
    {5275, "Show computer input screen."}, {5334, "Show CC screen."},
};

TEST(HelpTexts, OnOffAndToggleStandInARow) {
    for (const Triple& row : TRIPLES) {
        EXPECT_EQ(loadText(row.first), row.text);
        const std::string off = loadText(row.first + 1);
        EXPECT_TRUE(off.starts_with("Hide ") || off.starts_with("Disable ")) << off;
        EXPECT_EQ(off.substr(off.find(' ')), std::string(row.text).substr(std::string(row.text).find(' ')));
        EXPECT_FALSE(loadText(row.first + 2).empty()) << row.text;
    }
}

struct Text {
    int id;
    const char* text;
};

// clang-format off
constexpr Text TEXTS[] = {
    {5271, "Moves window left or right. Enter a number preceded by - to move left that amount of pixels. Enter a number preceded by + to move right that amount of pixels. Enter a number without + or - to move to a specific pixel position."},
    {5272, "Moves window up or down. Enter a number preceded by - to move up that amount of pixels. Enter a number preceded by + to move down that amount of pixels. Enter a number without + or - to move to a specific pixel position."},
    {5273, "Set X and Y values to current position."},
    {5346, "Select the zone that will be associated with the selected midi event. Valid values are 1 - 127 or blank (no zone specified)."},
    {5347, "Selects the midi output for the midi event. If it is set to 'Default', then the event is sent through the outputs of the layer(s) it passes through."},
    {5348, "Selects the midi channel for the midi event. If it is set to 'Default', then the event gets the channel of the layer(s) it passes through."},
    {5349, "Specifies the D1 value for the midi event."},
    {5350, "Specifies the D2 value for the midi event."},
    {5399, "Specifies the value for the midi event."},
    {5400, "Select the preset to be loaded."},
    {5401, "Choose whether to load the next program, previous program, or a specific program."},
    {5402, "Specifies the number of the program to be loaded."},
    {5403, "Choose whether to select the next midi output, previous midi output, or a specific midi output."},
    {5404, "Specifies the number of the midi output to be selected."},
    {5405, "Tempo in BPM. Enter a number preceded by - to slow down the tempo that amount of BPM. Enter a number preceded by + to increase the tempo that amount of BMP. Enter a number without + or - to set a specific tempo."},
    {5406, "Choose whether to select the next oscillator, previous oscillator, or a specific oscillator."},
    {5407, "Specifies the number of the oscillator to be selected."},
    {5408, "Choose whether to select the next oscillator, previous oscillator, or a specific oscillator."},
    {5409, "Specifies the number of the oscillator to be selected."},
    {5410, "Choose whether to start/stop selected oscillators, a specific oscillator, or all oscillators."},
    {5411, "Specifies the number of the oscillator to start/stop."},
    {5412, "Start the oscillator."},
    {5413, "Stop the oscillator."},
    {5414, "Toggle the oscillator between on & off."},
    {5415, "Choose whether to change speed of selected oscillators, a specific oscillator, or all oscillators."},
    {5416, "Specifies the number of the oscillator for which to change speed."},
    {5418, "Oscillator speed. Enter a number preceded by - to reduce the speed. Enter a number preceded by + to increase the speed. Enter a number without + or - to set a specific speed."},
    {5419, "Specifies which control to select."},
    {5420, "Specifies which control to set focus to."},
    {5421, "Specifies which control to change."},
    {5422, "Specifies how to change the control. Enter a number preceded by - to decrease the control's value by that number. Enter a number preceded by + to increase the control's value by that number. Enter a number without + or - to set the control to a specific value."},
    {5423, "Specifies which control's data to send."},
    {5424, "Specifies which zone to select."},
    {5425, "Specifies which zones to transpose."},
    {5426, "Specifies how to transpose the zone. Enter a number preceded by - to decrease the zone's transpose setting by that number. Enter a number preceded by + to increase the zone's transpose setting by that number. Enter a number without + or - to set the zone to a specific transpose value."},
    {5427, "Specifies which layer to select."},
    {5428, "Specifies which layer to transpose."},
    {5429, "Specifies how to transpose the layer. Enter a number preceded by - to decrease the layer's transpose setting by that number. Enter a number preceded by + to increase the layer's transpose setting by that number. Enter a number without + or - to set the layer to a specific transpose value."},
    {5430, "Specifies which layer's velocity to change."},
    {5431, "Specifies how to change layer's velocity. Enter a number preceded by - to decrease the layer's velocity setting by that number. Enter a number preceded by + to increase the layer's velocity setting by that number. Enter a number without + or - to set the layer to a specific velocity value."},
    {5432, "Specifies which layer's mute setting to change."},
    {5433, "Specifies which layer's mono setting to change."},
    {5434, "Specifies which layer's solo setting to change."},
    {5435, "Specifies which layer's note toggle setting to change."},
    {5436, "Specifies which layer to select."},
    {5437, "Specifies which layer to select."},
    {5438, "Turn on layer mute."},
    {5439, "Turn off layer mute."},
    {5440, "Toggle layer mute."},
    {5441, "Turn on layer mono."},
    {5442, "Turn off layer mono."},
    {5443, "Toggle layer mono."},
    {5444, "Turn on layer solo."},
    {5445, "Turn off layer solo."},
    {5446, "Toggle layer solo."},
    {5447, "Turn off note toggle."},
    {5448, "Set layer to note toggle type 1."},
    {5449, "Set layer to note toggle type 2."},
    {154, "Represents a computer keyboard button. Right click to bring up the key's settings. Left click to execute the key's function. A dark green color indicates that the key is not assigned to any function - these keys change red when they are pressed. Light green indicates that the key has a function - these change brighter green when pressed. Grey keys are not used."},
};
// clang-format on

TEST(HelpTexts, OfTheSettingsOfFunctionsAndOfKeys) {
    for (const Text& row : TEXTS)
        EXPECT_EQ(loadText(row.id), row.text) << row.id;
}

TEST(HelpTexts, OfControlsMentionTheRightButton) {
    for (const int id : {148, 178, 179, 180, 181})
        EXPECT_NE(loadText(id).find("ight click"), std::string::npos) << id;
}

TEST(HelpTexts, AnIdWithoutTextIsEmpty) {
    EXPECT_EQ(loadText(5417), "");
}

}
}
