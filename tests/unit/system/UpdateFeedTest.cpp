#include "system/UpdateFeed.h"

#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::string feed(std::string_view items)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<rss version=\"2.0\" xmlns:a=\"http://example.org/appcast\">"
           "<channel><title>Versions</title>" +
           std::string(items) + "</channel></rss>";
}

std::vector<UpdateFeedItem> itemsOf(std::string_view items, std::string_view system = "linux")
{
    return parseUpdateFeed(feed(items), system).value();
}

std::string problemOf(std::string_view document)
{
    const auto items = parseUpdateFeed(document, "linux");
    return items ? "none" : items.error();
}

TEST(UpdateFeed, AnItemIsReadWithAllThatItTells)
{
    EXPECT_THAT(itemsOf("<item><title>1.2</title><pubDate>Mon, 01 Jan 2001 00:00:10 GMT</pubDate>"
                        "<a:version>120</a:version><a:shortVersionString>\n 1.2 é \n</a:shortVersionString>"
                        "<link>https://example.org/get?a=1&amp;b=2</link>"
                        "<a:releaseNotesLink><![CDATA[http://example.org/notes]]></a:releaseNotesLink></item>"),
                ElementsAre(UpdateFeedItem{"120", "1.2 é", Date{10.0}, "https://example.org/get?a=1&b=2",
                                           "http://example.org/notes"}));
}

TEST(UpdateFeed, VersionsMayStandInTheEnclosure)
{
    EXPECT_THAT(itemsOf("<item><enclosure url=\"https://example.org/q.tar.gz\" a:version=\"120\" "
                        "a:shortVersionString=\"1.2\"/></item>"),
                ElementsAre(UpdateFeedItem{"120", "1.2", std::nullopt, "https://example.org/q.tar.gz", ""}));
}

TEST(UpdateFeed, AnItemWithoutAPageHasItsEnclosuresAddressOrElseTheChannelsPage)
{
    const auto linksOf = [](std::string_view document) {
        std::vector<std::string> links;
        for (const auto& item : itemsOf(document)) {
            links.push_back(item.link);
        }
        return links;
    };
    const std::string enclosures = "<enclosure url=\"https://example.org/q.dmg\" a:os=\"macos\"/>"
                                   "<enclosure url=\"https://example.org/q.deb\" a:os=\"linux\"/>";
    const std::string page = "<link>https://example.org/get</link>";
    const std::string channelPage = "<link>https://example.org/</link>";
    EXPECT_THAT(linksOf("<item>" + enclosures + page + "<a:version>1</a:version></item>" + channelPage),
                ElementsAre("https://example.org/get"));
    EXPECT_THAT(linksOf(channelPage + "<item><link>file:///x</link>" + enclosures + "<a:version>1</a:version></item>"),
                ElementsAre("https://example.org/q.deb"));
    EXPECT_THAT(linksOf("<item><enclosure url=\"data:x\"/><a:version>1</a:version></item>" + channelPage +
                        "<item><a:version>2</a:version></item><link>https://example.org/other</link>"),
                ElementsAre("https://example.org/", "https://example.org/"));
    EXPECT_THAT(linksOf("<link>javascript:x</link><item><a:version>1</a:version></item>"), ElementsAre(""));
}

TEST(UpdateFeed, EitherVersionStandsInForTheOther)
{
    EXPECT_THAT(itemsOf("<item><a:version>2.0</a:version></item><item><a:shortVersionString>2.1"
                        "</a:shortVersionString></item>"),
                ElementsAre(UpdateFeedItem{"2.0", "2.0", std::nullopt, "", ""},
                            UpdateFeedItem{"2.1", "2.1", std::nullopt, "", ""}));
}

TEST(UpdateFeed, ItemsForOthersAreLeftOut)
{
    EXPECT_THAT(itemsOf("<item><a:version>1</a:version><a:channel>beta</a:channel></item>"
                        "<item><a:version>2</a:version><enclosure a:os=\"windows\"/></item>"
                        "<item><title>without a version</title></item>"),
                IsEmpty());
    EXPECT_THAT(itemsOf("<item><a:version>3</a:version><enclosure a:os=\"macos\"/><enclosure a:os=\"linux\"/></item>"),
                SizeIs(1));
    EXPECT_THAT(itemsOf("<item><a:version>4</a:version><enclosure a:os=\"macos\"/></item>", "macos"), SizeIs(1));
    EXPECT_THAT(itemsOf("<item><a:version>5</a:version><enclosure a:os=\"linux\"/></item>", "macos"), IsEmpty());
}

