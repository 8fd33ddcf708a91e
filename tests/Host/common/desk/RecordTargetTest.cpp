#include "Host/common/desk/RecordTarget.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Host/common/ports/Recorder.h"
#include "Platform/Files.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace Host {
namespace {

class RecordTargetTest : public testing::Test {
protected:
    RecordTargetTest() { Backend::MirelUtils::useDataFolder(folder.file("data")); }
    ~RecordTargetTest() override { Backend::MirelUtils::useDataFolder(""); }

    const TestSupport::TemporaryFolder folder;
    const Recorder recorder;
};

TEST_F(RecordTargetTest, AFileThatIsNewIsNotLeftBehind) {
    EXPECT_TRUE(canRecordTo(folder.file("take.mid")));
    EXPECT_FALSE(Platform::Files::size(folder.file("take.mid")));
    EXPECT_FALSE(canRecordTo(folder.file("none/take.mid")));
}

TEST_F(RecordTargetTest, ARecordingGoesWhereItShould) {
    EXPECT_EQ(keepRecording(recorder, folder.file("take.mid")), folder.file("take.mid"));
    EXPECT_TRUE(Platform::Files::size(folder.file("take.mid")));
}

TEST_F(RecordTargetTest, OneThatCanNotIsRescuedBesideEarlierOnes) {
    ASSERT_TRUE(Platform::Files::createFolders(folder.file("data")));
    const std::string wanted = folder.file("none/take.mid");
    for (const char* name : {"Rescued recording.mid", "Rescued recording 2.mid", "Rescued recording 3.mid"}) {
        const std::string rescued = Platform::Files::join(folder.file("data"), name);
        EXPECT_EQ(keepRecording(recorder, wanted), rescued);
        EXPECT_TRUE(Platform::Files::size(rescued)) << name;
    }
}

TEST_F(RecordTargetTest, WithoutAnyPlaceItIsLost) {
    ASSERT_TRUE(Platform::Files::replace(folder.file("data"), "a file"));
    EXPECT_EQ(keepRecording(recorder, folder.file("none/take.mid")), std::nullopt);
}

}
}
