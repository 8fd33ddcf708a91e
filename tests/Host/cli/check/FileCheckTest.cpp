#include "Host/cli/check/FileCheck.h"

#include "Host/cli/check/FunctionFormats.h"
#include "Platform/Files.h"
#include "Platform/xml/XmlReader.h"
#include "tests/Host/cli/DeskFiles.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace Host::Cli {
namespace {

namespace Files = Platform::Files;

// The complaints about a file, as "LINE: what" each; a single "ERROR" if it is not one of the desk's.
std::vector<std::string> check(const std::string& content, const std::string& dataFolder = "/nowhere at all") {
    PresetFiles presets("", dataFolder);
    FileCheck check(content, presets);
    const std::string error = check.run();
    if (!error.empty())
        return {error};
    std::vector<std::string> lines;
    for (const Complaint& complaint : check.getComplaints())
        lines.push_back(std::to_string(complaint.line) + ": " + complaint.text);
    return lines;
}

using Said = std::vector<std::string>;

const std::string LAYER_ATTRIBUTES =
    "mute=\"false\" mono=\"false\" toggle=\"off\" useNoteStack=\"true\" minNote=\"C-1\" maxNote=\"G9\" "
    "minVelocity=\"0\" maxVelocity=\"127\" zone=\"-1\" output=\"-1\" channel=\"0\" transpose=\"\" key=\"\" "
    "velocity=\"\" compress=\"1_1\"";
const std::string CONTROL_ATTRIBUTES =
    "cell=\"0,0\" type=\"knob\" name=\"\" value=\"0\" min=\"0\" max=\"127\" release=\"-1\" autoSend=\"false\" "
    "size=\"1\"";

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

std::string layers(const std::string& content) {
    return "<Layers merge=\"false\">\n" + content + "\n</Layers>";
}

// A list of one layer on line 2, with one of its attributes changed.
std::string layerWith(const std::string& from, const std::string& to) {
    return layers("<Layer " + replaced(LAYER_ATTRIBUTES, from, to) + "></Layer>");
}

std::string controlWith(const std::string& from, const std::string& to) {
    return "<Controls merge=\"false\">\n<Control " + replaced(CONTROL_ATTRIBUTES, from, to) + "/>\n</Controls>";
}

std::string keys(const std::string& content) {
    return "<ComputerInput merge=\"false\" useKeyUpMod=\"false\">\n" + content + "\n</ComputerInput>";
}

std::string keyWith(const std::string& function) {
    return keys("<Key id=\"Q\" global=\"true\"><Function keepSending=\"false\"><Down>\n" + function +
                "\n</Down></Function></Key>");
}

// A sequence setting on line 3 and what it holds on line 4.
std::string sequenceSetting(const std::string& preset, const std::string& content) {
    return layers("<Layer " + LAYER_ATTRIBUTES + ">\n<SequenceSetting preset=\"" + preset +
                  "\" useNote=\"true\" useVelocity=\"true\" useLength=\"true\">\n" + content +
                  "\n</SequenceSetting></Layer>");
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines = {""};
    for (const char character : text) {
        if (character == '\n')
            lines.emplace_back();
        else
            lines.back() += character;
    }
    return lines;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

void collect(const Platform::XmlNode& node, std::vector<const Platform::XmlNode*>& elements) {
    if (node.name.empty())
        return;
    elements.push_back(&node);
    for (const Platform::XmlNode& child : node.children)
        collect(child, elements);
}

// A program with everything a program can hold, as a desk writes it: one tag per line.
class FullProgram : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(Files::replace(m_folder.file("in.prg"), fullProgram()));
        TestSupport::runDesk(m_folder.path(), "program \"" + m_folder.file("in.prg") + "\"\nsave-program \"" +
                                                  m_folder.file("out.prg") + "\"\n");
        m_text = Files::read(m_folder.file("out.prg")).value_or("");
        std::erase(m_text, '\r');
        m_lines = linesOf(m_text);
        m_root = Platform::readXmlWithLines(m_text);
        ASSERT_TRUE(m_root);
        collect(*m_root, m_elements);
        collectAttributes();
    }

