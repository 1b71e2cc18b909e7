#include <bit>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/x11/settings/PropertyList.h"

namespace quorvel::x11 {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string damage(std::string_view bytes)
{
    const auto list = PropertyList::parse(bytes);
    return list ? "sound" : list.error();
}

PropertyData bytes(std::initializer_list<int> values)
{
    PropertyData data;
    for (const int value : values) {
        data.push_back(static_cast<std::byte>(value));
    }
    return data;
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

std::optional<PropertyValue> binaryValue(const std::string& object)
{
    const auto list = PropertyList::parse(binaryWith(object));
    return list ? list->value("k") : PropertyValue{"damaged: " + list.error()};
}

// The file after it was read and written.
std::string rewritten(const std::string& object)
{
    const auto list = PropertyList::parse(binaryWith(object));
    return list ? list->bytes().value_or("cannot be written") : "damaged: " + list.error();
}

std::string dateObject(double secondsSince2001)
{
    return "\x33" + BinaryPlist::number(std::bit_cast<std::uint64_t>(secondsSince2001), 8);
}

TEST(BinaryPropertyList, EveryTypeIsReadAsItself)
{
    EXPECT_EQ(binaryValue("\x08"), PropertyValue{false});
    EXPECT_EQ(binaryValue("\x09"), PropertyValue{true});
    EXPECT_EQ(binaryValue("\x10\xFF"), PropertyValue{std::int64_t{255}});
    EXPECT_EQ(binaryValue("\x13" + BinaryPlist::number(std::uint64_t(-5), 8)), PropertyValue{std::int64_t{-5}});
    EXPECT_EQ(binaryValue("\x22" + BinaryPlist::number(std::bit_cast<std::uint32_t>(2.5F), 4)), PropertyValue{2.5});
    EXPECT_EQ(binaryValue("\x23" + BinaryPlist::number(std::bit_cast<std::uint64_t>(0.1), 8)), PropertyValue{0.1});
    EXPECT_EQ(binaryValue(std::string("\x43\0\1\2", 4)), PropertyValue{bytes({0, 1, 2})});
    EXPECT_EQ(binaryValue("\x52hi"), PropertyValue{std::string("hi")});
    EXPECT_EQ(binaryValue(std::string("\x63\x00\xE9\xD8\x3D\xDE\x00", 7)), PropertyValue{std::string("é😀")});
    EXPECT_EQ(binaryValue("\x5F\x10\x14" + std::string(20, 'x')), PropertyValue{std::string(20, 'x')});
    EXPECT_EQ(binaryValue(std::string("\xA2\0\0", 3)),
              (PropertyValue{PropertyArray{{std::string("k")}, {std::string("k")}}}));
}

TEST(BinaryPropertyList, IsWrittenAsTextForPeople)
{
    EXPECT_THAT(rewritten("\x52hi"), StartsWith("<?xml"));
    EXPECT_THAT(rewritten(dateObject(817'023'601.0)), HasSubstr("<date>2026-11-22T07:00:01Z</date>"));
    EXPECT_THAT(rewritten("\x14" + BinaryPlist::number(0, 8) + BinaryPlist::number(std::uint64_t(-1), 8)),
                HasSubstr("<integer>18446744073709551615</integer>"));
}

TEST(BinaryPropertyList, StaysBinaryWhereTextWouldLoseSomething)
{
    constexpr double aDateWithAFraction = 817'023'601.5;
    constexpr double notADate = std::numeric_limits<double>::quiet_NaN();
    for (const std::string& object : {dateObject(aDateWithAFraction), dateObject(notADate), std::string("\x80\x05")}) {
        const auto list = PropertyList::parse(binaryWith(object));
        ASSERT_TRUE(list) << list.error();
        EXPECT_EQ(list->value("k"), std::nullopt);
        const auto written = list->bytes().value();
        EXPECT_THAT(written, StartsWith("bplist00"));
        EXPECT_EQ(PropertyList::parse(written), list);
    }
}

TEST(BinaryPropertyList, DamageIsFound)
{
    EXPECT_NE(damage(binaryWith("\x0F")), "sound");
    EXPECT_NE(damage(binaryWith(std::string("\0", 1))), "sound");
    EXPECT_THAT(damage(binaryWith("\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF")), HasSubstr("do not fit"));
    EXPECT_THAT(damage(binaryWith("\xA1\x63")), HasSubstr("do not fit"));
    EXPECT_THAT(damage(binaryWith("\xC0")), HasSubstr("unknown kind"));
    EXPECT_THAT(damage(binaryWith("\x51\xE9")), HasSubstr("ASCII"));
    EXPECT_THAT(damage(binaryWith(std::string("\x53\x61\x00\x62", 4))), HasSubstr("ASCII"));
    EXPECT_THAT(damage(binaryWith("\x61\xD8\x3D")), HasSubstr("UTF-16"));
    EXPECT_THAT(damage(binaryWith("\x14" + BinaryPlist::number(5, 8) + BinaryPlist::number(1, 8))),
                HasSubstr("64 bits"));
    EXPECT_NE(damage(binaryWith(std::string("\xD1\1\0", 3))), "sound");
}

TEST(BinaryPropertyList, AKeyThatIsThereTwiceIsRemovedWhole)
{
    BinaryPlist file;
    const auto key = static_cast<char>(file.add("\x51k"));
    const auto value = static_cast<char>(file.add("\x51v"));
    auto list = PropertyList::parse(file.file(file.add(std::string("\xD2") + key + key + value + value)));
    ASSERT_TRUE(list);
    list->remove("k");
    EXPECT_FALSE(list->contains("k"));
    EXPECT_TRUE(list->entries().empty());
}

TEST(BinaryPropertyList, AnObjectThatContainsItselfIsDamage)
{
    EXPECT_THAT(damage(binaryWith("\xA1\x01")), HasSubstr("nested too deeply"));
}

TEST(BinaryPropertyList, ASmallFileThatStandsForAHugeTreeIsDamage)
{
    BinaryPlist list;
    std::size_t inner = list.add("\x09");
    for (int level = 0; level < 100; ++level) {
        const char reference = static_cast<char>(inner);
        inner = list.add(std::string("\xA2") + reference + reference);
    }
    EXPECT_THAT(damage(list.file(inner)), HasSubstr("too many values"));
}

TEST(BinaryPropertyList, ADeepTreeIsDamageAndNoCrash)
{
    BinaryPlist list;
    std::size_t inner = list.add("\x09");
    for (int level = 0; level < 200; ++level) {
        inner = list.add(std::string("\xA1") + static_cast<char>(inner));
    }
    EXPECT_THAT(damage(list.file(inner)), HasSubstr("nested too deeply"));
}

TEST(BinaryPropertyList, EveryCutAndEveryFlippedBitIsSurvived)
{
    const std::string whole = binaryWith(std::string("\x63\x00\xE9\xD8\x3D\xDE\x00", 7));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_NE(damage(whole.substr(0, size)), "sound") << size;
    }
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        if (const auto list = PropertyList::parse(flipped)) {
            EXPECT_EQ(PropertyList::parse(list->bytes().value()), list) << bit;
        }
    }
}

} // namespace
} // namespace quorvel::x11
