#include "Host/console/DeskFileName.h"

#include <gtest/gtest.h>

namespace {

using namespace Host::Console;

TEST(DeskFileName, RecognisesBanksAndProgramsByTheirExtensions) {
    EXPECT_EQ(kindOfDeskFile("C:\\My Music\\live.bnk"), DeskFileKind::BANK);
    EXPECT_EQ(kindOfDeskFile("live.BNK"), DeskFileKind::BANK);
    EXPECT_EQ(kindOfDeskFile("lead.Prg"), DeskFileKind::PROGRAM);
}

TEST(DeskFileName, TakesNothingElse) {
    for (const char* path : {"", "bnk", "a.bnk.txt", "a.prgx", "folder.bnk\\file", "folder.prg/file", ".", "a."})
        EXPECT_EQ(kindOfDeskFile(path), DeskFileKind::NONE) << path;
}

TEST(DeskFileName, LowersTheExtensionAlone) {
    EXPECT_EQ(withLowerCaseExtension("C:\\A.B\\Lead.PRG"), "C:\\A.B\\Lead.prg");
    EXPECT_EQ(withLowerCaseExtension("Zo\xc3\x8b.BNK"), "Zo\xc3\x8b.bnk");
    EXPECT_EQ(withLowerCaseExtension("FOLDER.X\\NAME"), "FOLDER.X\\NAME");
    EXPECT_EQ(withLowerCaseExtension(""), "");
}

}
