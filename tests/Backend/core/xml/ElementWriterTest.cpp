#include "Backend/core/xml/ElementWriter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Backend {
namespace {

struct Point {
    static auto attributes() {
        return std::tuple{
            Attribute{"x", &Point::x, 0, ANY_NUMBER},
            Attribute{"name", &Point::name, std::string("none"), Written::UNLESS_MISSING},
        };
    }

    std::int32_t x = 0;
    std::string name = "none";
};

struct Box {
    void writeXml(std::ostream& stream, int indent) const { writeEmptyElement(stream, indent, "Box", Point{.x = 7}); }
};

std::string write(void (*action)(std::ostream& stream)) {
    std::ostringstream stream;
    action(stream);
    return stream.str();
}

TEST(ElementWriterTest, AnElementEndsWithItsScope) {
    EXPECT_EQ(write([](std::ostream& stream) { const ElementWriter outer(stream, 0, "A"); }), "<A>\n</A>\n");
    EXPECT_EQ(write([](std::ostream& stream) {
                  const ElementWriter outer(stream, 1, "A");
                  {
                      const ElementWriter inner = outer.begin("B");
                      const ElementWriter innermost = inner.begin("C", Point{.x = 1, .name = "c"});
                  }
                  outer.begin("D").write(Box());
              }),
              "\t<A>\n"
              "\t\t<B>\n"
              "\t\t\t<C x=\"1\" name=\"c\">\n"
              "\t\t\t</C>\n"
              "\t\t</B>\n"
              "\t\t<D>\n"
              "\t\t\t<Box x=\"7\"/>\n"
              "\t\t</D>\n"
              "\t</A>\n");
}

TEST(ElementWriterTest, AttributesStandInTheStartTag) {
    EXPECT_EQ(write([](std::ostream& stream) {
                  const ElementWriter element(stream, 0, "A", Point{.x = -5});
                  element.writeEmpty("B", Point{.x = 6, .name = "<\">"});
              }),
              "<A x=\"-5\">\n"
              "\t<B x=\"6\" name=\"&lt;&quot;&gt;\"/>\n"
              "</A>\n");
}

TEST(ElementWriterTest, TextIsEscapedAndStandsOnOneLine) {
    EXPECT_EQ(write([](std::ostream& stream) { ElementWriter(stream, 0, "A").writeText("B", "1 < 2"); }),
              "<A>\n\t<B>1 &lt; 2</B>\n</A>\n");
}

TEST(ElementWriterTest, ChildrenOfOtherWritersStandOneTabDeeper) {
    EXPECT_EQ(write([](std::ostream& stream) {
                  const ElementWriter element(stream, 2, "A");
                  element.getStream() << getIndentation(element.getInnerIndent()) << "x\n";
              }),
              "\t\t<A>\n\t\t\tx\n\t\t</A>\n");
}

}
}
