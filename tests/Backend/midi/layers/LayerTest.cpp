#include "Backend/midi/layers/Layer.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/midi/arpeggios/ArpeggioFactory.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/sequences/SequencePresetManager.h"
#include "tests/support/EngineFixture.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Backend::Layers {
namespace {

std::string write(const LayerList& layers) {
    std::ostringstream stream;
    layers.writeXml(stream, 1, {});
    return stream.str();
}

Layer readLayer(const std::string& layer) {
    LayerList layers = TestSupport::readLayers("<Layers>" + layer + "</Layers>");
    return *layers.find(LayerId{0});
}

constexpr const char* ATTRIBUTES_OF_A_NEW_LAYER =
    "mute=\"false\" mono=\"false\" toggle=\"off\" useNoteStack=\"true\" minNote=\"C-1\" maxNote=\"G9\" "
    "minVelocity=\"0\" maxVelocity=\"127\" zone=\"-1\" output=\"-1\" channel=\"0\" transpose=\"\" key=\"\" "
    "velocity=\"\" compress=\"1_1\"";

TEST(LayerTest, DefaultListIsOneLayerThatLetsEverythingPass) {
    LayerList layers = TestSupport::readLayers(LayerList::DEFAULT_XML);
    ASSERT_EQ(layers.size(), 1u);
    EXPECT_EQ(write(layers), std::string("\t<Layers merge=\"false\">\n\t\t<Layer ") + ATTRIBUTES_OF_A_NEW_LAYER +
                                 ">\n\t\t</Layer>\n\t</Layers>\n");
    EXPECT_STREQ(
        LayerList::DEFAULT_XML,
        "\t<Layers merge=\"false\">\t\t<Layer mute=\"false\" mono=\"false\" toggle=\"off\" "
        "useNoteStack=\"true\" minNote=\"C-1\" maxNote=\"G9\" minVelocity=\"0\" maxVelocity=\"127\" zone=\"-1\" "
        "output=\"-1\" channel=\"0\" transpose=\"\" key=\"\" velocity=\"\" compress=\"1_1\">\t\t</Layer>\t</Layers>");
}

TEST(LayerTest, MissingAttributesTakeTheirDefaults) {
    const Layer layer = readLayer("<Layer/>");
    EXPECT_EQ(layer.id, 0);
    EXPECT_FALSE(layer.selected || layer.mute || layer.mono || layer.solo);
    EXPECT_TRUE(layer.useNoteStack);
    EXPECT_EQ(layer.minNote.getNumber(), 0);
    EXPECT_EQ(layer.maxNote.getNumber(), 127);
    EXPECT_EQ(layer.minVelocity, 0);
    EXPECT_EQ(layer.maxVelocity, 127);
    EXPECT_EQ(layer.zone, -1);
    EXPECT_EQ(layer.output, -1);
    EXPECT_EQ(layer.channel, 0);
    EXPECT_EQ(layer.transpose, RelativeFixedValue(true, 0));
    EXPECT_EQ(layer.key.getNumber(), 255);
    EXPECT_EQ(layer.velocity, RelativeFixedValue(true, 0));
    EXPECT_EQ(layer.compress, Fraction(1, 1));
    EXPECT_EQ(layer.toggle.getState(), NoteToggle::OFF);
    EXPECT_EQ(layer.arpeggio, nullptr);
    EXPECT_FALSE(layer.sequenceSetting.getSequence().hasNodes());
    EXPECT_EQ(Layer().id, -1);
}

TEST(LayerTest, AFullLayerIsWrittenAndReadBack) {
    const std::string xml =
        "\t<Layers merge=\"false\">\n"
        "\t\t<Layer mute=\"true\" mono=\"true\" toggle=\"type2\" useNoteStack=\"false\" minNote=\"C2\" maxNote=\"G#4\" "
        "minVelocity=\"10\" maxVelocity=\"100\" zone=\"3\" output=\"2\" channel=\"-1\" transpose=\"-12\" key=\"F#-1\" "
        "velocity=\"64\" compress=\"3_4\">\n"
        "\t\t\t<Arpeggio>\n"
        "\t\t\t\t<UpDownArpeggio beat=\"240\" length=\"120\"/>\n"
        "\t\t\t</Arpeggio>\n"
        "\t\t\t<SequenceSetting preset=\"\" useNote=\"true\" useVelocity=\"false\" useLength=\"true\">\n"
        "\t\t\t\t<Sequence>0,12|7 V5,-</Sequence>\n"
        "\t\t\t</SequenceSetting>\n"
        "\t\t</Layer>\n"
        "\t</Layers>\n";
    EXPECT_EQ(write(TestSupport::readLayers(xml)), xml);
}

TEST(LayerTest, ASequenceWithoutNodesIsNotWritten) {
    EXPECT_EQ(write(TestSupport::readLayers("<Layers><Layer><SequenceSetting preset=\"x\"/></Layer></Layers>"))
                  .find("SequenceSetting"),
              std::string::npos);
}

TEST(LayerTest, MergeAppendsAndReplacesAsItSays) {
    const SequenceManagement::SequencePresetManager presets("");
    LayerList layers = TestSupport::readLayers("<Layers><Layer/><Layer/></Layers>");
    layers.readXml(XmlDocument("<Layers merge=\"true\"><Layer channel=\"5\"/></Layers>", false).getRootElement(),
                   presets);
    ASSERT_EQ(layers.size(), 3u);
    EXPECT_EQ(layers.find(LayerId{2})->id, 2);
    EXPECT_EQ(layers.find(LayerId{2})->channel, 5);
    layers.readXml(XmlDocument("<Layers merge=\"false\"><Layer channel=\"6\"/></Layers>", false).getRootElement(),
                   presets);
    ASSERT_EQ(layers.size(), 1u);
    EXPECT_EQ(layers.find(LayerId{0})->id, 0);
    EXPECT_EQ(layers.find(LayerId{0})->channel, 6);
}

TEST(LayerTest, ListFindsByPlaceAndWalksInOrder) {
    LayerList layers = TestSupport::readLayers("<Layers><Layer channel='1'/><Layer channel='2'/></Layers>");
    EXPECT_EQ(layers.find(LayerId{-1}), nullptr);
    EXPECT_EQ(layers.find(LayerId{2}), nullptr);
    const auto iterator = layers.createIterator();
    ASSERT_TRUE(iterator->hasNext());
    EXPECT_EQ(iterator->next()->channel, 1);
    EXPECT_EQ(iterator->next()->channel, 2);
    EXPECT_FALSE(iterator->hasNext());
    EXPECT_EQ(iterator->next(), nullptr);
}

TEST(LayerTest, CopiesAreDeep) {
    const Layer layer = readLayer("<Layer><Arpeggio><UpArpeggio beat=\"240\"/></Arpeggio></Layer>");
    Layer copy(layer);
    ASSERT_NE(copy.arpeggio, nullptr);
    EXPECT_NE(copy.arpeggio, layer.arpeggio);
    copy.arpeggio->setBeat(60);
    EXPECT_EQ(layer.arpeggio->getBeat().getPpq(), 240);
    Layer assigned;
    assigned = layer;
    EXPECT_EQ(assigned.arpeggio->toString(), layer.arpeggio->toString());
}

TEST(LayerTest, CopiesAreSelectedAndSoloedLikeTheOriginal) {
    for (const bool flag : {false, true}) {
        Layer layer;
        layer.selected = flag;
        layer.solo = !flag;
        const Layer copy(layer);
        EXPECT_EQ(copy.selected, flag);
        EXPECT_EQ(copy.solo, !flag);
    }
}

TEST(LayerTest, SelectionAndSoloAreNeitherReadNorWritten) {
    const Layer read = readLayer("<Layer selected='true' solo='true' id='5'/>");
    EXPECT_FALSE(read.selected);
    EXPECT_FALSE(read.solo);
    EXPECT_EQ(read.id, 0);
    LayerList layers = TestSupport::readLayers("<Layers><Layer/></Layers>");
    const std::string plain = write(layers);
    layers.find(LayerId{0})->selected = true;
    layers.find(LayerId{0})->solo = true;
    EXPECT_EQ(write(layers), plain);
}

TEST(LayerTest, DescribingTextHasAPartForEachThingThatIsSet) {
    struct Row {
        const char* layer;
        const char* text;
    };

    const Row rows[] = {
        {"<Layer/>", "L:1  Ch:1"},
        {"<Layer channel='15'/>", "L:1  Ch:16"},
        {"<Layer zone='0'/>", "L:1  Ch:1  Z:1"},
        {"<Layer minVelocity='1'/>", "L:1  Ch:1  VR:1-127"},
        {"<Layer maxVelocity='99'/>", "L:1  Ch:1  VR:0-99"},
        {"<Layer output='0'/>", "L:1  Ch:1  O:Synth"},
        {"<Layer transpose='+5'/>", "L:1  Ch:1  T:+5"},
        {"<Layer transpose='60'/>", "L:1  Ch:1  T:60"},
        {"<Layer transpose='0'/>", "L:1  Ch:1  T:0"},
        {"<Layer transpose='+5' key='G'/>", "L:1  Ch:1  T:+5  K:G"},
        {"<Layer key='G'/>", "L:1  Ch:1"},
        {"<Layer velocity='-5'/>", "L:1  Ch:1  V:-5"},
        {"<Layer compress='1_2'/>", "L:1  Ch:1  Comp:1/2"},
        {"<Layer toggle='type1'/>", "L:1  Ch:1  TOGGLE1"},
        {"<Layer toggle='type2'/>", "L:1  Ch:1  TOGGLE2"},
        {"<Layer mono='true'/>", "L:1  Ch:1  MONO"},
        {"<Layer useNoteStack='false'/>", "L:1  Ch:1  STACK OFF"},
        {"<Layer><Arpeggio><UpArpeggio beat='240' length='120'/></Arpeggio></Layer>", "L:1  Ch:1  Up Arp 1/8 Len:1/16"},
        {"<Layer channel='1' zone='2' minVelocity='3' maxVelocity='4' output='5' transpose='-6' key='C#' velocity='+7' "
         "compress='8_9' toggle='type1' mono='true' useNoteStack='false'><Arpeggio><ChordArpeggio beat='500' "
         "length='480'/></Arpeggio></Layer>",
         "L:1  Ch:2  Z:3  VR:3-4  O:Synth  T:-6  K:C#  V:+7  Comp:8/9  TOGGLE1  MONO  STACK OFF  Chord Arp 500 "
         "Len:1/4"},
    };

    for (const Row& row : rows)
        EXPECT_EQ(readLayer(row.layer).describe("Synth"), row.text) << row.layer;
}

TEST(LayerTest, TenThousandLayersAreReadAndPlayed) {
    TestSupport::EngineFixture fixture;
    fixture.setLayers(TestSupport::repeatLayer("<Layer/>", 10000));
    fixture.post(MidiEngine::MidiMessage::NoteOn, 60, 100);
    fixture.engine->playTimeSlice(0, 1);
    fixture.engine->playTimeSlice(1, 2);
    EXPECT_EQ(fixture.host.played.size(), 10000u);
}

TEST(ArpeggioFactoryTest, NamesGiveTheirKinds) {
    const char* const names[][2] = {
        {"ChordArpeggio", "Chord"}, {"UpArpeggio", "Up"}, {"DownArpeggio", "Down"}, {"UpDownArpeggio", "Up + Down"}};

    for (int type = 0; type < 4; ++type) {
        const auto byName = ArpeggioManagement::createArpeggio(names[type][0]);
        ASSERT_NE(byName, nullptr);
        EXPECT_STREQ(byName->getTypeName(), names[type][0]);
        EXPECT_STREQ(byName->getDisplayName(), names[type][1]);
        EXPECT_EQ(byName->getBeat().getPpq(), 480);
        EXPECT_EQ(byName->getLength().getPpq(), 480);
        EXPECT_EQ(byName->getRunningSince(), -1);
        EXPECT_EQ(byName->toString(), std::string(names[type][1]) + " Arp 1/4 Len:1/4");
        const auto old = ArpeggioManagement::createArpeggio(12, 6, type);
        ASSERT_NE(old, nullptr);
        EXPECT_STREQ(old->getTypeName(), names[type][0]);
        EXPECT_EQ(old->getBeat().getPpq(), 240);
        EXPECT_EQ(old->getLength().getPpq(), 120);
    }

    for (const char* unknown : {"", "Up", "upArpeggio", "Arpeggio"})
        EXPECT_EQ(ArpeggioManagement::createArpeggio(unknown), nullptr);

    for (const int beat : {0, -1})
        EXPECT_EQ(ArpeggioManagement::createArpeggio(beat, 6, 0), nullptr);

    for (const int type : {-1, 4})
        EXPECT_EQ(ArpeggioManagement::createArpeggio(12, 6, type), nullptr);
}

TEST(ArpeggioTest, WithoutAnEngineNothingIsHeld) {
    for (int type = 0; type < 4; ++type) {
        const auto arpeggio = ArpeggioManagement::createArpeggio(12, 6, type);
        SequenceManagement::SequenceSetting sequence;
        arpeggio->noteEvent(
            MidiEngine::MirelMidiMessage(MidiEngine::MidiMessage::NoteOn, 60, 100, {.output = 0, .channel = 0}),
            sequence);
        EXPECT_TRUE(arpeggio->isIdle());
        arpeggio->timeEvent(0, sequence);
        arpeggio->reset(sequence);
        EXPECT_EQ(arpeggio->getRunningSince(), -1);
    }
}

}
}