TEST(UpdateFeed, OnlyTheItemsOwnElementsCount)
{
    EXPECT_THAT(itemsOf("<a:version>9</a:version><item><a:version>1</a:version><a:deltas><enclosure "
                        "a:version=\"8\"/><a:version>7</a:version></a:deltas></item>"),
                ElementsAre(UpdateFeedItem{"1", "1", std::nullopt, "", ""}));
}

TEST(UpdateFeed, AddressesThatAreNoneOfTheWebAreLeftOut)
{
    for (const char* address : {"javascript:alert(1)", "file:///etc/passwd", "/relative", "HTTPS-ish://x", "data:x",
                                "https://example.org/a b", "https://example.org/&#10;x"}) {
        const auto items = itemsOf("<item><a:version>1</a:version><link>" + std::string(address) + "</link></item>");
        ASSERT_THAT(items, SizeIs(1)) << address;
        EXPECT_EQ(items.front().link, "") << address;
    }
}

TEST(UpdateFeed, TextsThatAreTooLongOrHoldControlCharactersCountAsAbsent)
{
    EXPECT_THAT(itemsOf("<item><a:version>" + std::string(65, '1') + "</a:version></item>"), IsEmpty());
    EXPECT_THAT(itemsOf("<item><a:version>1&#9;2</a:version></item>"), IsEmpty());
    EXPECT_THAT(itemsOf("<item><a:version>1</a:version><link>https://" + std::string(2000, 'x') + "</link></item>"),
                ElementsAre(UpdateFeedItem{"1", "1", std::nullopt, "", ""}));
}

TEST(UpdateFeed, WhatIsNoFeedIsToldSo)
{
    EXPECT_THAT(problemOf("<html><body>Sign in</body></html>"), HasSubstr("not an update feed"));
    EXPECT_THAT(problemOf("<rss/>"), HasSubstr("not an update feed"));
    EXPECT_THAT(problemOf(""), HasSubstr("damaged"));
    EXPECT_THAT(problemOf("not XML"), HasSubstr("line 1"));
    EXPECT_THAT(problemOf("<rss><channel>\n<item></channel></rss>"), HasSubstr("line 2"));
    EXPECT_THAT(problemOf(feed("<item><a:version>\xFF</a:version></item>")), HasSubstr("damaged"));
    EXPECT_EQ(problemOf(feed("")), "none");
}

TEST(UpdateFeed, DeclarationsAreRefused)
{
    std::string laughs = "<?xml version=\"1.0\"?><!DOCTYPE rss [<!ENTITY a0 \"ha\">";
    for (int level = 1; level < 30; ++level) {
        const std::string inner = "&a" + std::to_string(level - 1) + ";";
        laughs += "<!ENTITY a" + std::to_string(level) + " \"" + inner + inner + "\">";
    }
    laughs += "]><rss><channel><title>&a29;</title></channel></rss>";
    EXPECT_THAT(problemOf(laughs), HasSubstr("declarations"));
    EXPECT_THAT(problemOf("<!DOCTYPE rss SYSTEM \"file:///etc/passwd\"><rss><channel/></rss>"),
                HasSubstr("declarations"));
}

TEST(UpdateFeed, DeepNestingAndManyItemsAreSurvived)
{
    std::string deep;
    for (int level = 0; level < 200'000; ++level) {
        deep += "<a>";
    }
    EXPECT_THAT(problemOf("<rss><channel>" + deep), HasSubstr("damaged"));
    std::string many;
    for (int number = 0; number < 20'000; ++number) {
        many += "<item><a:version>" + std::to_string(number) + "</a:version></item>";
    }
    EXPECT_EQ(newestItem(itemsOf(many))->version, "19999");
}

TEST(UpdateFeed, EveryCutAndRandomBytesAreSurvived)
{
    const std::string whole = feed("<item><a:version>1&amp;2</a:version><link>https://example.org</link></item>");
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_NE(problemOf(std::string_view(whole).substr(0, size)), "none") << size;
    }
    std::mt19937 random(20261121);
    for (int round = 0; round < 2000; ++round) {
        std::string changed = whole;
        changed[random() % changed.size()] = static_cast<char>(random());
        static_cast<void>(parseUpdateFeed(changed, "linux"));
    }
}

TEST(UpdateFeed, TheNewestItemHasTheHighestVersionWhereverItStands)
{
    const auto items = itemsOf("<item><a:version>1.9</a:version></item><item><a:version>1.10</a:version></item>"
                               "<item><a:version>1.2</a:version></item>");
    EXPECT_EQ(newestItem(items)->version, "1.10");
    EXPECT_EQ(newestItem({}), std::nullopt);
}

} // namespace
} // namespace quorvel
