#include "Backend/midi/layers/ZoneMap.h"

#include "Backend/core/xml/XmlDocument.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Backend::Zones {
namespace {

void read(ZoneMap& zones, const std::string& xml) {
    zones.readXml(XmlDocument(xml, false).getRootElement());
}

std::string write(const ZoneMap& zones) {
    std::ostringstream stream;
    zones.writeXml(stream, 1, false);
    return stream.str();
}

TEST(ZoneMapTest, ZonesAreWrittenInOrderAndReadBack) {
    const std::string xml =
        "\t<Zones merge=\"false\">\n"
        "\t\t<Zone id=\"0\" transpose=\"-12\"/>\n"
        "\t\t<Zone id=\"7\" transpose=\"5\"/>\n"
        "\t\t<Zone id=\"127\" transpose=\"0\"/>\n"
        "\t</Zones>\n";
    ZoneMap zones;
    read(zones, xml);
    EXPECT_EQ(zones.size(), 3u);
    EXPECT_EQ(write(zones), xml);
}

TEST(ZoneMapTest, ReadingKeepsZonesAndClearsTheTranspositionsItDoesNotName) {
    ZoneMap zones;
    read(zones, "<Zones><Zone id='3' transpose='4'/><Zone id='5' transpose='6'/></Zones>");
    zones.find(3)->lowNote = Note(std::uint8_t{40});
    read(zones, "<Zones merge='true'><Zone id='3' transpose='-1'/><Zone/></Zones>");
    EXPECT_EQ(zones.size(), 3u);
    EXPECT_EQ(zones.find(3)->transpose, -1);
    EXPECT_EQ(zones.find(3)->lowNote.getNumber(), 40);
    EXPECT_EQ(zones.find(5)->transpose, 0);
    EXPECT_EQ(zones.find(0)->transpose, 0);
    EXPECT_FALSE(zones.find(0)->lowNote.isNote());
    EXPECT_FALSE(zones.find(0)->highNote.isNote());
    EXPECT_EQ(zones.find(4), nullptr);
}

TEST(ZoneMapTest, TheLowestZoneIsSelectedAfterReading) {
    ZoneMap zones;
    read(zones, "<Zones><Zone id='9'/><Zone id='4'/></Zones>");
    EXPECT_TRUE(zones.find(4)->selected);
    EXPECT_FALSE(zones.find(9)->selected);
    read(zones, "<Zones><Zone id='2'/></Zones>");
    EXPECT_TRUE(zones.find(2)->selected);
    EXPECT_FALSE(zones.find(4)->selected);
}

TEST(ZoneMapTest, NumbersKeepTheirLowByteAndOthersTheirDefaults) {
    ZoneMap zones;
    read(zones, "<Zones><Zone id='259' transpose='200'/><Zone id='x' transpose='y'/></Zones>");
    EXPECT_EQ(zones.find(3)->transpose, -56);
    EXPECT_EQ(zones.find(0)->transpose, 0);
}

TEST(ZoneMapTest, TheIteratorVisitsEachZoneOnce) {
    ZoneMap zones;
    read(zones, "<Zones><Zone id='1'/><Zone id='2'/></Zones>");
    const auto iterator = zones.createIterator();
    int sum = 0;
    while (iterator->hasNext())
        sum += iterator->next()->id;
    EXPECT_EQ(sum, 3);
    EXPECT_EQ(iterator->next(), nullptr);
}

}
}
