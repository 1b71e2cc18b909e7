#include "platform/x11/settings/PropertyList.h"

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

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

// A dictionary of one entry "k".
std::string documentWith(std::string_view element)
{
    return document("<dict><key>k</key>" + std::string(element) + "</dict>");
}

std::optional<PropertyValue> valueOf(std::string_view element)
{
    const auto list = PropertyList::parse(documentWith(element));
    return list ? list->value("k") : PropertyValue{"damaged: " + list.error()};
}

std::string damage(std::string_view bytes)
{
    const auto list = PropertyList::parse(bytes);
    return list ? "sound" : list.error();
}

std::string damageIn(std::string_view content)
{
    return damage(document(content));
}

std::string damageWith(std::string_view element)
{
    return damage(documentWith(element));
}

// The document after it was read and written.
std::string rewritten(std::string_view bytes)
{
    const auto list = PropertyList::parse(bytes);
    return list ? list->bytes().value_or("cannot be written") : "damaged: " + list.error();
}

PropertyValue text(std::string value)
{
    return {std::move(value)};
}

PropertyValue integer(std::int64_t value)
{
    return {value};
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
    EXPECT_EQ(valueOf("<true/>"), PropertyValue{true});
    EXPECT_EQ(valueOf("<false/>"), PropertyValue{false});
    EXPECT_EQ(valueOf("<integer>1</integer>"), integer(1));
    EXPECT_EQ(valueOf("<real>1</real>"), PropertyValue{1.0});
    EXPECT_EQ(valueOf("<string>1</string>"), text("1"));
    EXPECT_EQ(valueOf("<data>\n\tAAH/\n\t</data>"), PropertyValue{bytes({0, 1, 255})});
    EXPECT_EQ(valueOf("<data/>"), PropertyValue{PropertyData{}});
    EXPECT_EQ(valueOf("<array><true/><array/></array>"), (PropertyValue{PropertyArray{{true}, {PropertyArray{}}}}));
    EXPECT_EQ(valueOf("<dict><key>a</key><true/></dict>"), (PropertyValue{PropertyDictionary{{"a", {true}}}}));
}

TEST(PropertyList, NumbersAreReadInTheirWholeRange)
{
    EXPECT_EQ(valueOf("<integer>-9223372036854775808</integer>"), integer(std::numeric_limits<std::int64_t>::min()));
    EXPECT_EQ(valueOf("<integer>9223372036854775807</integer>"), integer(std::numeric_limits<std::int64_t>::max()));
    EXPECT_EQ(valueOf("<integer> +42 </integer>"), integer(42));
    EXPECT_EQ(valueOf("<integer>-1</integer>"), integer(-1));
    EXPECT_EQ(valueOf("<integer>0x1F</integer>"), integer(31));
    EXPECT_EQ(valueOf("<real>-1e-3</real>"), PropertyValue{-0.001});
    EXPECT_EQ(valueOf("<real>-0.0</real>"), PropertyValue{0.0});
    EXPECT_EQ(valueOf("<real>+infinity</real>"), PropertyValue{std::numeric_limits<double>::infinity()});
    EXPECT_TRUE(std::isnan(std::get<double>(valueOf("<real>nan</real>")->value)));
}

TEST(PropertyList, TextsAreReadWithEntitiesSectionsAndLineEnds)
{
    EXPECT_EQ(valueOf("<string>a &amp; b &#233; <![CDATA[x<y]]> z</string>"), text("a & b é x<y z"));
    EXPECT_EQ(valueOf("<string/>"), text(""));
    EXPECT_EQ(valueOf("<string>  a\n<!-- remark -->b </string>"), text("  a\nb "));
}

TEST(PropertyList, AByteOrderMarkIsSkipped)
{
    EXPECT_EQ(damage("\xEF\xBB\xBF" + documentWith("<true/>")), "sound");
}

TEST(PropertyList, WhatNoSettingHoldsIsKeptAsItStands)
{
    for (const char* element : {"<date>2026-11-21T07:00:01Z</date>", "<integer>18446744073709551615</integer>",
                                "<integer>9223372036854775808</integer>"}) {
        EXPECT_EQ(valueOf(element), std::nullopt) << element;
        EXPECT_THAT(rewritten(documentWith(element)), HasSubstr(element));
    }
    EXPECT_EQ(valueOf("<array><true/><date>2026-11-21T07:00:01Z</date></array>"), std::nullopt);
    EXPECT_EQ(valueOf("<dict><key>a</key><date>2026-11-21T07:00:01Z</date></dict>"), std::nullopt);
}

TEST(PropertyList, ADateThatTheTextFormWouldMisspellIsStillTheSameDate)
{
    const auto list = PropertyList::parse(documentWith("<date>0001-01-01T00:00:00Z</date>"));
    ASSERT_TRUE(list) << list.error();
    const auto again = PropertyList::parse(list->bytes().value());
    ASSERT_TRUE(again) << again.error();
    EXPECT_EQ(*again, *list);
}

