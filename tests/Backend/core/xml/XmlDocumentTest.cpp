#include "Backend/core/xml/XmlDocument.h"

#include "Backend/core/xml/XmlWriting.h"
#include "Platform/Files.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <vector>

namespace Backend {
namespace {

XmlElement rootOf(const std::string& text) {
    return XmlDocument(text, false).getRootElement();
}

std::vector<std::string> namesOfChildren(const XmlElement& parent) {
    std::vector<std::string> names;
    for (XmlElement child = parent.begin(); child != parent.end(); child.next())
        names.push_back(child.getName());
    return names;
}

using Names = std::vector<std::string>;

void expectNothing(const XmlElement& element) {
    EXPECT_EQ(element.getName(), "");
    EXPECT_EQ(element.getAttribute("a"), "");
    EXPECT_TRUE(element.getBoolAttribute("a", true));
    EXPECT_FALSE(element.getBoolAttribute("a", false));
    EXPECT_EQ(element.getIntAttribute("a", -7), -7);
    EXPECT_EQ(element.getText(), "");
    EXPECT_TRUE(element.begin() == element.end());
}

TEST(XmlDocumentTest, MissingOrMalformedDocumentHasNoRoot) {
    const TestSupport::TemporaryFolder folder;
    const std::string empty = folder.file("empty.prg");
    const std::string broken = folder.file("broken.prg");

    ASSERT_TRUE(Platform::Files::replace(empty, ""));
    ASSERT_TRUE(Platform::Files::replace(broken, "<Program a=\"1\">"));

    for (const std::string& path : {empty, broken, folder.file("missing.prg"), folder.path(), std::string()}) {
        const XmlDocument document(path, true);
        EXPECT_FALSE(document.hasRoot()) << path;
        expectNothing(document.getRootElement());
    }

    for (const char* text : {"", "<Program", "<a/><b/>", "<!DOCTYPE a><a/>"}) {
        const XmlDocument document(text, false);
        EXPECT_FALSE(document.hasRoot()) << text;
        expectNothing(document.getRootElement());
    }
}

TEST(XmlDocumentTest, FileIsReadByItsPath) {
    const TestSupport::TemporaryFolder folder;
    const std::string path = folder.file("\xE3\x83\x94 %41 #1.prg");
    ASSERT_TRUE(Platform::Files::replace(path, getXmlHeader() + "\r\n<Program name=\"Zo\xC3\xAB\"/>\r\n"));
    const XmlDocument document(path, true);
    EXPECT_TRUE(document.hasRoot());
    EXPECT_EQ(document.getRootElement().getName(), "Program");
    EXPECT_EQ(document.getRootElement().getAttribute("name"), "Zo\xC3\xAB");
    EXPECT_FALSE(XmlDocument(path, false).hasRoot()) << "as a text it is none";
    EXPECT_FALSE(XmlDocument("<a/>", true).hasRoot()) << "and the other way round";
}

TEST(XmlDocumentTest, MissingAttributeLeavesTheDefault) {
    const XmlElement program = rootOf("<Program name=\"Empty\"/>");
    EXPECT_EQ(program.getAttribute("name"), "Empty");
    EXPECT_EQ(program.getIntAttribute("tempo", 97), 97);
    EXPECT_EQ(program.getAttribute("Name"), "") << "case counts";
}

TEST(XmlDocumentTest, BoolAttributeKnowsEightSpellings) {
    for (const char* text : {"true", "TRUE", "yes", "YES"}) {
        const XmlElement element = rootOf(std::string("<a merge=\"") + text + "\"/>");
        EXPECT_TRUE(element.getBoolAttribute("merge", false)) << text;
        EXPECT_TRUE(element.getBoolAttribute("merge", true)) << text;
    }

    for (const char* text : {"false", "FALSE", "no", "NO"}) {
        const XmlElement element = rootOf(std::string("<a merge=\"") + text + "\"/>");
        EXPECT_FALSE(element.getBoolAttribute("merge", false)) << text;
        EXPECT_FALSE(element.getBoolAttribute("merge", true)) << text;
    }

    for (const char* text : {"True", "False", "Yes", "nO", "1", "0", "", " true", "true ", "truex"}) {
        const XmlElement element = rootOf(std::string("<a merge=\"") + text + "\"/>");
        EXPECT_FALSE(element.getBoolAttribute("merge", false)) << text;
        EXPECT_TRUE(element.getBoolAttribute("merge", true)) << text;
    }
}

TEST(XmlDocumentTest, IntAttributeReadsTheNumberAtItsStart) {
    const struct {
        const char* text;
        int value;
    } cases[] = {
        {"12", 12},
        {"-12", -12},
        {"  12", 12},
        {"12abc", 12},
        {"12 13", 12},
        {"+12", 12},
        {"007", 7},
        {"1.9", 1},
        {"2147483647", 2147483647},
        {"-2147483648", -2147483647 - 1},
        {"abc", 42},
        {"", 42},
        {"2147483648", 42},
        {"-2147483649", 42},
        {"- 1", 42},
        {"99999999999", 42},
    };

    for (const auto& one : cases)
        EXPECT_EQ(rootOf(std::string("<a b=\"") + one.text + "\"/>").getIntAttribute("b", 42), one.value) << one.text;
}

TEST(XmlDocumentTest, WrittenAttributeReadsBack) {
    const std::string value = "\"quotes\" <tags> & 'more' Zo\xC3\xAB";
    const XmlElement element = rootOf(getStartTagBegin("a") + getAttributeText("b", value) + getEmptyTagEnd());
    EXPECT_EQ(element.getAttribute("b"), value);
}

TEST(XmlDocumentTest, WalkVisitsEveryChildAndNamesElementsOnly) {
    const XmlElement root = rootOf("<a>\n\t<b/>\n\t<!-- c -->\n\t<d x=\"1\"><e/></d>text<?f g?>\n\t<b/>\n</a>");
    EXPECT_EQ(namesOfChildren(root), (Names{"b", "", "d", "", "", "b"}));
    EXPECT_EQ(namesOfChildren(rootOf("<a/>")), Names());
    EXPECT_EQ(namesOfChildren(rootOf("<a></a>")), Names());
    EXPECT_EQ(namesOfChildren(rootOf("<a> </a>")), Names());
    EXPECT_EQ(namesOfChildren(XmlElement()), Names());
}

TEST(XmlDocumentTest, CursorOnACommentHasNothing) {
    const XmlElement root = rootOf("<a><!-- b --><c d=\"1\"/></a>");
    XmlElement child = root.begin();
    EXPECT_FALSE(child == root.end());
    expectNothing(child);
    EXPECT_EQ(child.next().getName(), "c");
    EXPECT_EQ(child.getIntAttribute("d", 0), 1);
}

TEST(XmlDocumentTest, CursorIsAnElementToo) {
    const XmlElement root = rootOf("<a><b><c/><d/></b><e/></a>");
    const XmlElement b = root.begin();
    EXPECT_EQ(namesOfChildren(b), (Names{"c", "d"}));
    XmlElement c = b.begin();
    EXPECT_EQ(namesOfChildren(c), Names());
    EXPECT_EQ(c.next().getName(), "d");
    EXPECT_EQ(b.getName(), "b") << "a copy that moves leaves the other where it was";
}

TEST(XmlDocumentTest, CursorStaysAtTheEnd) {
    const XmlElement root = rootOf("<a><b/></a>");
    XmlElement child = root.begin();
    for (int i = 0; i < 3; ++i) {
        child.next();
        EXPECT_TRUE(child == root.end());
        expectNothing(child);
    }
}

TEST(XmlDocumentTest, RootDoesNotMove) {
    XmlElement root = rootOf("<a><b/></a>");
    EXPECT_EQ(root.next().getName(), "a");
    EXPECT_TRUE(root == root.end()) << "a root has no siblings to walk";
}

TEST(XmlDocumentTest, TextIsThatOfTheElementAndBelowWithoutSpaceAtTheEnds) {
    EXPECT_EQ(rootOf("<a> \n x y\t</a>").getText(), "x y");
    EXPECT_EQ(rootOf("<a>x<b>y</b><!-- no -->z<![CDATA[ <&> ]]></a>").getText(), "xyz <&>");
    EXPECT_EQ(rootOf("<a b=\"no\"/>").getText(), "");
    EXPECT_EQ(rootOf("<a> <b> </b> </a>").getText(), "");
}

TEST(XmlDocumentTest, ElementKeepsItsDocumentAlive) {
    XmlElement inner;
    {
        const XmlDocument document("<a><b><c d=\"1\"/></b></a>", false);
        inner = document.getRootElement().begin().begin();
    }
    EXPECT_EQ(inner.getName(), "c");
    EXPECT_EQ(inner.getIntAttribute("d", 0), 1);
}

TEST(XmlDocumentTest, NamesAreComparedWithCase) {
    EXPECT_EQ(namesOfChildren(rootOf("<a><Layer/><layer/></a>")), (Names{"Layer", "layer"}));
}

}
}
