#include "Backend/midi/sequences/SequencePresetManager.h"
#include "Backend/midi/sequences/SequencePresetNames.h"
#include "Platform/Files.h"
#include "tests/support/ProjectFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace Backend::SequenceManagement {
namespace {

const std::string FOLDER = TestSupport::projectFile("data/Default/Sequences");

TEST(SequencePresetDataTest, EachNameHasItsFileAndNoOtherExists) {
    const SequencePresetManager presets(FOLDER);
    const SequencePresetList expected(SEQUENCE_PRESET_NAMES.begin(), SEQUENCE_PRESET_NAMES.end());
    EXPECT_EQ(presets.getSequencePresetList(), expected);
}

TEST(SequencePresetDataTest, EachFileIsWrittenAsTheDeskWritesItAndPlaysSomethingOfItsOwn) {
    const SequencePresetManager presets(FOLDER);
    std::set<std::string> texts;
    for (const std::string& name : presets.getSequencePresetList()) {
        const std::string text = presets.load(name).toString();
        EXPECT_FALSE(text.empty()) << name;
        EXPECT_TRUE(texts.insert(text).second) << name;
        EXPECT_EQ(Platform::Files::read(Platform::Files::join(FOLDER, name + ".seq")),
                  "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Sequence>" + text + "</Sequence>\n")
            << name;
    }
}

}
}
