#include "Platform/xml/XmlReader.h"

#include "Platform/Files.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace Platform {
namespace {

using namespace std::string_literals;

// A tree in one line: name[attribute=value;...](children), "text", # for comments and the like.
std::string describe(const XmlNode& node) {
    if (node.name.empty())
        return node.text.empty() ? "#" : "\"" + node.text + "\"";
    std::string line = node.name;
    if (!node.attributes.empty()) {
        line += "[";
        for (const auto& [name, value] : node.attributes)
            line += name + "=" + value + ";";
        line += "]";
    }
    if (node.children.empty())
        return line;
    line += "(";
    for (const XmlNode& child : node.children)
        line += describe(child) + ",";
    return line + ")";
}

std::string describeDocument(std::string_view document) {
    const auto root = readXml(document);
    return root ? describe(*root) : "refused";
}

std::string utf16(std::u16string_view text, bool bigEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

std::string repeated(std::string_view text, std::size_t count) {
    std::string result;
    result.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        result += text;
    return result;
}

struct Case {
    const char* what;
    std::string document;
    std::string tree;
};

const std::string DECLARATION = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
const std::string REFUSED = "refused";

std::vector<Case> structureCases() {
    return {
        {"one element", "<a/>", "a"},
        {"start and end tag", "<a></a>", "a"},
        {"declaration", DECLARATION + "\r\n<a/>", "a"},
        {"declaration with apostrophes", "<?xml version='1.0' encoding='UTF-8' standalone='yes' ?><a/>", "a"},
        {"declaration without encoding", "<?xml version=\"1.0\"?><a/>", "a"},
        {"leading white space", " \n<a/>", "a"},
        {"comments around the root", "<!-- 1 --><a/><!-- 2 -->", "a"},
        {"instructions around the root", "<?x y?><a/><?x?>", "a"},
        {"nesting", "<a><b><c/></b><d/></a>", "a(b(c,),d,)"},
        {"attributes in order", "<a z='1' b=\"2\" c = '3'/>", "a[z=1;b=2;c=3;]"},
        {"names with signs", "<a-b.c_1 d-e.f_2='x'/>", "a-b.c_1[d-e.f_2=x;]"},
        {"names beyond ASCII", "<\xC3\xA9t\xC3\xA9/>", "\xC3\xA9t\xC3\xA9"},
        {"empty attribute", "<a b=''/>", "a[b=;]"},
        {"the other quote in a value", "<a b='\"' c=\"'\"/>", "a[b=\";c=';]"},
        {"a greater sign in a value", "<a b='x>y'/>", "a[b=x>y;]"},
        {"predefined entities", "<a b='&lt;&gt;&amp;&apos;&quot;'>&lt;&gt;&amp;&apos;&quot;</a>",
         "a[b=<>&'\";](\"<>&'\"\",)"},
        {"character references", "<a b='&#65;&#x42;'>&#67;&#x20AC;&#x1D11E;</a>",
         "a[b=AB;](\"C\xE2\x82\xAC\xF0\x9D\x84\x9E\",)"},
        {"text with blanks at its ends", "<a> x y </a>", "a(\" x y \",)"},
        {"mixed content", "<a>x <b>y</b> z</a>", "a(\"x \",b(\"y\",),\" z\",)"},
        {"white space between elements", "<a>\n\t<b/>\r\n\t<c/>\n</a>", "a(b,c,)"},
        {"white space alone", "<a>  \t\n </a>", "a"},
        {"white space kept by request is left out too", "<a xml:space='preserve'> <b/> </a>",
         "a[xml:space=preserve;](b,)"},
        {"white space from references", "<a>&#32;&#9;</a>", "a"},
        {"comment", "<a>x<!-- y -->z</a>", "a(\"x\",#,\"z\",)"},
        {"instruction", "<a><?b c?></a>", "a(#,)"},
        {"CDATA", "<a><![CDATA[<b>&amp;]]></a>", "a(\"<b>&amp;\",)"},
        {"CDATA beside text", "<a>x<![CDATA[ y ]]>z</a>", "a(\"x\",\" y \",\"z\",)"},
        {"CDATA of white space", "<a><![CDATA[ ]]></a>", "a(\" \",)"},
        {"empty CDATA", "<a><![CDATA[]]></a>", "a"},
        {"a CDATA end split by sections", "<a><![CDATA[]]]]><![CDATA[>]]></a>", "a(\"]]>\",)"},
        {"CDATA twice with white space between", "<a><![CDATA[x]]> <![CDATA[y]]></a>", "a(\"x\",\"y\",)"},
        {"white space in a value", "<a b='1\t2\n3\r\n4  5'/>", "a[b=1 2 3 4  5;]"},
        {"white space in a value by reference", "<a b='1&#9;2&#10;3&#13;4'/>", "a[b=1\t2\n3\r4;]"},
        {"line ends in text", "<a>1\r\n2\r3\n4</a>", "a(\"1\n2\n3\n4\",)"},
        {"line end by reference", "<a>1&#13;2</a>", "a(\"1\r2\",)"},
        {"declarations of namespaces", "<a xmlns='urn:x' xmlns:p='urn:y' b='1'/>", "a[b=1;]"},
        {"colons in values and text", "<a b='c:d'>e:f</a>", "a[b=c:d;](\"e:f\",)"},
        {"DOCTYPE in a comment", "<a><!-- <!DOCTYPE a> --></a>", "a(#,)"},
        {"DOCTYPE in CDATA", "<a><![CDATA[<!DOCTYPE a>]]></a>", "a(\"<!DOCTYPE a>\",)"},
        {"DOCTYPE in an instruction", "<a><?b <!DOCTYPE a> ?></a>", "a(#,)"},
    };
}

std::vector<Case> malformedCases() {
    return {
        {"nothing", "", REFUSED},
        {"white space", " \n", REFUSED},
        {"text", "abc", REFUSED},
        {"declaration alone", DECLARATION, REFUSED},
        {"comment alone", "<!-- a -->", REFUSED},
        {"end tag missing", "<a>", REFUSED},
        {"end tag of a child missing", "<a><b></a>", REFUSED},
        {"crossed tags", "<a><b></a></b>", REFUSED},
        {"end tag alone", "</a>", REFUSED},
        {"case differs", "<a></A>", REFUSED},
        {"two roots", "<a/><b/>", REFUSED},
        {"two roots with content", "<a></a><b></b>", REFUSED},
        {"text after the root", "<a/>x", REFUSED},
        {"CDATA after the root", "<a/><![CDATA[x]]>", REFUSED},
        {"reference after the root", "<a/>&#32;", REFUSED},
        {"text before the root", "x<a/>", REFUSED},
        {"tag cut", "<a", REFUSED},
        {"value cut", "<a b='", REFUSED},
        {"tag without name", "<>", REFUSED},
        {"name begins with a digit", "<1a/>", REFUSED},
        {"blank before the name", "< a/>", REFUSED},
        {"attribute twice", "<a b='1' b='2'/>", REFUSED},
        {"attribute without value", "<a b/>", REFUSED},
        {"attribute without quotes", "<a b=1/>", REFUSED},
        {"attributes without a blank", "<a b='1'c='2'/>", REFUSED},
        {"less sign in a value", "<a b='<'/>", REFUSED},
        {"ampersand in a value", "<a b='x & y'/>", REFUSED},
        {"ampersand in text", "<a>x & y</a>", REFUSED},
        {"unknown entity in text", "<a>&nbsp;</a>", REFUSED},
        {"unknown entity in a value", "<a b='&nbsp;'/>", REFUSED},
        {"reference to zero", "<a>&#0;</a>", REFUSED},
        {"reference to a surrogate", "<a>&#xD800;</a>", REFUSED},
        {"reference beyond Unicode", "<a>&#x110000;</a>", REFUSED},
        {"CDATA end in text", "<a>x]]>y</a>", REFUSED},
        {"CDATA without end", "<a><![CDATA[x</a>", REFUSED},
        {"comment without end", "<a><!-- x</a>", REFUSED},
        {"two hyphens in a comment", "<a><!-- x -- y --></a>", REFUSED},
        {"instruction without end", "<a><?b </a>", REFUSED},
        {"second declaration", DECLARATION + DECLARATION + "<a/>", REFUSED},
        {"declaration inside", "<a>" + DECLARATION + "</a>", REFUSED},
        {"declaration after white space", " " + DECLARATION + "<a/>", REFUSED},
        {"declaration without version", "<?xml encoding=\"utf-8\"?><a/>", REFUSED},
        {"another version", "<?xml version=\"1.1\"?><a/>", REFUSED},
        {"declaration with another attribute", "<?xml version=\"1.0\" x=\"1\"?><a/>", REFUSED},
        {"declaration cut", "<?xml version=\"1.0\"", REFUSED},
        {"empty encoding", "<?xml version=\"1.0\" encoding=\"\"?><a/>", REFUSED},
        {"DOCTYPE", "<!DOCTYPE a><a/>", REFUSED},
        {"DOCTYPE after a declaration", DECLARATION + "<!DOCTYPE a SYSTEM \"a.dtd\"><a/>", REFUSED},
        {"DOCTYPE with entities", "<!DOCTYPE a [<!ENTITY b \"c\">]><a>&b;</a>", REFUSED},
        {"external entity", "<!DOCTYPE a [<!ENTITY b SYSTEM \"file:///etc/passwd\">]><a>&b;</a>", REFUSED},
        {"DOCTYPE in the root", "<a><!DOCTYPE a></a>", REFUSED},
        {"prefix", "<p:a xmlns:p='urn:x'/>", REFUSED},
        {"prefix of an attribute", "<a xmlns:p='urn:x' p:b='1'/>", REFUSED},
        {"prefix without its namespace", "<p:a/>", REFUSED},
        {"attribute prefix without its namespace", "<a p:b='1'/>", REFUSED},
        {"the xml prefix on an element", "<xml:a/>", REFUSED},
        {"zero byte", "<a>\0</a>"s, REFUSED},
        {"control character", "<a>\x01</a>", REFUSED},
    };
}

std::vector<Case> encodingCases() {
    const std::string e = "\xC3\xA9";
    const std::string clef = "\xF0\x9D\x84\x9E";
    const std::u16string wide = u"<a b='\u00E9\U0001D11E'/>";
    const std::u16string wideDeclared = u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<a b='\u00E9\U0001D11E'/>";
    const std::string both = "a[b=" + e + clef + ";]";
    const auto declared = [](const std::string& encoding, const std::string& rest) {
        return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>" + rest;
    };
    return {
        {"UTF-8", "<a b='" + e + clef + "'/>", both},
        {"UTF-8 with mark", "\xEF\xBB\xBF<a b='" + e + clef + "'/>", both},
        {"UTF-8 with mark and declaration", "\xEF\xBB\xBF" + DECLARATION + "<a b='" + e + "'/>", "a[b=" + e + ";]"},
        {"declared UTF-8 in capitals", declared("UTF-8", "<a>" + e + "</a>"), "a(\"" + e + "\",)"},
        {"UTF-16 little end first", "\xFF\xFE" + utf16(wide, false), both},
        {"UTF-16 big end first", "\xFE\xFF" + utf16(wide, true), both},
        {"UTF-16 with declaration", "\xFF\xFE" + utf16(wideDeclared, false), both},
        {"UTF-16 by its first bytes", utf16(wideDeclared, false), both},
        {"UTF-16, big end first, by its first bytes", utf16(wideDeclared, true), both},
        {"ISO-8859-1", declared("ISO-8859-1", "<a b='\xE9\xA4'/>"), "a[b=" + e + "\xC2\xA4;]"},
        {"windows-1252", declared("windows-1252", "<a b='\x80\xE9'/>"), "a[b=\xE2\x82\xAC" + e + ";]"},
        {"ASCII", declared("us-ascii", "<a/>"), "a"},
        {"a mark wins over the declaration", "\xEF\xBB\xBF" + declared("ISO-8859-1", "<a>" + e + "</a>"),
         "a(\"" + e + "\",)"},
        {"UTF-8 declared as UTF-16", declared("UTF-16", "<a/>"), REFUSED},
        {"unknown encoding", declared("klingon", "<a/>"), REFUSED},
        {"an encoding that hides markup", declared("UTF-7", "<a/>"), REFUSED},
        {"beyond ASCII", declared("us-ascii", "<a>" + e + "</a>"), REFUSED},
        {"a byte that UTF-8 has not", "<a>\xFF</a>", REFUSED},
        {"ISO-8859-1 without declaration", "<a>\xE9</a>", REFUSED},
        {"a tail byte alone", "<a>\x80</a>", REFUSED},
        {"a sequence cut by markup", "<a>\xE2\x82</a>", REFUSED},
        {"a sequence cut by the end", "<a/>\xC3", REFUSED},
        {"a blank in too many bytes", "<a>\xC0\xA0</a>", REFUSED},
        {"three bytes for two", "<a>\xE0\x82\xA9</a>", REFUSED},
        {"a surrogate in UTF-8", "<a>\xED\xA0\x80</a>", REFUSED},
        {"beyond Unicode", "<a>\xF4\x90\x80\x80</a>", REFUSED},
        {"no character", "<a>\xEF\xBF\xBF</a>", REFUSED},
        {"UTF-16 cut in a unit", "\xFF\xFE" + utf16(wide, false) + "\n", REFUSED},
        {"UTF-16 with half a pair", "\xFF\xFE" + utf16(u"<a>\xD834</a>", false), REFUSED},
        {"UTF-16 with a pair the wrong way round", "\xFF\xFE" + utf16(u"<a>\xDD1E\xD834</a>", false), REFUSED},
        {"UTF-16 with a DOCTYPE", "\xFF\xFE" + utf16(u"<!DOCTYPE a><a/>", false), REFUSED},
        {"UTF-32", "\xFF\xFE\0\0<\0\0\0a\0\0\0/\0\0\0>\0\0\0"s, REFUSED},
    };
}

void check(const std::vector<Case>& cases) {
    for (const Case& one : cases)
        EXPECT_EQ(describeDocument(one.document), one.tree) << one.what;
}

TEST(XmlReaderTest, WellFormedDocumentsGiveTheirTree) {
    check(structureCases());
}

TEST(XmlReaderTest, MalformedDocumentsAndDoctypesAreRefused) {
    check(malformedCases());
}

TEST(XmlReaderTest, EncodingsAreReadAndBadBytesRefused) {
    check(encodingCases());
}

TEST(XmlReaderTest, DepthIsLimited) {
    const auto nested = [](std::size_t levels) {
        return repeated("<a>", levels - 1) + "<a/>" + repeated("</a>", levels - 1);
    };
    EXPECT_NE(readXml(nested(XML_MAX_DEPTH - 1)), nullptr);
    EXPECT_NE(readXml(nested(XML_MAX_DEPTH)), nullptr);
    EXPECT_EQ(readXml(nested(XML_MAX_DEPTH + 1)), nullptr);
    EXPECT_EQ(readXml(repeated("<a>", XML_MAX_DEPTH + 1) + repeated("</a>", XML_MAX_DEPTH + 1)), nullptr);
    EXPECT_EQ(readXml(nested(5000000)), nullptr);
    EXPECT_NE(readXml("<a>" + repeated("<b><c></c></b>", 1000) + "</a>"), nullptr) << "siblings are no depth";
}

TEST(XmlReaderTest, AttributesOfAnElementAreLimited) {
    const auto withAttributes = [](std::size_t count) {
        std::string tag = "<a";
        for (std::size_t i = 0; i < count; ++i)
            tag += " x" + std::to_string(i) + "=''";
        return tag + "/>";
    };
    const auto root = readXml(withAttributes(XML_MAX_ATTRIBUTES));
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->attributes.size(), XML_MAX_ATTRIBUTES);
    EXPECT_EQ(readXml(withAttributes(XML_MAX_ATTRIBUTES + 1)), nullptr);
}

TEST(XmlReaderTest, AMillionSiblingsAreRead) {
    const auto root = readXml("<a>" + repeated("<b/>", 1000000) + "</a>");
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->children.size(), 1000000u);
    EXPECT_EQ(root->children.back().name, "b");
}