TEST(PropertyList, WhatCannotBeReadIsDamageAndNotZero)
{
    EXPECT_THAT(damageWith("<integer>zz</integer>"), HasSubstr("<integer>zz"));
    EXPECT_THAT(damageWith("<integer>12x</integer>"), HasSubstr("<integer>12x"));
    EXPECT_THAT(damageWith("<integer/>"), HasSubstr("<integer>"));
    EXPECT_THAT(damageWith("<integer>99999999999999999999</integer>"), HasSubstr("<integer>9999"));
    EXPECT_THAT(damageWith("<integer>-9223372036854775809</integer>"), HasSubstr("<integer>-9223"));
    EXPECT_THAT(damageWith("<integer>&#53;</integer>"), HasSubstr("<integer>5"));
    EXPECT_THAT(damageWith("<real>1,5</real>"), HasSubstr("<real>1,5"));
    EXPECT_THAT(damageWith("<real>1e999</real>"), HasSubstr("<real>1e999"));
    EXPECT_THAT(damageWith("<date>yesterday</date>"), HasSubstr("<date>"));
    EXPECT_THAT(damageWith("<date>2026-02-30T00:00:00Z</date>"), HasSubstr("<date>"));
    EXPECT_THAT(damageWith("<date/>"), HasSubstr("<date>"));
    EXPECT_THAT(damageWith("<data>!!!!</data>"), HasSubstr("<data>"));
    EXPECT_THAT(damageWith("<data>AAA</data>"), HasSubstr("<data>"));
    EXPECT_THAT(damageWith("<data>A=AA</data>"), HasSubstr("<data>"));
    EXPECT_THAT(damageWith("<data>AA<!-- -->H/</data>"), HasSubstr("<data>"));
    EXPECT_THAT(damageWith("<true>x</true>"), HasSubstr("<true>"));
    EXPECT_NE(damageWith("<number>1</number>"), "sound");
}

TEST(PropertyList, StructureThatDoesNotFitIsDamage)
{
    EXPECT_THAT(damageIn("<dict><key>a</key></dict>"), HasSubstr("<key>a"));
    EXPECT_THAT(damageIn("<dict><key>a</key><true/><key>a</key><false/></dict>"), HasSubstr("makes no sense"));
    EXPECT_NE(damageIn("<dict><true/></dict>"), "sound");
    EXPECT_NE(damageIn("<dict><key>a</key><key>b</key><true/></dict>"), "sound");
    EXPECT_THAT(damageIn("<dict><key>b</key><array><key>a</key></array></dict>"), HasSubstr("<key>a"));
    EXPECT_NE(damageIn("<dict>stray</dict>"), "sound");
    EXPECT_NE(damageIn("<dict/><dict/>"), "sound");
    EXPECT_NE(damageIn(""), "sound");
    EXPECT_THAT(damageIn("<string>x</string>"), HasSubstr("not a dictionary"));
    EXPECT_THAT(damageWith("<string><b/></string>"), HasSubstr("inside a value"));
    EXPECT_NE(damage(document("<dict/>") + document("<dict/>")), "sound");
    EXPECT_NE(damage(document("<dict/>") + "more"), "sound");
}

TEST(PropertyList, BytesThatAreNoPropertyListAreDamage)
{
    EXPECT_NE(damage(""), "sound");
    EXPECT_NE(damage("{ a = 1; }"), "sound");
    EXPECT_NE(damage(std::string(1000, '\0')), "sound");
    EXPECT_NE(damage("bplist00"), "sound");
    EXPECT_NE(damageWith("<string>\xFF\xFE</string>"), "sound");
}

TEST(PropertyList, DamageIsToldWithItsPlace)
{
    EXPECT_THAT(damageIn("<dict>\n<key>a</key>\n<integer>zz</integer>\n</dict>"), HasSubstr("near line 7"));
}

TEST(PropertyList, NestingWithoutEndIsDamageAndNoCrash)
{
    std::string opening;
    std::string closing;
    for (int i = 0; i < 200'000; ++i) {
        opening += "<array>";
        closing += "</array>";
    }
    EXPECT_THAT(damageWith(opening + closing), HasSubstr("nested too deeply"));
    EXPECT_THAT(damageWith(opening), HasSubstr("nested too deeply"));
}

TEST(PropertyList, SoManyValuesThatReadingThemTakesMinutesAreDamage)
{
    std::string entries;
    for (int i = 0; i < 30'000; ++i) {
        entries += "<key>k" + std::to_string(i) + "</key><array/>";
    }
    EXPECT_THAT(damageIn("<dict>" + entries + "</dict>"), HasSubstr("too many values"));
}

TEST(PropertyList, EveryCutOfAnXmlFileIsFound)
{
    const std::string whole = documentWith("<array><integer>1</integer><data>AAEC</data></array>");
    for (std::size_t size = 0; size + 2 < whole.size(); ++size) {
        EXPECT_NE(damage(whole.substr(0, size)), "sound") << size;
    }
}