    struct AttributeOfElement {
        const Platform::XmlNode* element;
        std::string name;
    };

    // One of each kind of element.
    void collectAttributes() {
        std::set<std::string> known;
        for (const auto* element : m_elements)
            for (const auto& [name, value] : element->attributes)
                if (known.insert(element->name + " " + name).second)
                    m_attributes.push_back({element, name});
    }

    static std::string fullProgram() { return TestSupport::fullProgram("ProgramFile"); }

    // The complaint about the file with one line replaced must be about this line.
    void expectComplaint(int number, const std::string& line, const std::string& part) {
        auto lines = m_lines;
        ASSERT_NE(lines[static_cast<std::size_t>(number - 1)], line);
        lines[static_cast<std::size_t>(number - 1)] = line;
        const Said said = check(joined(lines));
        ASSERT_FALSE(said.empty()) << line;
        EXPECT_TRUE(said.front().starts_with(std::to_string(number) + ": ")) << said.front() << " of " << line;
        EXPECT_NE(said.front().find(part), std::string::npos) << said.front() << " of " << line;
    }

    const std::string& lineOf(const Platform::XmlNode& element) const {
        return m_lines[static_cast<std::size_t>(element.line - 1)];
    }

    TestSupport::TemporaryFolder m_folder;
    std::string m_text;
    std::vector<std::string> m_lines;
    std::unique_ptr<Platform::XmlNode> m_root;
    std::vector<const Platform::XmlNode*> m_elements;
    std::vector<AttributeOfElement> m_attributes;
};

TEST_F(FullProgram, SaysNothing) {
    EXPECT_EQ(check(m_text), Said());
}

TEST_F(FullProgram, HoldsEveryFunction) {
    std::set<std::string> tags;
    for (const auto* element : m_elements)
        tags.insert(element->name);
    const auto expect = [&tags](const auto& row) {
        // NoFunction's is the only one that isn't kept.
        EXPECT_EQ(tags.contains(row.xmlTag), std::string_view(row.xmlTag) != "NoFunction") << row.xmlTag;
        EXPECT_TRUE(findFunctionFormat(row.xmlTag)) << row.xmlTag;
    };
    std::apply([&](const auto&... rows) { (expect(rows), ...); }, Backend::FunctionManagement::FUNCTION_LIST);
    for (const char* const tag : {"ChordArpeggio", "UpArpeggio", "DownArpeggio", "UpDownArpeggio", "SequenceSetting",
                                  "Sequence", "Control", "Zone", "Layer", "Key", "Down", "Up", "Function"})
        EXPECT_TRUE(tags.contains(tag)) << tag;
}

TEST_F(FullProgram, HasNoOtherElements) {
    std::set<std::string> known = {m_root->name};
    for (const auto* element : m_elements) {
        if (!known.insert(element->name).second)
            continue;
        auto lines = m_lines;
        const auto number = static_cast<std::size_t>(element->line - 1);
        lines[number] = replaced(lines[number], "<" + element->name, "<Un" + element->name);
        // Its end tag is on the same line or alone on a later one, at the same depth.
        const std::string end = "</" + element->name + ">";
        const std::string indent = lines[number].substr(0, lines[number].find('<'));
        for (std::size_t i = number; i < lines.size() && !lines[number].ends_with("/>"); ++i) {
            if (lines[i] != indent + end && (i != number || !lines[i].ends_with(end)))
                continue;
            lines[i] = replaced(lines[i], end, "</Un" + element->name + ">");
            break;
        }
        const std::string expected = std::to_string(element->line) + ": unknown element \"Un" + element->name + "\"";
        const Said said = check(joined(lines));
        EXPECT_TRUE(std::any_of(said.begin(), said.end(), [&](const auto& line) { return line.starts_with(expected); }))
            << expected;
    }
}