TEST(XmlReaderTest, NodesOfADocumentAreLimited) {
    EXPECT_EQ(readXml("<a>" + repeated("<b/>", XML_MAX_NODES) + "</a>"), nullptr);
    EXPECT_EQ(readXml("<a>" + repeated("<b c=''/>", XML_MAX_NODES / 2) + "</a>"), nullptr);
    EXPECT_NE(readXml("<a>" + repeated("<b></b>", XML_MAX_NODES - 1) + "</a>"), nullptr) << "end tags don't count";
}

TEST(XmlReaderTest, LengthOfARunIsLimited) {
    const std::string text(XML_MAX_RUN - 100, 'x');
    const auto root = readXml("<a b='" + text + "'>" + text + "<!--" + text + "--></a>");
    ASSERT_NE(root, nullptr);
    ASSERT_EQ(root->children.size(), 2u);
    EXPECT_EQ(root->children[0].text, text);
    EXPECT_EQ(root->attributes.at(0).second, text);
    const std::string longer(XML_MAX_RUN + 1, 'x');
    EXPECT_EQ(readXml("<a b='" + longer + "'/>"), nullptr);
    EXPECT_EQ(readXml("<a>" + longer + "</a>"), nullptr);
    EXPECT_EQ(readXml("<a><!--" + longer + "--></a>"), nullptr);
    EXPECT_EQ(readXml("<a><![CDATA[" + longer + "]]></a>"), nullptr);
}