TEST(PropertyList, AFlippedBitOfAnXmlFileEitherIsFoundOrLosesNothing)
{
    const std::string whole = document("<dict><key>a</key><array><integer>1</integer><data>AAEC</data></array>"
                                       "<key>b</key><string>&lt;é&gt;</string><key>c</key><real>1.5</real></dict>");
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        if (const auto list = PropertyList::parse(flipped)) {
            EXPECT_EQ(PropertyList::parse(list->bytes().value()), list) << bit;
        }
    }
}

TEST(PropertyList, WhatIsWrittenIsReadBackExactly)
{
    const std::pair<const char*, PropertyValue> entries[] = {
        {"", text("an empty key")},
        {"a<&>b", text("x<&>\"'\r\n\té😀]]>")},
        {"array", {PropertyArray{{false}, {PropertyDictionary{}}, {PropertyArray{}}}}},
        {"data", {PropertyData(200, std::byte{0xA5})}},
        {"least", integer(std::numeric_limits<std::int64_t>::min())},
        {"nested", {PropertyDictionary{{"x", {PropertyArray{integer(-1)}}}}}},
        {"real", {0.1 + 0.2}},
        {"real-huge", {std::numeric_limits<double>::max()}},
        {"real-infinite", {-std::numeric_limits<double>::infinity()}},
        {"real-tiny", {std::numeric_limits<double>::denorm_min()}},
        {"real-whole", {3.0}},
    };
    PropertyList list;
    for (const auto& [key, value] : entries) {
        list.set(key, value);
    }
    const auto written = list.bytes().value();
    EXPECT_THAT(written, testing::StartsWith("<?xml"));
    const auto again = PropertyList::parse(written);
    ASSERT_TRUE(again) << again.error();
    for (const auto& [key, value] : entries) {
        EXPECT_EQ(again->value(key), value) << key;
    }
}

TEST(PropertyList, EveryRealSurvivesTheTextForm)
{
    std::mt19937_64 random(20261121);
    for (int round = 0; round < 2000; ++round) {
        const double number = round % 2 == 0 ? static_cast<double>(static_cast<std::int64_t>(random() % 1'000'000)) /
                                                   static_cast<double>(1 + random() % 1000)
                                             : std::ldexp(static_cast<double>(random()), int(random() % 2000) - 1060);
        if (std::isfinite(number)) {
            PropertyList list;
            list.set("k", {number});
            const auto written = list.bytes().value();
            EXPECT_THAT(written, testing::StartsWith("<?xml"));
            EXPECT_EQ(PropertyList::parse(written)->value("k"), PropertyValue{number});
        }
    }
}

TEST(PropertyList, CharactersThatXmlCannotHoldAreReplaced)
{
    PropertyList list;
    list.set("k", text(std::string("a\x01\xFF\0b", 5)));
    const auto again = PropertyList::parse(list.bytes().value());
    ASSERT_TRUE(again) << again.error();
    EXPECT_EQ(again->value("k"), text("a\uFFFD\uFFFD\uFFFDb"));
}

TEST(PropertyList, EntriesKeepTheirOrder)
{
    PropertyList list = PropertyList::parse(document("<dict><key>z</key><true/><key>a</key><true/></dict>")).value();
    list.set("m", {true});
    list.set("z", {false});
    const auto entries = list.entries();
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].first, "z");
    EXPECT_EQ(entries[0].second, PropertyValue{false});
    EXPECT_EQ(entries[1].first, "a");
    EXPECT_EQ(entries[2].first, "m");
}

// Builds the locale itself, so that the test means something where no language but English is installed.
TEST(PropertyList, RealsDoNotFollowTheUsersLanguage)
{
    const xtest::TemporaryDirectory locales;
    const std::string command =
        "localedef -i de_DE -f UTF-8 " + (locales.path() / "de_DE.UTF-8").string() + " 2>/dev/null";
    if (std::system(command.c_str()) != 0) { // NOLINT(cert-env33-c): a fixed command
        GTEST_SKIP() << "this system cannot build a German locale";
    }
    ::setenv("LOCPATH", locales.path().c_str(), 1);
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    PropertyList list;
    list.set("k", {2.5});
    EXPECT_EQ(valueOf("<real>2.5</real>"), PropertyValue{2.5});
    EXPECT_THAT(list.bytes().value(), HasSubstr("<real>2.5</real>"));
    std::setlocale(LC_ALL, "C");
    ::unsetenv("LOCPATH");
}

TEST(PropertyList, RandomBytesAreSurvived)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 2000; ++round) {
        std::string noise = round % 2 == 0 ? "bplist00" : "<plist><dict>";
        for (std::size_t i = random() % 200; i > 0; --i) {
            noise += static_cast<char>(random());
        }
        static_cast<void>(PropertyList::parse(noise));
    }
}

} // namespace
} // namespace quorvel::x11
