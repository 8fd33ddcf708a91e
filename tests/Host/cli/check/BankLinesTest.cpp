#include "Host/cli/check/BankLines.h"

#include <gtest/gtest.h>

namespace Host::Cli {
namespace {

using namespace std::string_literals;

struct Case {
    const char* what;
    std::string content;
    int line;  // Of the only complaint; 0 for none.
    const char* part = "";
};

const Case CASES[] = {
    {"one tag a line",
     "<?xml version=\"1.0\"?>\n\n<Bank>\n<Program name=\"a\">\n\t<Zones>\n\t</Zones>\n</Program>\n</Bank>\n", 0},
    {"windows line ends", "<Bank>\r\n<Program name=\"a\">\r\n</Program>\r\n</Bank>\r\n", 0},
    {"an empty component", "<Bank>\n<Program name=\"a\">\n<Zones/>\n</Program>\n</Bank>", 0},
    {"elements inside of a component",
     "<Bank>\n<Program name=\"a\">\n<Zones>\n<Zone/><Zone/>\n</Zones>\n</Program>\n</Bank>", 0},
    {"a comment of its own", "<Bank>\n<!-- old programs -->\n</Bank>", 0},
    {"a program's tag behind the bank's", "<Bank><Program name=\"a\">\n</Program>\n</Bank>", 1, "shares its line"},
    {"a program on one line", "<Bank>\n<Program name=\"a\"></Program>\n</Bank>", 2, "shares its line"},
    {"two programs meet", "<Bank>\n<Program name=\"a\">\n</Program><Program name=\"b\">\n</Program>\n</Bank>", 3,
     "shares its line"},
    {"the ends meet", "<Bank>\n<Program name=\"a\">\n</Program></Bank>", 3, "shares its line"},
    {"a component behind the program's tag", "<Bank>\n<Program name=\"a\"><Zones>\n</Zones>\n</Program>\n</Bank>", 2,
     "shares its line"},
    {"a component on one line", "<Bank>\n<Program name=\"a\">\n<Zones></Zones>\n</Program>\n</Bank>", 3,
     "shares its line"},
    {"components meet", "<Bank>\n<Program name=\"a\">\n<Zones/><Layers/>\n</Program>\n</Bank>", 3, "shares its line"},
    {"a component's element on its line", "<Bank>\n<Program name=\"a\">\n<Zones><Zone/>\n</Zones>\n</Program>\n</Bank>",
     3, "shares its line"},
    {"a comment behind a tag", "<Bank>\n<Program name=\"a\">\n</Program><!-- a -->\n</Bank>", 3, "shares its line"},
    {"a program without end tag", "<Bank>\n<Program name=\"a\"/>\n</Bank>", 2, "needs an end tag"},
    {"a program's tag without a blank", "<Bank>\n<Program\nname=\"a\">\n</Program>\n</Bank>", 2,
     "must begin with \"<Program \""},
    {"a program without attributes", "<Bank>\n<Program>\n</Program>\n</Bank>", 2, "must begin with \"<Program \""},
    {"a blank in a program's end tag", "<Bank>\n<Program name=\"a\">\n</Program >\n</Bank>", 3,
     "must be just </Program>"},
    {"a blank in the bank's end tag", "<Bank>\n</Bank >", 2, "must be just </Bank>"},
    {"a program in a program", "<Bank>\n<Program name=\"a\">\n<Program name=\"b\">\n</Program>\n</Program>\n</Bank>", 3,
     "not a child of the bank"},
    {"an element whose name begins so",
     "<Bank>\n<Program name=\"a\">\n<Keys>\n<ProgramChange program=\"1\"/>\n</Keys>\n</Program>\n</Bank>", 0},
    {"a program in a comment", "<Bank>\n<!--\n <Program name=\"x\"> -->\n</Bank>", 2, "in a comment"},
    {"an end in a comment", "<Bank>\n<!-- </Program> -->\n</Bank>", 2, "in a comment"},
    {"the bank's end in an instruction", "<Bank>\n<?x </Bank> ?>\n</Bank>", 2, "in a comment"},
    {"a program in a section", "<Bank>\n<![CDATA[<Program ]]>\n</Bank>", 2, "in a comment"},
    {"a lone return", "<Bank>\n<Program name=\"a\">\r</Program>\n</Bank>", 2, "carriage return"},
    {"two bytes a character", "\xFF\xFE<\0B\0a\0n\0k\0/\0>\0"s, 1, "UTF-16"},
};

TEST(BankLines, AreWhatABankIsChangedBy) {
    for (const Case& row : CASES) {
        const Complaints complaints = checkBankLines(row.content);
        if (row.line == 0) {
            EXPECT_TRUE(complaints.empty()) << row.what << ": " << complaints.front().text;
            continue;
        }
        ASSERT_FALSE(complaints.empty()) << row.what;
        EXPECT_EQ(complaints.front().line, row.line) << row.what;
        EXPECT_NE(complaints.front().text.find(row.part), std::string::npos)
            << row.what << ": " << complaints.front().text;
    }
}

TEST(BankLines, CountBehindAHeader) {
    EXPECT_EQ(checkBankLines("<?xml version=\"1.0\"\n?>\n\n<Bank>\n<Program name=\"a\"/></Bank>").front().line, 5);
}

}
}
