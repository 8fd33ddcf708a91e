// All messages of the desk, as their tables list them.
#include "Backend/core/MirelMessages.h"
#include "Backend/core/WindowMessages.h"
#include "Backend/core/files/Bank.h"
#include "Backend/core/files/Program.h"
#include "Backend/core/log/DisplayMessages.h"
#include "Backend/core/settings/Rect.h"
#include "Backend/core/settings/ScreenState.h"
#include "Backend/core/version2/Version2ImportRequest.h"
#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/input/ComputerInputMessages.h"
#include "Backend/input/KeyConfigurationMap.h"
#include "Backend/input/controls/ControlMap.h"
#include "Backend/input/controls/ControlMessageManager.h"
#include "Backend/input/controls/ControlMessages.h"
#include "Backend/midi/MidiPort.h"
#include "Backend/midi/engine/MidiEngineMessages.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "Backend/midi/managers/LayerMessages.h"
#include "Backend/midi/managers/ZoneMessages.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/ProjectFolder.h"

#include <gtest/gtest.h>

#include <concepts>
#include <fstream>
#include <regex>
#include <string>
#include <tuple>
#include <vector>

namespace Backend {
namespace {

template <class Value>
Value sample() {
    if constexpr (std::is_same_v<Value, bool>)
        return true;
    else if constexpr (std::is_same_v<Value, int> || std::is_same_v<Value, char>)
        return static_cast<Value>(-5);
    else if constexpr (std::is_same_v<Value, std::string>)
        return "a text that is too long for a string to hold it inside";
    else if constexpr (std::is_same_v<Value, Cell>)
        return Cell(3, 15);
    else if constexpr (std::is_same_v<Value, Key>)
        return Key("Shift F1");
    else if constexpr (std::is_same_v<Value, SelectControlType::Mode>)
        return SelectControlType::SPECIFIC;
    else if constexpr (std::is_same_v<Value, OnOffToggle>)
        return OnOffToggle(OnOffToggle::OFF);
    else if constexpr (std::is_same_v<Value, NoteToggle>)
        return NoteToggle(NoteToggle::TYPE2);
    else if constexpr (std::is_same_v<Value, MidiEngine::MirelMidiMessage>)
        return MidiEngine::MirelMidiMessage(MidiEngine::MidiMessage::NoteOn, 60, 100, 3, 2, 1, 0, -1);
    else
        return Value();
}

template <class Value>
void expectSame(const Value& value, const Value& expected, UINT number) {
    if constexpr (std::equality_comparable<Value>) {
        EXPECT_TRUE(value == expected) << number;
    }
}

template <class Element>
void expectSame(const std::vector<Element>& elements, const std::vector<Element>& expected, UINT number) {
    EXPECT_EQ(elements.size(), expected.size()) << number;
}

template <class Row, class... Values>
void roundTrip(Row row, void (*)(Values...)) {
    const std::tuple<Values...> samples(sample<Values>()...);
    const auto post = [&](auto&& receive) {
        std::apply([&](const Values&... values) { EXPECT_TRUE(row.post(receive, values...)); }, samples);
    };
    const TestSupport::AllocationCounter heap;
    const auto unreturned = [&heap] { return MIREL_ONE_HEAP ? heap.unreturned() : 0; };
    int opened = 0;
    post([&](UINT number, WPARAM w, LPARAM l) {
        EXPECT_EQ(number, Row::NUMBER);
        row.open(w, l, [&](const Values&... values) {
            ++opened;
            std::apply([&](const Values&... expected) { (expectSame(values, expected, number), ...); }, samples);
        });
    });
    EXPECT_EQ(opened, 1) << Row::NUMBER;
    EXPECT_EQ(unreturned(), 0) << Row::NUMBER << " was handled";
    post([&](UINT, WPARAM w, LPARAM l) { row.dispose(w, l); });
    EXPECT_EQ(unreturned(), 0) << Row::NUMBER << " was disposed of";
}

template <class Function>
void forEachFamily(Function&& function) {
    function(MirelMessages::FAMILY);
    function(WindowMessages::FAMILY);
    function(ComputerInput::Messages::FAMILY);
    function(ComputerInput::WindowMessages::FAMILY);
    function(Controls::Messages::FAMILY);
    function(Controls::WindowMessages::FAMILY);
    function(Layers::Messages::FAMILY);
    function(Layers::WindowMessages::FAMILY);
    function(Zones::Messages::FAMILY);
    function(Zones::WindowMessages::FAMILY);
    function(MidiEngine::EngineMessages::FAMILY);
    function(Display::Messages::FAMILY);
}

TEST(MessageFamiliesTest, EachMessageBringsItsValuesAndLeavesNothingBehind) {
    int messages = 0;
    forEachFamily([&messages](const auto& family) {
        family.forEach([&messages](auto row) {
            ++messages;
            using Signature = typename decltype(row)::Content::Signature;
            roundTrip(row, static_cast<Signature*>(nullptr));
        });
    });
    EXPECT_EQ(messages, 50 + 43 + 8 + 5 + 9 + 6 + 7 + 11 + 3 + 3 + 14 + 11);
}

// The numbers of all messages that a table declares, except for those of finished file operations, which nobody
// handles.
std::vector<UINT> declaredIn(const std::string& header) {
    std::ifstream file(TestSupport::projectFile("src/Backend/" + header));
    const std::regex declaration(R"(^inline constexpr (?:Sent)?Message<(\d+).*> +[A-Z]\w+;.*)");
    std::vector<UINT> numbers;
    std::smatch match;
    for (std::string line; std::getline(file, line);)
        if (std::regex_match(line, match, declaration) && line.find("_DONE;") == std::string::npos)
            numbers.push_back(static_cast<UINT>(std::stoul(match[1])));
    return numbers;
}

template <class... Families>
std::vector<UINT> numbersOf(const Families&... families) {
    std::vector<UINT> numbers;
    const auto add = [&numbers](auto row) { numbers.push_back(row.NUMBER); };
    (families.forEach(add), ...);
    return numbers;
}

// A message missing from its family would be posted but never handled.
TEST(MessageFamiliesTest, EachDeclaredMessageIsListed) {
    EXPECT_EQ(declaredIn("core/MirelMessages.h"), numbersOf(MirelMessages::FAMILY));
    EXPECT_EQ(declaredIn("core/WindowMessages.h"), numbersOf(WindowMessages::FAMILY));
    EXPECT_EQ(declaredIn("core/log/DisplayMessages.h"), numbersOf(Display::Messages::FAMILY));
    EXPECT_EQ(declaredIn("midi/engine/MidiEngineMessages.h"), numbersOf(MidiEngine::EngineMessages::FAMILY));
    EXPECT_EQ(declaredIn("input/ComputerInputMessages.h"),
              numbersOf(ComputerInput::Messages::FAMILY, ComputerInput::WindowMessages::FAMILY));
    EXPECT_EQ(declaredIn("input/controls/ControlMessages.h"),
              numbersOf(Controls::Messages::FAMILY, Controls::WindowMessages::FAMILY));
    EXPECT_EQ(declaredIn("midi/managers/LayerMessages.h"),
              numbersOf(Layers::Messages::FAMILY, Layers::WindowMessages::FAMILY));
    EXPECT_EQ(declaredIn("midi/managers/ZoneMessages.h"),
              numbersOf(Zones::Messages::FAMILY, Zones::WindowMessages::FAMILY));
}

// A sender that waits for the display continues, whatever happens to its message.
TEST(MessageFamiliesTest, AMessageThatIsDisposedOfWakesItsSender) {
    using Display::Messages::SET_LISTENER;
    Platform::AutoResetEvent done;
    constexpr Display::DisplayListener* NOBODY = nullptr;
    SET_LISTENER.post([](UINT, WPARAM w, LPARAM l) { SET_LISTENER.dispose(w, l); }, &done, NOBODY);
    done.wait();
    SET_LISTENER.post([](UINT, WPARAM w, LPARAM l) { SET_LISTENER.open(w, l, [](const auto&...) {}); }, &done, NOBODY);
    done.wait();
}

// Posted to dialogs, whose windows expect these numbers.
TEST(MessageFamiliesTest, FinishedFileOperationsHaveTheirNumbers) {
    using namespace WindowMessages;
    EXPECT_EQ(SAVE_TO_PROGRAM_DONE.NUMBER, 32881u);
    EXPECT_EQ(SAVE_TO_BANK_DONE.NUMBER, 32882u);
    EXPECT_EQ(CHANGE_BANK_SIZE_DONE.NUMBER, 32883u);
    EXPECT_EQ(IMPORT_VERSION_2_BANK_DONE.NUMBER, 32891u);
    EXPECT_EQ(IMPORT_VERSION_2_PROGRAM_DONE.NUMBER, 32892u);
    EXPECT_EQ(IMPORT_VERSION_2_PRESET_DONE.NUMBER, 32893u);
}

}
}