TEST_F(FullProgram, HasNoOtherAttributes) {
    for (const auto& [element, name] : m_attributes)
        expectComplaint(element->line, replaced(lineOf(*element), " " + name + "=", " un" + name + "="),
                        "unknown attribute \"un" + name + "\" of " + element->name + " is ignored");
}

TEST_F(FullProgram, MissesWhatIsAlwaysWritten) {
    const std::set<std::string> optional = {"zone", "output", "channel"};
    for (const auto& [element, name] : m_attributes) {
        const bool isOfFunction = findFunctionFormat(element->name) != nullptr;
        if (name == "useKeyUpMod" || (isOfFunction && optional.contains(name)))
            continue;
        const std::string line = lineOf(*element);
        const std::size_t start = line.find(" " + name + "=\"");
        const std::size_t end = line.find('"', start + name.size() + 3) + 1;
        expectComplaint(element->line, line.substr(0, start) + line.substr(end),
                        element->name + " lacks " + name + ", so \"");
    }
}

TEST_F(FullProgram, ReadsNoNonsense) {
    const std::set<std::string> texts = {"name", "preset"};
    for (const auto& [element, name] : m_attributes) {
        if (texts.contains(name))
            continue;
        const std::string line = lineOf(*element);
        const std::size_t start = line.find(" " + name + "=\"") + name.size() + 3;
        expectComplaint(element->line, line.substr(0, start) + "?!" + line.substr(line.find('"', start)),
                        name + "=\"?!\" of " + element->name + " ");
    }
}

TEST(FileCheck, RecognisesFilesByTheirRoots) {
    for (const char* const text : {"<Bank/>", "<Layers merge=\"false\"/>", "<Controls merge=\"true\"/>",
                                   "<ComputerInput merge=\"no\"/>", "<Zones merge=\"false\"/>", "<Sequence/>",
                                   "<Sequence>0,12</Sequence>", "<ProgramFile><Program name=\"\"/></ProgramFile>",
                                   "<MirelProgramFile><Program name=\"\"/></MirelProgramFile>"})
        EXPECT_EQ(check(text), Said()) << text;
}

TEST(FileCheck, RefusesWhatIsNotAFileOfTheDesk) {
    EXPECT_EQ(check("<Layer/>"), Said{"is not a program, bank, preset or sequence but an element \"Layer\""});
    EXPECT_EQ(check("<layers/>"), Said{"is not a program, bank, preset or sequence but an element \"layers\""});
    std::string deep;
    for (int i = 0; i < 1000; ++i)
        deep += "<Layers>";
    using namespace std::string_literals;
    for (const std::string& text : {""s, " \n"s, "hello"s, "<Layers"s, "<Layers><Layer></Layers>"s, "<Bank/><Bank/>"s,
                                    "<!DOCTYPE Layers><Layers merge=\"false\"/>"s, "MThd\0\0\0\6"s,
                                    "\x7f"
                                    "ELF\0\1"s,
                                    "<Layers\0/>"s, "\xFF\xFE<"s, "<Layers merge=\"\xE9\"/>"s, deep})
        EXPECT_EQ(check(text), Said{"is not well-formed XML"}) << text;
}

struct ValueCase {
    std::string content;
    std::string said;  // Empty: nothing.
};

void expectEach(const std::vector<ValueCase>& cases) {
    for (const ValueCase& row : cases) {
        const Said said = check(row.content);
        if (row.said.empty()) {
            EXPECT_EQ(said, Said()) << row.content;
        } else {
            ASSERT_EQ(said.size(), 1u) << row.content;
            EXPECT_EQ(said.front().substr(said.front().find(' ') + 1), row.said);
        }
    }
}

TEST(FileCheck, JudgesFlags) {
    expectEach({
        {layerWith("mute=\"false\"", "mute=\"YES\""), ""},
        {layerWith("mute=\"false\"", "mute=\"True\""),
         "mute=\"True\" of Layer is neither true nor false, so \"false\" is used"},
    });
}

