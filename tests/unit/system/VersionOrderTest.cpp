#include "system/VersionOrder.h"

#include <string>

#include <gtest/gtest.h>

namespace quorvel {
namespace {

void expectOlder(std::string_view older, std::string_view newer)
{
    EXPECT_TRUE(compareVersions(older, newer) < 0) << older << " " << newer;
    EXPECT_TRUE(compareVersions(newer, older) > 0) << newer << " " << older;
}

void expectSame(std::string_view left, std::string_view right)
{
    EXPECT_TRUE(compareVersions(left, right) == 0) << left << " " << right;
    EXPECT_TRUE(compareVersions(right, left) == 0) << right << " " << left;
}

TEST(VersionOrder, NumbersCountAsNumbers)
{
    expectOlder("1.9", "1.10");
    expectOlder("0.9.9", "1");
    expectOlder("1.2.3", "1.2.4");
    expectOlder("99", "100");
    expectSame("1.02", "1.2");
}

TEST(VersionOrder, MissingNumbersCountAsZero)
{
    expectSame("1", "1.0.0");
    expectOlder("1", "1.0.1");
    expectOlder("", "0.0.1");
    expectSame("", "0");
}

TEST(VersionOrder, WhatComesBeforeAReleaseIsOlderThanIt)
{
    expectOlder("1.0b2", "1.0");
    expectOlder("1.0b2", "1.0b10");
    expectOlder("1.0-beta.2", "1.0-rc.1");
    expectOlder("1.0rc1", "1.0.1");
    expectOlder("0.9", "1.0b1");
}

TEST(VersionOrder, SeparatorsPrefixAndBuildDoNotCount)
{
    expectSame("v1.2", "1.2");
    expectSame("1-2_3", "1.2.3");
    expectSame("1.2+45", "1.2+7");
}

TEST(VersionOrder, NumbersMayBeLongerThanAnyInteger)
{
    const std::string huge(1000, '9');
    expectOlder("1." + huge, "1.1" + std::string(1000, '0'));
    expectOlder(huge, huge + ".1");
    expectSame("000000000000000000000000000001", "1");
}

} // namespace
} // namespace quorvel
