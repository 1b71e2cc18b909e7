#include "platform/x11/settings/PropertyList.h"

#include <bit>
#include <clocale>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

using testing::HasSubstr;

std::string document(std::string_view content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n" +
           std::string(content) + "\n</plist>\n";
}

PlistNode valueOf(std::string_view element)
{
    auto dictionary = parsePropertyList(document("<dict><key>k</key>" + std::string(element) + "</dict>"));
    return dictionary ? dictionary->at("k") : PlistNode{PlistForeign{"damaged", dictionary.error()}};
}

std::string damage(std::string_view bytes)
{
    const auto dictionary = parsePropertyList(bytes);
    return dictionary ? "sound" : dictionary.error();
}

std::string damageIn(std::string_view content)
{
    return damage(document(content));
}

PropertyData bytes(std::initializer_list<int> values)
{
    PropertyData data;
    for (const int value : values) {
        data.push_back(static_cast<std::byte>(value));
    }
    return data;
}

TEST(PropertyList, EveryTypeIsReadAsItself)
{
    EXPECT_EQ(valueOf("<true/>"), PlistNode{true});
    EXPECT_EQ(valueOf("<false/>"), PlistNode{false});
    EXPECT_EQ(valueOf("<integer>1</integer>"), PlistNode{std::int64_t{1}});
    EXPECT_EQ(valueOf("<real>1</real>"), PlistNode{1.0});
    EXPECT_EQ(valueOf("<string>1</string>"), PlistNode{std::string("1")});
    EXPECT_EQ(valueOf("<data>\n\tAAH/\n\t</data>"), PlistNode{bytes({0, 1, 255})});
    EXPECT_EQ(valueOf("<data/>"), PlistNode{PropertyData{}});
    EXPECT_EQ(valueOf("<array><true/><array/></array>"),
              (PlistNode{PlistArray{PlistNode{true}, PlistNode{PlistArray{}}}}));
    EXPECT_EQ(valueOf("<dict><key>a</key><true/></dict>"), (PlistNode{PlistDictionary{{"a", PlistNode{true}}}}));
}

TEST(PropertyList, NumbersAreReadInTheirWholeRange)
{
    EXPECT_EQ(valueOf("<integer>-9223372036854775808</integer>"), PlistNode{std::numeric_limits<std::int64_t>::min()});
    EXPECT_EQ(valueOf("<integer> +42 </integer>"), PlistNode{std::int64_t{42}});
    EXPECT_EQ(valueOf("<integer>0x1F</integer>"), PlistNode{std::int64_t{31}});
    EXPECT_EQ(valueOf("<real>-1e-3</real>"), PlistNode{-0.001});
    EXPECT_EQ(valueOf("<real>+infinity</real>"), PlistNode{std::numeric_limits<double>::infinity()});
    EXPECT_TRUE(std::isnan(std::get<double>(valueOf("<real>nan</real>").value)));
}

TEST(PropertyList, TextsAreReadWithEntitiesSectionsAndLineEnds)
{
    EXPECT_EQ(valueOf("<string>a &amp; b &#233; <![CDATA[x<y]]> z</string>"), PlistNode{std::string("a & b é x<y z")});
    EXPECT_EQ(valueOf("<string/>"), PlistNode{std::string()});
    EXPECT_EQ(valueOf("<string>a\n<!-- remark -->b</string>"), PlistNode{std::string("a\nb")});
}

TEST(PropertyList, ADateIsKeptAsItStands)
{
    EXPECT_EQ(valueOf("<date>0001-01-01T00:00:00Z</date>"), (PlistNode{PlistForeign{"date", "0001-01-01T00:00:00Z"}}));
}

TEST(PropertyList, AnIntegerBeyond64BitsIsKeptAsItStands)
{
    EXPECT_EQ(valueOf("<integer>18446744073709551615</integer>"),
              (PlistNode{PlistForeign{"integer", "18446744073709551615"}}));
}