TEST(FileCheck, JudgesNumbers) {
    expectEach({
        {layerWith("minVelocity=\"0\"", "minVelocity=\" +7\""), ""},
        {layerWith("minVelocity=\"0\"", "minVelocity=\"7x\""), "minVelocity=\"7x\" of Layer is read as \"7\""},
        {layerWith("minVelocity=\"0\"", "minVelocity=\"128\""), "minVelocity=\"128\" of Layer is outside 0 to 127"},
        {layerWith("maxVelocity=\"127\"", "maxVelocity=\"99999999999\""),
         "maxVelocity=\"99999999999\" of Layer is not a number of 32 bits, so \"127\" is used"},
        {layerWith("channel=\"0\"", "channel=\"-1\""), ""},
        {layerWith("channel=\"0\"", "channel=\"16\""), "channel=\"16\" of Layer is outside -1 to 15"},
        {layerWith("zone=\"-1\"", "zone=\"-2\""), "zone=\"-2\" of Layer is outside -1 to 127"},
        {layerWith("output=\"-1\"", "output=\"128\""), "output=\"128\" of Layer is outside -1 to 127"},
    });
}

TEST(FileCheck, JudgesNotes) {
    expectEach({
        {layerWith("minNote=\"C-1\"", "minNote=\"eb2\""), ""},
        {layerWith("minNote=\"C-1\"", "minNote=\"60\""), ""},
        {layerWith("minNote=\"C-1\"", "minNote=\"C\""), ""},
        {layerWith("minNote=\"C-1\"", "minNote=\"H2\""),
         "minNote=\"H2\" of Layer is not a note from C-1 to G9; it is read as \"C2\""},
        {layerWith("minNote=\"C-1\"", "minNote=\"C30\""),
         "minNote=\"C30\" of Layer is not a note from C-1 to G9; it is read as \"G#8\""},
        {layerWith("minNote=\"C-1\"", "minNote=\"Cb-1\""),
         "minNote=\"Cb-1\" of Layer is not a note from C-1 to G9; it is read as \"\""},
        {layerWith("minNote=\"C-1\"", "minNote=\"128\""),
         "minNote=\"128\" of Layer is not a note from C-1 to G9; it is read as \"\""},
        {layerWith("maxNote=\"G9\"", "maxNote=\"\""), "maxNote=\"\" of Layer is not a note, so \"G9\" is used"},
        {layerWith("key=\"\"", "key=\"A\""), ""},
        {layerWith("key=\"\"", "key=\"x\""), "key=\"x\" of Layer is not a note from C-1 to G9; it is read as \"C4\""},
    });
}

TEST(FileCheck, JudgesAmountsRatiosAndSelectors) {
    expectEach({
        {layerWith("transpose=\"\"", "transpose=\"-12\""), ""},
        {layerWith("transpose=\"\"", "transpose=\"up\""),
         "transpose=\"up\" of Layer is not an amount such as +5, -5 or 5"},
        {layerWith("compress=\"1_1\"", "compress=\"3/4\""), ""},
        {layerWith("compress=\"1_1\"", "compress=\"3\""), ""},
        {layerWith("compress=\"1_1\"", "compress=\"0_500\""), "compress=\"0_500\" of Layer is read as \"1_99\""},
        {layerWith("toggle=\"off\"", "toggle=\"type3\""), "toggle=\"type3\" of Layer is read as \"off\""},
    });
}

