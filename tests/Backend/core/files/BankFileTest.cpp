#include "Backend/core/files/BankFile.h"

#include "Platform/Files.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace Backend::BankFile {
namespace {

const std::string HEADER = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n\n";

std::string block(const std::string& name) {
    return "<Program name=\"" + name +
           "\" tempo=\"120\" tempoSource=\"-1\">\n\t<Layers merge=\"false\">\n\t</Layers>\n" + "</Program>\n";
}

std::string bankOf(const std::vector<std::string>& names) {
    std::string text = HEADER + "<Bank>\n";
    for (const std::string& name : names)
        text += block(name);
    return text + "</Bank>\n";
}

std::vector<std::string> numbers(int count) {
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i)
        names.push_back(std::to_string(i));
    return names;
}

// With the line ends of the system's own files.
std::string native(const std::string& text) {
    return Platform::Files::withSystemLineEnds(text);
}

std::string withReturns(const std::string& text) {
    std::string result;
    for (const char character : text)
        result += character == '\n' ? std::string("\r\n") : std::string(1, character);
    return result;
}

TEST(BankFileTest, AProgramFileIsTheHeaderAndOneBlockInItsRoot) {
    EXPECT_EQ(wrapProgram("ProgramFile", "x\n"), HEADER + "<ProgramFile>\nx\n</ProgramFile>\n");
    EXPECT_EQ(wrapProgram("MirelProgramFile", "x\n"), HEADER + "<MirelProgramFile>\nx\n</MirelProgramFile>\n");
}

TEST(BankFileTest, EveryProgramOf128CanBeReplacedWithAllOtherBytesKept) {
    const std::string lines = bankOf(numbers(128));
    const std::string withoutLastEnd = lines.substr(0, lines.size() - 1);

    for (const std::string& bank : {lines, withReturns(lines), withoutLastEnd, withReturns(withoutLastEnd)}) {
        const bool hasReturns = bank.find('\r') != std::string::npos;
        for (int i = 0; i < 128; ++i) {
            const std::string old = hasReturns ? withReturns(block(std::to_string(i))) : block(std::to_string(i));
            const std::size_t place = bank.find(old);
            ASSERT_NE(place, std::string::npos);
            std::string expected = bank;
            expected.replace(place, old.size(), native(block("new")));
            ASSERT_EQ(replaceProgram(bank, i, block("new")), expected) << i;
        }
    }
}

TEST(BankFileTest, ReplacingTheFirstProgramKeepsWhatStandsBeforeIt) {
    const std::string before = "<?xml version=\"1.0\"?>\n<!-- mine -->\n\n  <Bank a='b'>\n";
    EXPECT_EQ(replaceProgram(before + block("a") + "</Bank>", 0, block("b")), before + native(block("b")) + "</Bank>");
}

TEST(BankFileTest, AnEmptyProgramOfTwoLinesIsReplacedToo) {
    const std::string start = HEADER + "<Bank>\n" + block("a");
    const std::string bank = start + "<Program name=\"Empty\">\n</Program>\n</Bank>\n";
    EXPECT_EQ(replaceProgram(bank, 1, block("b")), start + native(block("b")) + "</Bank>\n");
}

TEST(BankFileTest, AnIndexBeyondTheLastProgramPutsTheBlockBehindEverything) {
    const std::string bank = bankOf({"a", "b"});
    for (const int index : {2, 3, 1000, 2147483646})
        EXPECT_EQ(replaceProgram(bank, index, block("c")), bank + native(block("c"))) << index;
    const std::string open = bank.substr(0, bank.size() - 1);
    EXPECT_EQ(replaceProgram(open, 2, block("c")), open + native("\n" + block("c")));
    EXPECT_EQ(replaceProgram("", 0, block("c")), native(block("c")));
}

// The tags are found line by line, so whatever shares a line with them goes or stays with them.
TEST(BankFileTest, TwoTagsOnOneLineCountAsOne) {
    const std::string bank =
        "<Bank>\n<Program name=\"a\">\n</Program><Program name=\"b\">\n</Program>\n<Program name=\"c\">\n</Program>\n"
        "</Bank>\n";
    EXPECT_EQ(replaceProgram(bank, 1, block("x")),
              "<Bank>\n<Program name=\"a\">\n" + native(block("x")) + "<Program name=\"c\">\n</Program>\n</Bank>\n");
}

TEST(BankFileTest, LinesThatOnlyResembleAProgramAreNotCounted) {
    const std::string bank =
        "<Bank>\n<Programs name=\"a\"/>\n<program name=\"b\"/>\n<Program\tname=\"c\"/>\n" + block("d") + "</Bank>\n";
    EXPECT_EQ(replaceProgram(bank, 0, block("x")),
              "<Bank>\n<Programs name=\"a\"/>\n<program name=\"b\"/>\n<Program\tname=\"c\"/>\n" + native(block("x")) +
                  "</Bank>\n");
}