TEST(PropertyList, WhatCannotBeReadIsDamageAndNotZero)
{
    EXPECT_THAT(damageIn("<dict><key>a</key><integer>zz</integer></dict>"), HasSubstr("<integer>"));
    EXPECT_THAT(damageIn("<dict><key>a</key><integer/></dict>"), HasSubstr("<integer>"));
    EXPECT_THAT(damageIn("<dict><key>a</key><real>1,5</real></dict>"), HasSubstr("<real>"));
    EXPECT_THAT(damageIn("<dict><key>a</key><date>yesterday</date></dict>"), HasSubstr("<date>"));
    EXPECT_THAT(damageIn("<dict><key>a</key><data>!!!!</data></dict>"), HasSubstr("<data>"));
    EXPECT_THAT(damageIn("<dict><key>a</key><data>AAA</data></dict>"), HasSubstr("<data>"));
    EXPECT_THAT(damageIn("<dict><key>a</key><data>A=AA</data></dict>"), HasSubstr("<data>"));
    EXPECT_THAT(damageIn("<dict><key>a</key><number>1</number></dict>"), HasSubstr("<number>"));
}

TEST(PropertyList, StructureThatDoesNotFitIsDamage)
{
    EXPECT_THAT(damageIn("<dict><key>a</key></dict>"), HasSubstr("without a value"));
    EXPECT_THAT(damageIn("<dict><true/></dict>"), HasSubstr("without a <key>"));
    EXPECT_THAT(damageIn("<dict><key>a</key><key>b</key><true/></dict>"), HasSubstr("<key>"));
    EXPECT_THAT(damageIn("<array><key>a</key></array>"), HasSubstr("<key>"));
    EXPECT_THAT(damageIn("<dict>stray</dict>"), HasSubstr("text between"));
    EXPECT_THAT(damageIn("<dict/><dict/>"), HasSubstr("second outermost"));
    EXPECT_THAT(damageIn(""), HasSubstr("empty <plist>"));
    EXPECT_THAT(damageIn("<string>x</string>"), HasSubstr("not a dictionary"));
    EXPECT_THAT(damageIn("<dict><key>a</key><string><b/></string></dict>"), HasSubstr("<b> inside <string>"));
    EXPECT_THAT(damage("<dict/>"), HasSubstr("outside <plist>"));
    EXPECT_THAT(damage(document("<dict/>") + document("<dict/>")), HasSubstr("second <plist>"));
}

TEST(PropertyList, BytesThatAreNoPropertyListAreDamage)
{
    EXPECT_NE(damage(""), "sound");
    EXPECT_NE(damage("{ a = 1; }"), "sound");
    EXPECT_NE(damage(std::string(1000, '\0')), "sound");
    EXPECT_NE(damage("bplist00"), "sound");
    EXPECT_NE(damageIn("<dict><key>a</key><string>\xFF\xFE</string></dict>"), "sound");
    EXPECT_THAT(damageIn("<dict><key>a\x06</key><true/></dict>"), HasSubstr("does not allow"));
}

TEST(PropertyList, DamageIsToldWithItsPlace)
{
    EXPECT_THAT(damageIn("<dict>\n<key>a</key>\n<integer>zz</integer>\n</dict>"), HasSubstr("near line 7"));
}

TEST(PropertyList, NestingWithoutEndIsDamageAndNoCrash)
{
    std::string deep;
    for (int i = 0; i < 200'000; ++i) {
        deep += "<array>";
    }
    EXPECT_THAT(damageIn("<dict><key>a</key>" + deep), HasSubstr("nested too deeply"));
}

TEST(PropertyList, EveryCutAndEveryFlippedBitOfAnXmlFileIsSurvived)
{
    const std::string whole = document("<dict><key>a</key><array><integer>1</integer><data>AAEC</data></array>"
                                       "<key>b</key><string>&lt;é&gt;</string><key>c</key><real>1.5</real></dict>");
    for (std::size_t size = 0; size + 10 < whole.size(); ++size) {
        EXPECT_NE(damage(whole.substr(0, size)), "sound") << size;
    }
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        if (const auto dictionary = parsePropertyList(flipped)) {
            EXPECT_EQ(parsePropertyList(propertyListXml(*dictionary)), dictionary) << bit;
        }
    }
}

