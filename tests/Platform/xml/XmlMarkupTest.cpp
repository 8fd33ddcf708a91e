#include "Platform/xml/XmlMarkup.h"

#include "Platform/xml/XmlReader.h"

#include <gtest/gtest.h>

namespace Platform {
namespace {

using namespace std::string_literals;

// "LINE:KIND text" for each markup.
std::vector<std::string> markupsOf(std::string_view document) {
    std::vector<std::string> found;
    const auto decoded = decodeXml(document);
    if (!decoded)
        return found;
    XmlMarkupReader reader(*decoded);
    while (const auto markup = reader.next()) {
        EXPECT_EQ(markup->text, std::string_view(decoded->text).substr(markup->position, markup->text.size()));
        const char kind = "SEXO"[static_cast<int>(markup->kind)];
        found.push_back(std::to_string(markup->line) + ":" + kind + " " + std::string(markup->text));
    }
    return found;
}

void appendLines(const XmlNode& node, std::string& text) {
    if (node.name.empty())
        return;
    text += node.name + std::to_string(node.line) + " ";
    for (const XmlNode& child : node.children)
        appendLines(child, text);
}

// "NAMELINE " for each element, in the order of the file.
std::string elementLinesOf(std::string_view document) {
    const auto root = readXmlWithLines(document);
    std::string text;
    if (root)
        appendLines(*root, text);
    return text;
}

using Markups = std::vector<std::string>;

TEST(XmlMarkup, DistinguishesItsKinds) {
    EXPECT_EQ(markupsOf("<a><b/>\n<!-- <c> --><![CDATA[<d>]]><?e f?>\n</a >"),
              (Markups{"1:S <a>", "1:E <b/>", "2:O <!-- <c> -->", "2:O <![CDATA[<d>]]>", "2:O <?e f?>", "3:X </a >"}));
}

TEST(XmlMarkup, NamesTags) {
    const auto document = decodeXml("<ab c='1'><de/><f\n/></ab >");
    XmlMarkupReader reader(*document);
    for (const char* const name : {"ab", "de", "f", "ab"})
        EXPECT_EQ(reader.next()->name(), name);
    EXPECT_FALSE(reader.next());
}

TEST(XmlMarkup, DoesNotEndATagInsideAValue) {
    EXPECT_EQ(markupsOf("<a b='>' c=\"/>'\"/>"), (Markups{"1:E <a b='>' c=\"/>'\"/>"}));
}

TEST(XmlMarkup, EndsWhereMarkupDoes) {
    EXPECT_EQ(markupsOf("<a>\n<b "), (Markups{"1:S <a>"}));
    EXPECT_EQ(markupsOf("<a><!-- "), (Markups{"1:S <a>"}));
}

TEST(XmlLines, CountFromTheFilesFirstLine) {
    EXPECT_EQ(elementLinesOf("<a/>"), "a1 ");
    EXPECT_EQ(elementLinesOf("<?xml version=\"1.0\"?>\n\n<a>\n<b/><c/>\n</a>"), "a3 b4 c4 ");
    EXPECT_EQ(elementLinesOf("<?xml\nversion=\"1.0\"\r\n?><a/>"), "a3 ");
    EXPECT_EQ(elementLinesOf("\xEF\xBB\xBF<?xml version=\"1.0\"\n?>\n<a/>"), "a3 ");
}

TEST(XmlLines, AreThoseOfTagsNotOfTheirEnds) {
    EXPECT_EQ(elementLinesOf("<a\n x='\n1'>\n<b/></a>"), "a1 b4 ");
}

TEST(XmlLines, EndWithAnyLineEnd) {
    EXPECT_EQ(elementLinesOf("<a>\r\n<b/>\r<c/>\n<d/></a>"), "a1 b2 c3 d4 ");
}

TEST(XmlLines, SkipWhatOnlyLooksLikeElements) {
    EXPECT_EQ(elementLinesOf("<a><!-- <x>\n -->\n<b/><![CDATA[<y>\n]]><?z <q>?>\n<c/>t\n<d><e/></d></a>"),
              "a1 b3 c5 d6 e6 ");
}

TEST(XmlLines, AreCountedInUtf16Too) {
    EXPECT_EQ(elementLinesOf("\xFF\xFE<\0a\0>\0\n\0<\0b\0/\0>\0<\0/\0a\0>\0"s), "a1 b2 ");
}

TEST(XmlLines, AreGivenOnRequestOnly) {
    EXPECT_EQ(readXml("<a/>")->line, 0);
}

TEST(XmlLines, NeedAWellFormedDocument) {
    EXPECT_FALSE(readXmlWithLines("<a>"));
    EXPECT_FALSE(readXmlWithLines(""));
}

}
}