TEST(XmlReaderTest, DocumentsBeyondTheLargestFileAreRefused) {
    const std::string part = "<b>" + std::string((1u << 20) - 7, 'x') + "</b>";
    const std::size_t parts = Files::MAX_SIZE / part.size() - 1;
    std::string document = "<a>" + repeated(part, parts) + "</a>";
    document += std::string(Files::MAX_SIZE - document.size(), ' ');
    EXPECT_NE(readXml(document), nullptr);
    document += ' ';
    EXPECT_EQ(readXml(document), nullptr);
}

TEST(XmlReaderTest, EveryCutOfADocumentEndsInAVerdict) {
    const std::string document = DECLARATION + "<a b='1'><!-- c --><![CDATA[d]]><?e f?><g>&lt;&#65;</g></a>";
    for (std::size_t length = 0; length < document.size(); ++length)
        EXPECT_EQ(readXml(document.substr(0, length)), nullptr) << length;
    EXPECT_NE(readXml(document), nullptr);
}

TEST(XmlReaderTest, SeveralThreadsReadAtOnce) {
    std::atomic<int> good{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&good, i] {
            const bool keepsParser = i % 2 == 0;
            if (keepsParser)
                enterXmlThread();
            for (int round = 0; round < 50; ++round)
                good.fetch_add(describeDocument("<a b='1'>x<c/></a>") == "a[b=1;](\"x\",c,)" ? 1 : 0);
            if (keepsParser)
                leaveXmlThread();
        });
    }

    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(good.load(), 200);
}

}
}