TEST(PropertyList, WhatIsWrittenIsReadBackExactly)
{
    const PlistDictionary dictionary{
        {"", PlistNode{std::string("an empty key")}},
        {"a<&>b", PlistNode{std::string("x<&>\"'\r\n\té😀")}},
        {"array", PlistNode{PlistArray{PlistNode{false}, PlistNode{PlistDictionary{}}, PlistNode{PlistArray{}}}}},
        {"big", PlistNode{PlistForeign{"integer", "18446744073709551615"}}},
        {"data", PlistNode{PropertyData(200, std::byte{0xA5})}},
        {"date", PlistNode{PlistForeign{"date", "0001-01-01T00:00:00Z"}}},
        {"least", PlistNode{std::numeric_limits<std::int64_t>::min()}},
        {"nested", PlistNode{PlistDictionary{{"x", PlistNode{PlistArray{PlistNode{std::int64_t{-1}}}}}}}},
        {"real", PlistNode{0.1 + 0.2}},
        {"real-huge", PlistNode{std::numeric_limits<double>::max()}},
        {"real-infinite", PlistNode{-std::numeric_limits<double>::infinity()}},
        {"real-tiny", PlistNode{std::numeric_limits<double>::denorm_min()}},
        {"real-whole", PlistNode{3.0}},
    };
    const auto again = parsePropertyList(propertyListXml(dictionary));
    ASSERT_TRUE(again) << again.error();
    EXPECT_EQ(*again, dictionary);
}

TEST(PropertyList, CharactersThatXmlCannotHoldAreReplaced)
{
    const PlistDictionary dictionary{{"k", PlistNode{std::string("a\x01\xFF\0b", 5)}}};
    const auto again = parsePropertyList(propertyListXml(dictionary));
    ASSERT_TRUE(again) << again.error();
    EXPECT_EQ(again->at("k"), PlistNode{std::string("a\uFFFD\uFFFD\uFFFDb")});
}

TEST(PropertyList, RealsDoNotFollowTheUsersLanguage)
{
    // Only where that language is installed; elsewhere the call leaves the locale as it is.
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(valueOf("<real>2.5</real>"), PlistNode{2.5});
    EXPECT_THAT(propertyListXml({{"k", PlistNode{2.5}}}), HasSubstr("<real>2.5</real>"));
    std::setlocale(LC_ALL, "C");
}

// Puts a binary property list together from its objects.
class BinaryPlist {
public:
    std::size_t add(std::string object)
    {
        objects.push_back(std::move(object));
        return objects.size() - 1;
    }

    std::string file(std::size_t top) const
    {
        std::string bytes = "bplist00";
        std::string table;
        for (const auto& object : objects) {
            table += number(bytes.size(), 4);
            bytes += object;
        }
        const std::size_t tableOffset = bytes.size();
        return bytes + table + std::string(6, '\0') + '\4' + '\1' + number(objects.size(), 8) + number(top, 8) +
               number(tableOffset, 8);
    }

    static std::string number(std::uint64_t value, int size)
    {
        std::string bytes;
        for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
            bytes += static_cast<char>(value >> shift & 0xFF);
        }
        return bytes;
    }

private:
    std::vector<std::string> objects;
};

// A dictionary of one entry "k".
std::string binaryWith(const std::string& object)
{
    BinaryPlist list;
    const auto key = list.add("\x51k");
    const auto value = list.add(object);
    return list.file(list.add(std::string("\xD1") + static_cast<char>(key) + static_cast<char>(value)));
}

PlistNode binaryValue(const std::string& object)
{
    auto dictionary = parsePropertyList(binaryWith(object));
    return dictionary ? dictionary->at("k") : PlistNode{PlistForeign{"damaged", dictionary.error()}};
}