TEST(FileCheck, JudgesAttributesOfControls) {
    expectEach({
        {controlWith("type=\"knob\"", "type=\"\""), ""},
        {controlWith("type=\"knob\"", "type=\"Knob\""), "type=\"Knob\" of Control is read as \"\""},
        {controlWith("cell=\"0,0\"", "cell=\" 15, 15\""), ""},
        {controlWith("cell=\"0,0\"", "cell=\"16,0\""), "cell=\"16,0\" of Control is not a cell from 0,0 to 15,15"},
        {controlWith("cell=\"0,0\"", "cell=\"3\""), "cell=\"3\" of Control is not a cell from 0,0 to 15,15"},
        {controlWith("cell=\"0,0\"", "cell=\"1,2,3\""), "cell=\"1,2,3\" of Control is read as \"1,2\""},
        {controlWith("size=\"1\"", "size=\"0\""), "size=\"0\" of Control is outside 1 to 16"},
        {controlWith("value=\"0\"", "value=\"128\""), "value=\"128\" of Control is outside its own 0 to 127"},
        {controlWith("min=\"0\" max=\"127\"", "min=\"127\" max=\"0\""), ""},
        {controlWith("release=\"-1\"", "release=\"200\""), "release=\"200\" of Control is outside its own 0 to 127"},
    });
}

TEST(FileCheck, JudgesZones) {
    expectEach({
        {"<Zones merge=\"true\"/>", "merge=\"true\" of Zones has no effect; the desk reads it as false"},
        {"<Zones merge=\"false\"><Zone id=\"128\" transpose=\"0\"/></Zones>", "id=\"128\" of Zone is outside 0 to 127"},
        {"<Zones merge=\"false\"><Zone id=\"1\" transpose=\"-129\"/></Zones>",
         "transpose=\"-129\" of Zone is outside -128 to 127"},
    });
}

TEST(FileCheck, JudgesValuesOfFunctions) {
    expectEach({
        {keyWith("<MidiNoteOn note=\"C4\" velocity=\"128\"/>"), "velocity=\"128\" of MidiNoteOn is outside 0 to 127"},
        {keyWith("<MidiNoteOn channel=\"16\" note=\"C4\" velocity=\"1\"/>"),
         "channel=\"16\" of MidiNoteOn is outside -1 to 15"},
        {keyWith("<MidiPitchBend value=\"16384\"/>"), "value=\"16384\" of MidiPitchBend is outside 0 to 16383"},
        {keyWith("<ShowHelp type=\"yes\"/>"), "type=\"yes\" of ShowHelp is read as \"toggle\""},
        {keyWith("<ChangeProgram type=\"up\"/>"), ""},
        {keyWith("<ChangeProgram type=\"12\"/>"), ""},
        {keyWith("<ChangeProgram type=\"-1\"/>"), "type=\"-1\" of ChangeProgram is below 0"},
        {keyWith("<ChangeProgram type=\"next\"/>"),
         "type=\"next\" of ChangeProgram is not a number of 32 bits, so \"0\" is used"},
        {keyWith("<SelectControl type=\"left\"/>"), ""},
        {keyWith("<SelectControl type=\"2,5\"/>"), ""},
        {keyWith("<SelectControl type=\"-1,-1\"/>"), ""},
        {keyWith("<SelectControl type=\"2,16\"/>"), "type=\"2,16\" of SelectControl is not a cell from 0,0 to 15,15"},
        {keyWith("<ChangeTempo value=\"++1\"/>"), "value=\"++1\" of ChangeTempo is not an amount such as +5, -5 or 5"},
        {keyWith("<NoFunction/>"), ""},
    });
}

TEST(FileCheck, JudgesNamesOfKeys) {
    expectEach({
        {keys("<Key id=\"\" global=\"true\"/>"), ""},
        {keys("<Key id=\"Unknown\" global=\"true\"/>"), ""},
        {keys("<Key id=\"Shift Control Alt Win Numpad Enter\" global=\"true\"/>"), ""},
        {keys("<Key id=\"Left Shift\" global=\"true\"/>"),
         "id=\"Left Shift\" of Key is not the name of a key, so no key triggers it"},
        {keys("<Key id=\"shift F1\" global=\"true\"/>"),
         "id=\"shift F1\" of Key is not the name of a key, so no key triggers it"},
    });
}

