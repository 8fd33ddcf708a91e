// The ranges of stored numbers: a number at a bound is fine, one just outside is reported.
#include "Host/cli/check/FileCheck.h"
#include "tests/support/FunctionRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>

namespace Host::Cli {
namespace {

// What surrounds an element in its file.
struct Place {
    std::string before;
    std::string after;
};

const Place IN_LAYERS = {"<Layers>", "</Layers>"};
const Place IN_ARPEGGIO = {"<Layers><Layer><Arpeggio>", "</Arpeggio></Layer></Layers>"};
const Place IN_CONTROLS = {"<Controls>", "</Controls>"};
const Place IN_CONTROL = {"<Controls><Control>", "</Control></Controls>"};
const Place IN_ZONES = {"<Zones>", "</Zones>"};
const Place IN_BANK = {"<Bank>", "</Bank>"};
const Place IN_KEY = {"<ComputerInput><Key><Function><Down>", "</Down></Function></Key></ComputerInput>"};

// The complaint about one attribute's value; empty if there is none.
std::string complaintOf(const Place& place, const std::string& tag, const std::string& name, const std::string& value) {
    const std::string shown = name + "=\"" + value + "\"";
    const std::string content = place.before + "<" + tag + " " + shown + "/>" + place.after;
    PresetFiles presets("", "/nowhere at all");
    FileCheck check(content, presets);
    EXPECT_EQ(check.run(), "") << content;
    const std::string start = shown + " of " + tag + " ";
    for (const Complaint& complaint : check.getComplaints())
        if (complaint.text.starts_with(start))
            return complaint.text.substr(start.size());
    return {};
}

struct Bounds {
    std::int64_t lowest;
    std::optional<std::int64_t> highest;  // Nothing: that of 32 bits.
};

void expectBounds(const Place& place, const std::string& tag, const std::string& name, const Bounds& bounds) {
    const auto complaint = [&](std::int64_t value) { return complaintOf(place, tag, name, std::to_string(value)); };
    const std::string lowest = std::to_string(bounds.lowest);
    const std::string outside =
        bounds.highest ? "is outside " + lowest + " to " + std::to_string(*bounds.highest) : "is below " + lowest;
    EXPECT_EQ(complaint(bounds.lowest), "") << tag << " " << name;
    EXPECT_EQ(complaint(bounds.lowest - 1), outside) << tag << " " << name;
    EXPECT_EQ(complaint(bounds.highest.value_or(INT32_MAX)), "") << tag << " " << name;
    if (bounds.highest) {
        EXPECT_EQ(complaint(*bounds.highest + 1), outside) << tag << " " << name;
    }
}

TEST(AttributeFormats, NumbersHaveTheirRanges) {
    const Bounds byte = {0, 127};
    const Bounds byteOrNone = {-1, 127};
    const Bounds channel = {-1, 15};

    struct Row {
        Place place;
        const char* tag;
        const char* name;
        Bounds bounds;
    };

    const std::vector<Row> rows = {
        {IN_LAYERS, "Layer", "minVelocity", byte},
        {IN_LAYERS, "Layer", "maxVelocity", byte},
        {IN_LAYERS, "Layer", "zone", byteOrNone},
        {IN_LAYERS, "Layer", "output", byteOrNone},
        {IN_LAYERS, "Layer", "channel", channel},
        {IN_ARPEGGIO, "ChordArpeggio", "beat", {1, std::nullopt}},
        {IN_ARPEGGIO, "ChordArpeggio", "length", {0, std::nullopt}},
        {IN_ARPEGGIO, "UpArpeggio", "beat", {1, std::nullopt}},
        {IN_ARPEGGIO, "UpArpeggio", "length", {0, std::nullopt}},
        {IN_ARPEGGIO, "DownArpeggio", "beat", {1, std::nullopt}},
        {IN_ARPEGGIO, "DownArpeggio", "length", {0, std::nullopt}},
        {IN_ARPEGGIO, "UpDownArpeggio", "beat", {1, std::nullopt}},
        {IN_ARPEGGIO, "UpDownArpeggio", "length", {0, std::nullopt}},
        {IN_CONTROLS, "Control", "size", {1, 16}},
        {IN_CONTROL, "Function", "output", byteOrNone},
        {IN_CONTROL, "Function", "channel", channel},
        {IN_CONTROL, "Function", "zone", byteOrNone},
        {IN_ZONES, "Zone", "id", byte},
        {IN_ZONES, "Zone", "transpose", {-128, 127}},
        {IN_BANK, "Program", "tempo", {20, 250}},
        {IN_BANK, "Program", "tempoSource", byteOrNone},
    };

    for (const Row& row : rows)
        expectBounds(row.place, row.tag, row.name, row.bounds);
}

TEST(AttributeFormats, OnlyItsOwnRangeBoundsAControl) {
    for (const char* const name : {"value", "min", "max", "release"}) {
        for (const char* const value : {"-2147483648", "2147483647"}) {
            const std::string said = complaintOf(IN_CONTROLS, "Control", name, value);
            EXPECT_TRUE(said.empty() || said.starts_with("is outside its own ")) << name << " " << said;
        }
    }
}

// The attributes of events by their names. Others are not numbers.
std::optional<Bounds> boundsOfFunction(const std::string& tag, const std::string& name) {
    static const std::map<std::string, Bounds> bounds = {
        {"zone", {-1, 127}},      {"output", {-1, 127}},   {"channel", {-1, 15}},    {"velocity", {0, 127}},
        {"key", {0, 127}},        {"pressure", {0, 127}},  {"controller", {0, 127}}, {"program", {0, 127}},
        {"songNumber", {0, 127}}, {"busNumber", {0, 127}},
    };
    if (tag == "MidiControllerChange" && name == "value")
        return Bounds{0, 127};
    if ((tag == "MidiPitchBend" || tag == "MidiSongPosition") && name == "value")
        return Bounds{0, 16383};
    const auto found = bounds.find(name);
    return found == bounds.end() ? std::nullopt : std::optional(found->second);
}

// The names in an element's text.
std::vector<std::string> namesIn(const std::string& element) {
    std::vector<std::string> names;
    for (std::size_t at = element.find("=\""); at != std::string::npos;
         at = element.find("=\"", element.find('"', at + 2))) {
        const std::size_t start = element.rfind(' ', at) + 1;
        names.push_back(element.substr(start, at - start));
    }
    return names;
}

TEST(AttributeFormats, NumbersOfFunctionsHaveTheirRanges) {
    int numbers = 0;
    for (const auto& row : TestSupport::readFunctionRows()) {
        for (const std::string& name : namesIn(row.exampleElement)) {
            if (const auto bounds = boundsOfFunction(row.xmlTag, name)) {
                expectBounds(IN_KEY, row.xmlTag, name, *bounds);
                ++numbers;
            }
        }
    }
    EXPECT_EQ(numbers, 55);
}

TEST(AttributeFormats, NotesMayBeMissingWhereTheLayerHasNone) {
    EXPECT_EQ(complaintOf(IN_LAYERS, "Layer", "minNote", ""), "is not a note, so \"C-1\" is used");
    EXPECT_EQ(complaintOf(IN_LAYERS, "Layer", "maxNote", ""), "is not a note, so \"G9\" is used");
    EXPECT_EQ(complaintOf(IN_LAYERS, "Layer", "key", ""), "");
    EXPECT_EQ(complaintOf(IN_KEY, "MidiNoteOn", "note", ""), "is not a note, so \"\" is used");
    for (const char* const name : {"minNote", "maxNote", "key"}) {
        EXPECT_EQ(complaintOf(IN_LAYERS, "Layer", name, "127"), "");
        EXPECT_EQ(complaintOf(IN_LAYERS, "Layer", name, "128"), "is not a note from C-1 to G9; it is read as \"\"");
    }
}

}
}