TEST(PropertyList, TheBinaryFormIsReadTypeByType)
{
    EXPECT_EQ(binaryValue("\x08"), PlistNode{false});
    EXPECT_EQ(binaryValue("\x09"), PlistNode{true});
    EXPECT_EQ(binaryValue("\x10\xFF"), PlistNode{std::int64_t{255}});
    EXPECT_EQ(binaryValue("\x13" + BinaryPlist::number(std::uint64_t(-5), 8)), PlistNode{std::int64_t{-5}});
    EXPECT_EQ(binaryValue("\x14" + BinaryPlist::number(0, 8) + BinaryPlist::number(std::uint64_t(-1), 8)),
              (PlistNode{PlistForeign{"integer", "18446744073709551615"}}));
    EXPECT_EQ(binaryValue("\x22" + BinaryPlist::number(std::bit_cast<std::uint32_t>(2.5F), 4)), PlistNode{2.5});
    EXPECT_EQ(binaryValue("\x23" + BinaryPlist::number(std::bit_cast<std::uint64_t>(0.1), 8)), PlistNode{0.1});
    EXPECT_EQ(binaryValue("\x33" + BinaryPlist::number(std::bit_cast<std::uint64_t>(817'023'601.0), 8)),
              (PlistNode{PlistForeign{"date", "2026-11-22T07:00:01Z"}}));
    EXPECT_EQ(binaryValue("\x33" + BinaryPlist::number(std::bit_cast<std::uint64_t>(-63'114'076'800.0), 8)),
              (PlistNode{PlistForeign{"date", "0000-12-30T00:00:00Z"}}));
    EXPECT_EQ(binaryValue(std::string("\x43\0\1\2", 4)), PlistNode{bytes({0, 1, 2})});
    EXPECT_EQ(binaryValue("\x52hi"), PlistNode{std::string("hi")});
    EXPECT_EQ(binaryValue(std::string("\x63\x00\xE9\xD8\x3D\xDE\x00", 7)), PlistNode{std::string("é😀")});
    EXPECT_EQ(binaryValue("\x60"), PlistNode{std::string()});
    EXPECT_EQ(binaryValue("\x5F\x10\x14" + std::string(20, 'x')), PlistNode{std::string(20, 'x')});
    EXPECT_EQ(binaryValue(std::string("\xA2\0\0", 3)),
              (PlistNode{PlistArray{PlistNode{std::string("k")}, PlistNode{std::string("k")}}}));
}

TEST(PropertyList, DamageInTheBinaryFormIsFound)
{
    EXPECT_THAT(damage(binaryWith("\x0F")), HasSubstr("no type"));
    EXPECT_THAT(damage(binaryWith("\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF")), HasSubstr("beyond the end"));
    EXPECT_THAT(damage(binaryWith("\xA1\x63")), HasSubstr("does not exist"));
    EXPECT_THAT(damage(binaryWith("\xC0")), HasSubstr("unknown kind"));
    EXPECT_THAT(damage(binaryWith("\x51\xE9")), HasSubstr("ASCII"));
    EXPECT_THAT(damage(binaryWith("\x61\xD8\x3D")), HasSubstr("UTF-16"));
    EXPECT_THAT(damage(binaryWith(std::string("\xD1\1\0", 3))), testing::AnyOf(HasSubstr("deeply"), HasSubstr("key")));
}

TEST(PropertyList, AnObjectThatContainsItselfIsDamage)
{
    EXPECT_THAT(damage(binaryWith("\xA1\x01")), HasSubstr("nested too deeply"));
}

TEST(PropertyList, ASmallFileThatStandsForAHugeTreeIsDamage)
{
    BinaryPlist list;
    std::size_t inner = list.add("\x09");
    for (int level = 0; level < 100; ++level) {
        const char reference = static_cast<char>(inner);
        inner = list.add(std::string("\xA2") + reference + reference);
    }
    EXPECT_THAT(damage(list.file(inner)), HasSubstr("too many values"));
}

TEST(PropertyList, EveryCutAndEveryFlippedBitOfABinaryFileIsSurvived)
{
    const std::string whole = binaryWith(std::string("\x63\x00\xE9\xD8\x3D\xDE\x00", 7));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_NE(damage(whole.substr(0, size)), "sound") << size;
    }
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        if (const auto dictionary = parsePropertyList(flipped)) {
            EXPECT_EQ(parsePropertyList(propertyListXml(*dictionary)).has_value(), true) << bit;
        }
    }
}

TEST(PropertyList, RandomBytesAreSurvived)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 2000; ++round) {
        std::string noise = round % 2 == 0 ? "bplist00" : "<plist><dict>";
        for (std::size_t i = random() % 200; i > 0; --i) {
            noise += static_cast<char>(random());
        }
        static_cast<void>(parsePropertyList(noise));
    }
}

TEST(PlistNode, SettingsPassThroughUnchanged)
{
    const PropertyValue value{PropertyArray{
        PropertyValue{true},
        PropertyValue{PropertyDictionary{{"a", PropertyValue{1.5}}, {"b", PropertyValue{PropertyData{std::byte{1}}}}}},
    }};
    EXPECT_EQ(propertyValue(plistNode(value)), value);
}

TEST(PlistNode, AValueThatHoldsADateIsNoSetting)
{
    const PlistNode date{PlistForeign{"date", "2026-11-21T07:00:01Z"}};
    EXPECT_EQ(propertyValue(date), std::nullopt);
    EXPECT_EQ(propertyValue(PlistNode{PlistArray{PlistNode{true}, date}}), std::nullopt);
    EXPECT_EQ(propertyValue(PlistNode{PlistDictionary{{"a", date}}}), std::nullopt);
}

} // namespace
} // namespace quorvel::x11
