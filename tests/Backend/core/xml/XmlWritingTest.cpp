#include "Backend/core/xml/XmlWriting.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/core/xml/XmlItem.h"

#include <gtest/gtest.h>

namespace Backend {
namespace {

class FixedItem : public XmlItem {
public:
    std::string toXmlString() const override { return "<&>"; }
};

TEST(XmlWritingTest, HeaderAndTagsHaveNoLineEnds) {
    EXPECT_EQ(getXmlHeader(), "<?xml version=\"1.0\" encoding=\"utf-8\"?>");
    EXPECT_EQ(getStartTagBegin("Layer"), "<Layer");
    EXPECT_EQ(getStartTag("Layer"), "<Layer>");
    EXPECT_EQ(getStartTagEnd(), ">");
    EXPECT_EQ(getEmptyTagEnd(), "/>");
    EXPECT_EQ(getEndTag("Layer"), "</Layer>");
}

TEST(XmlWritingTest, AttributesStandBehindABlank) {
    EXPECT_EQ(getAttributeText("a", true), " a=\"true\"");
    EXPECT_EQ(getAttributeText("a", false), " a=\"false\"");
    EXPECT_EQ(getAttributeText("a", static_cast<short>(-300)), " a=\"-300\"");
    EXPECT_EQ(getAttributeText("a", 2147483647), " a=\"2147483647\"");
    EXPECT_EQ(getAttributeText("a", -2147483647 - 1), " a=\"-2147483648\"");
    EXPECT_EQ(getAttributeText("a", std::string("b")), " a=\"b\"");
    EXPECT_EQ(getAttributeText("a", std::string()), " a=\"\"");
}

TEST(XmlWritingTest, CharacterIsWrittenAsTheValueOfItsByte) {
    EXPECT_EQ(getAttributeText("a", 'A'), " a=\"65\"");
    EXPECT_EQ(getAttributeText("a", static_cast<char>(-1)), " a=\"-1\"");
    EXPECT_EQ(getAttributeText("a", static_cast<signed char>(-56)), " a=\"-56\"");
    EXPECT_EQ(getAttributeText("a", static_cast<unsigned char>(200)), " a=\"200\"");
}

TEST(XmlWritingTest, LiteralIsAStringNotABool) {
    EXPECT_EQ(getAttributeText("a", "x<y"), " a=\"x&lt;y\"");
}

TEST(XmlWritingTest, StringsAreEscapedAndItemsAreNot) {
    EXPECT_EQ(getAttributeText("a", std::string("1\"2")), " a=\"1&quot;2\"");
    EXPECT_EQ(getAttributeText("a", FixedItem()), " a=\"<&>\"");
}

TEST(XmlWritingTest, EscapeReplacesFiveCharactersAndKeepsAllOtherBytes) {
    EXPECT_EQ(escape("<>&'\""), "&lt;&gt;&amp;&apos;&quot;");
    EXPECT_EQ(escape("&lt;"), "&amp;lt;");
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        const char byte = static_cast<char>(i);
        if (std::string("<>&'\"").find(byte) == std::string::npos)
            bytes += byte;
    }
    EXPECT_EQ(escape(bytes), bytes);
    EXPECT_EQ(escape(""), "");
}

TEST(XmlWritingTest, TabsAndLineEndsInAttributesAreReferences) {
    EXPECT_EQ(getAttributeText("a", std::string("\t1\r\n2\n")), " a=\"&#9;1&#13;&#10;2&#10;\"");
}

TEST(XmlWritingTest, WhatNoDocumentCanHoldBecomesTheReplacementCharacterInAttributes) {
    const std::string replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(getAttributeText("a", std::string("1\0\x01\x1f\x7f", 5)),
              " a=\"1" + replacement + replacement + replacement + "\x7f\"");
    EXPECT_EQ(getAttributeText("a", std::string("Zo\xEB\xC3\xAB")), " a=\"Zo" + replacement + "\xC3\xAB\"");
    EXPECT_EQ(getAttributeText("a", std::string("\xEF\xBF\xBF<\xF0\x9F\x8E\xB9\xF0\x9F")),
              " a=\"" + replacement + "&lt;\xF0\x9F\x8E\xB9" + replacement + replacement + "\"");
    EXPECT_EQ(getAttributeText("a", std::string("\xED\xA0\x80")), " a=\"" + replacement + "\"") << "half a pair";
}

TEST(XmlWritingTest, EveryAttributeThatWasWrittenIsReadBack) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string value(1, static_cast<char>(byte));
        const XmlDocument document("<A" + getAttributeText("a", value) + "/>", false);
        ASSERT_TRUE(document.hasRoot()) << byte;
        const bool canBeHeld = byte == '\t' || byte == '\n' || byte == '\r' || (byte >= ' ' && byte < 0x80);
        EXPECT_EQ(document.getRootElement().getAttribute("a"), canBeHeld ? value : "\xEF\xBF\xBD") << byte;
    }
}

TEST(XmlWritingTest, PiecesMakeAnElement) {
    const std::string text = getStartTagBegin("Layer") + getAttributeText("name", "x") + getStartTagEnd() + "\n\t" +
                             getStartTagBegin("Arpeggio") + getEmptyTagEnd() + "\n" + getEndTag("Layer") + "\n";
    EXPECT_EQ(text, "<Layer name=\"x\">\n\t<Arpeggio/>\n</Layer>\n");
}

}
}