TEST(FileCheck, JudgesSequences) {
    expectEach({
        {"<Sequence>0 V10 L240,12|7, -,,v-3</Sequence>", ""},
        {"<Sequence>0,a,12</Sequence>", "the sequence holds \"a\", which can't be read"},
        {"<Sequence>0 Vx</Sequence>", "the sequence holds \"Vx\", which can't be read"},
        {"<Sequence>1 2 3 4</Sequence>",
         "the sequence holds more than three offsets in one item; the rest are ignored"},
    });
}

TEST(FileCheck, JudgesEventsOfControls) {
    const auto event = [](const std::string& attributes) {
        return "<Controls merge=\"false\">\n<Control " + CONTROL_ATTRIBUTES + ">\n<Function " + attributes +
               "/>\n</Control></Controls>";
    };

    const std::string routing = " output=\"-1\" channel=\"-1\" zone=\"-1\"";
    EXPECT_EQ(check(event("midiEvent=\"Note On,60\"" + routing)), Said());
    EXPECT_EQ(check(event("midiEvent=\"Note on\"" + routing)),
              Said{"3: midiEvent=\"Note on\" of Function is not a MIDI event"});
    EXPECT_EQ(check(event("midiEvent=\"Controller Change\"" + routing)),
              Said{"3: midiEvent=\"Controller Change\" of Function is read as \"Controller Change,0\""});
    EXPECT_EQ(check(event("midiEvent=\"Controller Change,200\"" + routing)),
              Said{"3: midiEvent=\"Controller Change,200\" of Function has a number outside 0 to 127"});
    EXPECT_EQ(check(event("midiEvent=\"Pitch Bend\"")),
              (Said{"3: Function lacks output, so \"-1\" is used", "3: Function lacks channel, so \"-1\" is used",
                    "3: Function lacks zone, so \"-1\" is used"}));
}

TEST(FileCheck, ReportsDuplicateIds) {
    EXPECT_EQ(check(keys("<Key id=\"Q\" global=\"true\"/>\n<Key id=\"W\" global=\"true\"/>\n"
                         "<Key id=\"Q\" global=\"true\"/>\n<Key id=\"Q\" global=\"true\"/>")),
              (Said{"4: Key \"Q\" replaces the one on line 2", "5: Key \"Q\" replaces the one on line 4"}));
    EXPECT_EQ(check("<Controls merge=\"false\">\n<Control " + CONTROL_ATTRIBUTES + "/>\n<Control " +
                    replaced(CONTROL_ATTRIBUTES, "0,0", "0, 0") + "/></Controls>"),
              Said{"3: Control \"0, 0\" replaces the one on line 2"});
    EXPECT_EQ(
        check("<Zones merge=\"false\">\n<Zone id=\"3\" transpose=\"1\"/>\n<Zone id=\"3\" transpose=\"2\"/></Zones>"),
        Said{"3: Zone \"3\" replaces the one on line 2"});
}

