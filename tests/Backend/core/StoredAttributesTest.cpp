// Every attribute of every stored class is read, written and, if missing, given the right default.
#include "Backend/core/files/Program.h"
#include "Backend/core/xml/ElementWriter.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/input/KeyConfiguration.h"
#include "Backend/input/KeyListElement.h"
#include "Backend/input/controls/Control.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "Backend/midi/sequences/SequencePresetManager.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace Backend {
namespace {

// Reads an element, writes it and returns the text.
using Rewrite = std::string(const std::string& element);

XmlElement rootOf(const XmlDocument& document) {
    return document.getRootElement();
}

template <class Item, class... More>
std::string write(const Item& item, const More&... more) {
    std::ostringstream stream;
    item.writeXml(stream, 0, more...);
    return stream.str();
}

std::string rewriteLayer(const std::string& element) {
    return write(TestSupport::readLayers("<Layers>" + element + "</Layers>"), std::vector<Layers::LayerId>());
}

std::string rewriteArpeggio(const std::string& element) {
    return rewriteLayer("<Layer><Arpeggio>" + element + "</Arpeggio></Layer>");
}

std::string rewriteSequenceSetting(const std::string& element) {
    const SequenceManagement::SequencePresetManager presets("");
    return write(SequenceManagement::SequenceSetting(rootOf(XmlDocument(element, false)), presets));
}

std::string rewriteControl(const std::string& element) {
    return write(Controls::Control(rootOf(XmlDocument(element, false))));
}

std::string rewriteControlEvent(const std::string& element) {
    return write(Controls::ControlEvent(rootOf(XmlDocument(element, false))));
}

std::string rewriteKey(const std::string& element) {
    TestSupport::FakeHost host;
    return write(ComputerInput::KeyConfiguration(rootOf(XmlDocument(element, false)), host.mirel()));
}

std::string rewriteKeyFunction(const std::string& element) {
    return rewriteKey("<Key>" + element + "</Key>");
}

std::string rewriteZone(const std::string& element) {
    Zones::ZoneMap zones;
    zones.readXml(rootOf(XmlDocument("<Zones>" + element + "</Zones>", false)));
    return write(zones, false);
}

std::string rewriteProgram(const std::string& element) {
    std::ostringstream stream;
    writeEmptyElement(stream, 0, "Program", Program(rootOf(XmlDocument(element, false))));
    return stream.str();
}

template <class Element>
std::string rewriteAttributes(const std::string& element) {
    Element value;
    readAttributes(rootOf(XmlDocument(element, false)), value);
    std::ostringstream stream;
    writeEmptyElement(stream, 0, "List", value);
    return stream.str();
}

struct StoredAttribute {
    std::string name;
    std::string missing;
    std::string other;  // Any value but the missing one.
    bool isAlwaysWritten = true;
};

struct StoredElement {
    std::string tag;
    Rewrite* rewrite;
    std::vector<StoredAttribute> attributes;
};

const std::vector<StoredElement> ELEMENTS = {
    {"Layer",
     rewriteLayer,
     {{"mute", "false", "true"},
      {"mono", "false", "true"},
      {"toggle", "off", "type2"},
      {"useNoteStack", "true", "false"},
      {"minNote", "C-1", "C2"},
      {"maxNote", "G9", "G#4"},
      {"minVelocity", "0", "10"},
      {"maxVelocity", "127", "100"},
      {"zone", "-1", "3"},
      {"output", "-1", "2"},
      {"channel", "0", "-1"},
      {"transpose", "", "-12"},
      {"key", "", "F#-1"},
      {"velocity", "", "64"},
      {"compress", "1_1", "3_4"}}},
    {"UpArpeggio", rewriteArpeggio, {{"beat", "480", "240"}, {"length", "480", "120"}}},
    {"SequenceSetting",
     rewriteSequenceSetting,
     {{"preset", "", "a &amp; b"},
      {"useNote", "true", "false"},
      {"useVelocity", "true", "false"},
      {"useLength", "true", "false"}}},
    {"Control",
     rewriteControl,
     {{"cell", "-1,-1", "3,4"},
      {"type", "", "hfader"},
      {"name", "", "A &amp; B"},
      {"value", "0", "5"},
      {"min", "0", "100"},
      {"max", "127", "-7"},
      {"release", "-1", "6"},
      {"autoSend", "false", "true"},
      {"size", "1", "3"}}},
    {"Function",
     rewriteControlEvent,
     {{"midiEvent", "Unknown", "Controller Change,7"},
      {"output", "-1", "1"},
      {"channel", "-1", "15"},
      {"zone", "-1", "127"}}},
    {"Key", rewriteKey, {{"id", "Unknown", "Shift F1"}, {"global", "true", "false"}}},
    {"Function", rewriteKeyFunction, {{"keepSending", "false", "true"}}},
    {"Zone", rewriteZone, {{"id", "0", "5"}, {"transpose", "0", "-12"}}},
    {"Program", rewriteProgram, {{"name", "", "A &lt;B&gt;"}, {"tempo", "120", "99"}, {"tempoSource", "-1", "3"}}},
    {"List", rewriteAttributes<ListElement>, {{"merge", "false", "true"}}},
    {"List", rewriteAttributes<Zones::ZonesElement>, {{"merge", "false", "true"}}},
    {"List",
     rewriteAttributes<ComputerInput::ProgramKeysElement>,
     {{"preset", "", "P 1", false}, {"merge", "false", "true"}, {"useKeyUpMod", "false", "true"}}},
};

std::string textOf(const std::string& name, const std::string& value) {
    return " " + name + "=\"" + value + "\"";
}

// The start tag with all attributes as written, of which isSet have another value than the missing one.
template <class Condition>
std::string startTag(const StoredElement& element, Condition isSet) {
    std::string text = "<" + element.tag;
    for (const StoredAttribute& attribute : element.attributes)
        if (isSet(attribute) || attribute.isAlwaysWritten)
            text += textOf(attribute.name, isSet(attribute) ? attribute.other : attribute.missing);
    return text;
}

std::string startTagIn(const std::string& written, const StoredElement& element) {
    const std::size_t start = written.find("<" + element.tag + " ");
    EXPECT_NE(start, std::string::npos) << written;
    const std::size_t end = written.find('>', start);
    const std::string tag = start == std::string::npos ? written : written.substr(start, end - start);
    return tag.ends_with('/') ? tag.substr(0, tag.size() - 1) : tag;
}

std::string elementOf(const StoredElement& element, const std::string& startTag) {
    return startTag + ">" + "</" + element.tag + ">";
}

TEST(StoredAttributesTest, MissingOnesTakeTheirDefaults) {
    for (const StoredElement& element : ELEMENTS) {
        const std::string written = element.rewrite("<" + element.tag + "/>");
        EXPECT_EQ(startTagIn(written, element), startTag(element, [](const auto&) { return false; }));
    }
}

TEST(StoredAttributesTest, AllAreReadAndWritten) {
    for (const StoredElement& element : ELEMENTS) {
        const std::string full = startTag(element, [](const auto&) { return true; });
        EXPECT_EQ(startTagIn(element.rewrite(elementOf(element, full)), element), full);
    }
}

TEST(StoredAttributesTest, EachIsReadOnItsOwn) {
    for (const StoredElement& element : ELEMENTS) {
        for (const StoredAttribute& only : element.attributes) {
            const std::string read = "<" + element.tag + textOf(only.name, only.other);
            const std::string written = element.rewrite(elementOf(element, read));
            EXPECT_EQ(startTagIn(written, element),
                      startTag(element, [&](const auto& attribute) { return attribute.name == only.name; }));
        }
    }
}

TEST(StoredAttributesTest, EachAttributeOfAKeyCountsForEquality) {
    TestSupport::FakeHost host;
    const auto read = [&host](const std::string& attributes) {
        return ComputerInput::KeyConfiguration(rootOf(XmlDocument("<Key" + attributes + "/>", false)), host.mirel());
    };
    const std::string all = textOf("id", "A") + textOf("global", "true");
    EXPECT_TRUE(read(all) == read(all));
    EXPECT_FALSE(read(all) == read(textOf("id", "B") + textOf("global", "true")));
    EXPECT_FALSE(read(all) == read(textOf("id", "A") + textOf("global", "false")));
}

}
}
