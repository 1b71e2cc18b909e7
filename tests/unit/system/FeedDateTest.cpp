#include "system/FeedDate.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(FeedDate, ReadsTheMomentInItsZone)
{
    EXPECT_EQ(feedDate("Mon, 01 Jan 2001 00:00:00 GMT"), Date{0.0});
    EXPECT_EQ(feedDate("Mon, 1 Jan 2001 00:00:00 +0000"), Date{0.0});
    EXPECT_EQ(feedDate("1 Jan 2001 01:30:05 +0130"), Date{5.0});
    EXPECT_EQ(feedDate("Sun, 31 Dec 2000 23:00:00 -0100"), Date{0.0});
    EXPECT_EQ(feedDate("Thu, 29 Feb 2024 12:00:00 Z"), Date{730'900'800.0});
}

TEST(FeedDate, OtherTextsAreNoDates)
{
    for (const char* text :
         {"", "yesterday", "Sat, 30 Feb 2026 00:00:00 GMT", "1 Jän 2001 00:00:00 GMT", "1 Jan 2001 24:00:00 GMT",
          "1 Jan 2001 00:00:00", "1 Jan 2001 00:00:00 +1", "1 Jan 99999999999999999999 00:00:00 GMT",
          "2026-11-21T14:00:00Z", "1 Jan 2001 00-00-00 GMT", "-1 Jan 2001 00:00:00 GMT", "1 Jan 2001 00:00:00 PDT"}) {
        EXPECT_EQ(feedDate(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace quorvel