TEST(FileCheck, ReportsElementsOfWhichOneCounts) {
    const std::string show = "<ShowHelp type=\"on\"/>";
    const auto function = [](const std::string& content) {
        return keys("<Key id=\"Q\" global=\"true\"><Function keepSending=\"false\">\n" + content +
                    "\n</Function></Key>");
    };
    EXPECT_EQ(check(function("<Down>" + show + "</Down>\n<Down>" + show + "</Down>")),
              Said{"4: there is a Down on line 3 already; the first one counts"});
    EXPECT_EQ(check(function("<Up/>\n<Up><NoFunction/></Up>\n<Up>" + show + "</Up>")), Said());
    EXPECT_EQ(check(function("<Up>" + show + "\n" + show + "</Up>")),
              Said{"4: ShowHelp is ignored because Up holds another element before it"});
    EXPECT_EQ(check(function("<Up><Nonsense/>\n" + show + "</Up>")),
              (Said{"3: unknown element \"Nonsense\" in Up is ignored",
                    "4: ShowHelp is ignored because Up holds another element before it"}));

    const std::string up = "<UpArpeggio beat=\"1\" length=\"0\"/>";
    EXPECT_EQ(check(layers("<Layer " + LAYER_ATTRIBUTES + "><Arpeggio><!-- up --><Side/>\n" + up + "\n" + up +
                           "</Arpeggio>\n<Arpeggio>" + up + "</Arpeggio></Layer>")),
              (Said{"2: unknown element \"Side\" in Arpeggio is ignored",
                    "4: UpArpeggio is ignored because Arpeggio holds another element before it",
                    "5: there is a Arpeggio on line 2 already; the last one counts"}));
    EXPECT_EQ(check(layers("<Layer " + LAYER_ATTRIBUTES +
                           "><Arpeggio><UpArpeggio beat=\"0\" length=\"-1\"/></Arpeggio></Layer>")),
              (Said{"2: beat=\"0\" of UpArpeggio is below 1", "2: length=\"-1\" of UpArpeggio is below 0"}));
    EXPECT_EQ(check(sequenceSetting("", "<Sequence>0</Sequence>\n<Sequence>1</Sequence>")),
              Said{"5: there is a Sequence on line 4 already; the first one counts"});
    EXPECT_EQ(check("<ProgramFile><Program name=\"\"/>\n<Program name=\"\"/></ProgramFile>"),
              Said{"2: there is a Program on line 1 already; the first one counts"});
}

TEST(FileCheck, ReportsText) {
    EXPECT_EQ(check(layers("<!-- a comment is fine -->\nhello")), Said{"1: text in Layers is ignored: \"hello\""});
    EXPECT_EQ(check("<Sequence>0<b/></Sequence>"), Said{"1: unknown element \"b\" in Sequence"});
}

TEST(FileCheck, LetsAnEmptyProgramHaveANameAlone) {
    EXPECT_EQ(check("<Bank>\n<Program name=\"Empty\">\n</Program>\n</Bank>"), Said());
    EXPECT_EQ(check("<Bank>\n<Program>\n</Program>\n</Bank>").back(), "2: Program lacks name, so \"\" is used");
}

TEST(FileCheck, MissesWhatAProgramAlwaysHolds) {
    EXPECT_EQ(
        check("<ProgramFile>\n<Program name=\"\" tempo=\"19\">\n<Zones merge=\"false\"/></Program></ProgramFile>"),
        (Said{"2: tempo=\"19\" of Program is outside 20 to 250", "2: Program lacks tempoSource, so \"-1\" is used",
              "2: Program lacks ComputerInput, which counts as empty",
              "2: Program lacks Controls, which counts as empty", "2: Program lacks Layers, which counts as empty"}));
    EXPECT_EQ(check("<ProgramFile/>"), Said{"1: ProgramFile lacks Program, which counts as empty"});
}

TEST(FileCheck, WantsTheProgramFirstInTheStringForm) {
    EXPECT_EQ(check("<MirelProgramFile>\n<!-- hidden -->\n<Program name=\"\"/></MirelProgramFile>"),
              Said{"3: the program is ignored because something precedes it"});
}

TEST(FileCheck, TakesThePresetOfKeysInProgramsOnly) {
    EXPECT_EQ(check("<ComputerInput preset=\"x\" merge=\"false\"/>"),
              Said{"1: unknown attribute \"preset\" of ComputerInput is ignored"});
}

TEST(FileCheck, KeepsALineALine) {
    EXPECT_EQ(check("<Layers merge=\"a&#10;b\"/>"),
              Said{"1: merge=\"a b\" of Layers is neither true nor false, so \"false\" is used"});
    const std::string said = check("<Layers merge=\"" + std::string(59, 'x') + "\xC3\xA9yyy\"/>").front();
    EXPECT_EQ(said.substr(0, said.find(" of")), "1: merge=\"" + std::string(59, 'x') + "...\"");
}