TEST(BankFileTest, ABankGrowsByEmptyProgramsAtItsEnd) {
    const std::string bank = bankOf({"a", "b", "c"});
    const std::string kept = bank.substr(0, bank.size() - 8);
    EXPECT_EQ(resize(bank, 3, 5), kept + native("<Program name=\"Empty\">\n</Program>\n<Program name=\"Empty\">\n"
                                                "</Program>\n</Bank>\n"));
}

TEST(BankFileTest, ABankShrinksAtItsEndForEverySize) {
    const std::string bank = bankOf(numbers(20));
    for (int size = 1; size < 20; ++size) {
        const std::string whole = bankOf(numbers(size));
        EXPECT_EQ(resize(bank, 20, size), whole.substr(0, whole.size() - 8) + native("</Bank>\n")) << size;
    }
}

TEST(BankFileTest, LinesKeepTheirBlanksWhenTheSizeChanges) {
    const std::string bank =
        "<Bank>\r\n\t<Program name=\"a\">\r\n  </Program>  \r\n\t<Program name=\"b\">\r\n"
        "\t</Program>\r\n\t</Bank>\t\r\n";
    EXPECT_EQ(resize(bank, 2, 1), "<Bank>\r\n\t<Program name=\"a\">\r\n  </Program>  \r\n" + native("</Bank>\n"));
}

TEST(BankFileTest, ATruncatedBankGetsItsEnd) {
    const std::string bank = "<Bank>\n<Program name=\"a\">\n</Program>";
    EXPECT_EQ(resize(bank, 0, 1), bank + native("\n<Program name=\"Empty\">\n</Program>\n</Bank>\n"));
    EXPECT_EQ(resize("", 0, 1), native("<Program name=\"Empty\">\n</Program>\n</Bank>\n"));
}

TEST(BankFileTest, ASizeThatNoBankCanHaveIsRefused) {
    const std::string bank = bankOf({"a"});
    EXPECT_EQ(resize(bank, 1, 2147483647), std::nullopt);
    EXPECT_EQ(resize(bank, 0, MAX_ADDED_PROGRAMS + 1), std::nullopt);
    const TestSupport::TemporaryFolder folder;
    const std::string path = folder.file("a.bnk");
    ASSERT_TRUE(Platform::Files::replace(path, resize(bank, 1, 1 + MAX_ADDED_PROGRAMS).value_or("")));
    EXPECT_EQ(readProgramNames(path).size(), 1u + MAX_ADDED_PROGRAMS);
}

TEST(BankFileTest, NothingIsLostByWritingWhatCanBeReadOrOverWhatCouldNot) {
    const std::string good = "<Bank>\n</Bank>\n";
    EXPECT_TRUE(remainsReadable(good, good));
    EXPECT_TRUE(remainsReadable("<Bank>", good));
    EXPECT_TRUE(remainsReadable("<Bank>", "<Bank>"));
    EXPECT_FALSE(remainsReadable(good, "<Bank>"));
    EXPECT_FALSE(remainsReadable(good, std::string(Platform::Files::MAX_SIZE + 1, ' ')));
}

TEST(BankFileTest, NamesAreThoseOfTheRootsChildrenInTheirOrder) {
    const TestSupport::TemporaryFolder folder;
    const std::string path = folder.file("a.bnk");
    ASSERT_TRUE(Platform::Files::replace(path,
                                         "<Bank><!-- <Program name='no'/> --><Program name='b'/>"
                                         "<Other><Program name='inner'/></Other><program name='no'/>"
                                         "<Program/><Program name='&lt;&#10;&amp;'/></Bank>"));
    EXPECT_EQ(readProgramNames(path), (std::vector<std::string>{"b", "", "<\n&"}));
}

TEST(BankFileTest, AFileThatIsNotXmlHasNoNames) {
    const TestSupport::TemporaryFolder folder;
    for (const std::string& text :
         {std::string(), std::string("<Bank><Program name='a'/>"), std::string("\x7f\x45LF\0\0\1", 7),
          std::string("<!DOCTYPE Bank><Bank><Program name='a'/></Bank>"),
          std::string("<Bank><Program name='\xEB'/></Bank>")}) {
        const std::string path = folder.file("a.bnk");
        ASSERT_TRUE(Platform::Files::replace(path, text));
        EXPECT_TRUE(readProgramNames(path).empty()) << text;
    }
    EXPECT_TRUE(readProgramNames(folder.file("missing.bnk")).empty());
    EXPECT_TRUE(readProgramNames(folder.path()).empty());
    EXPECT_TRUE(readProgramNames("").empty());
}

}
}