// References to presets.
class PresetReferences : public testing::Test {
protected:
    void addPreset(const std::string& place, const std::string& file) {
        const std::string folder = m_folder.file(place);
        ASSERT_TRUE(Files::createFolders(folder));
        ASSERT_TRUE(Files::replace(Files::join(folder, file), "<x/>"));
    }

    std::string program(const std::string& preset, const std::string& content = "") const {
        return "<ProgramFile><Program name=\"\" tempo=\"120\" tempoSource=\"-1\">\n<ComputerInput preset=\"" + preset +
               "\" merge=\"false\" useKeyUpMod=\"false\">\n" + content +
               "</ComputerInput><Controls merge=\"false\"/><Layers merge=\"false\"/><Zones merge=\"false\"/>"
               "</Program></ProgramFile>";
    }

    Said checkInData(const std::string& content) { return check(content, m_folder.path()); }

    TestSupport::TemporaryFolder m_folder;
};

TEST_F(PresetReferences, AreLookedUpInTheDataFolder) {
    addPreset("Computer Input Presets", "Mine.pst");
    addPreset("Control Presets", "Faders.pst");
    addPreset("Default/Layer Presets", "Split.pst");
    addPreset("Sequences", "Up.seq");

    EXPECT_EQ(checkInData(program(" Mine ")), Said());
    EXPECT_EQ(checkInData(program("Faders")), Said{"2: there is no computer input preset \"Faders\""});

    for (const auto& [function, preset] :
         {std::pair("LoadComputerInputPreset", "Mine"), std::pair("LoadControlPreset", "Faders"),
          std::pair("LoadLayerPreset", "Split")}) {
        const std::string tag = std::string("<") + function + " preset=\"";
        EXPECT_EQ(checkInData(keyWith(tag + preset + "\"/>")), Said());
        EXPECT_EQ(checkInData(keyWith(tag + "\"/>")), Said());
        EXPECT_EQ(checkInData(keyWith(tag + "Up\"/>")).size(), 1u);
    }

    EXPECT_EQ(checkInData(keyWith("<LoadLayerPreset preset=\"gone\"/>")), Said{"3: there is no layer preset \"gone\""});
    EXPECT_EQ(checkInData(keyWith("<LoadControlPreset preset=\"gone\"/>")),
              Said{"3: there is no control preset \"gone\""});
    EXPECT_EQ(checkInData(sequenceSetting("Up", "")), Said());
    EXPECT_EQ(checkInData(sequenceSetting("Down", "")), Said{"3: there is no sequence preset \"Down\""});
}

TEST_F(PresetReferences, OfMissingScreensAreNotLookedUp) {
    for (const char* const function : {"LoadMidiInputPreset", "LoadOscillatorPreset", "LoadJoystickInputPreset"})
        EXPECT_EQ(checkInData(keyWith(std::string("<") + function + " preset=\"any\"/>")), Said());
}

TEST_F(PresetReferences, LeadNowhereElse) {
    addPreset("Layer Presets", "Split.pst");
    EXPECT_EQ(checkInData(keyWith("<LoadLayerPreset preset=\"../Layer Presets/Split\"/>")).size(), 1u);
    EXPECT_EQ(checkInData(keyWith("<LoadLayerPreset preset=\"Split.pst\"/>")).size(), 1u);
}

TEST_F(PresetReferences, WinOverWhatStandsInTheElement) {
    addPreset("Computer Input Presets", "Mine.pst");
    addPreset("Sequences", "Up.seq");
    EXPECT_EQ(checkInData(program("Mine", "<Key id=\"Q\" global=\"true\"/>")),
              Said{"3: the keys are ignored because those of the preset \"Mine\" are used"});
    EXPECT_EQ(checkInData(sequenceSetting("Up", "<Sequence>0</Sequence>")),
              Said{"4: the sequence is ignored because that of the preset \"Up\" is used"});
}

}
}
