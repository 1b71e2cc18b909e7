#include "platform/x11/desktop/DesktopPortal.h"

#include <gtest/gtest.h>

#include "unit/x11/desktop/FakePortal.h"

namespace quorvel::x11 {
namespace {

class DesktopPortalTest : public testing::Test {
protected:
    FakePortal fake;
    DesktopPortal portal{fake.busAddress()};
};

TEST_F(DesktopPortalTest, TellsThePreferenceThroughOneVariantOrTwo)
{
    fake.answer(g_variant_new_uint32(1));
    EXPECT_EQ(portal.preference(), PortalPreference::dark);
    fake.answer(g_variant_new_variant(g_variant_new_uint32(2)));
    EXPECT_EQ(portal.preference(), PortalPreference::light);
}

TEST_F(DesktopPortalTest, AnAnswerOfAnotherTypeIsNoPreference)
{
    fake.answer(g_variant_new_string("dark"));
    EXPECT_EQ(portal.preference(), std::nullopt);
}

TEST_F(DesktopPortalTest, AnErrorIsNoPreference)
{
    fake.answer(nullptr);
    EXPECT_EQ(portal.preference(), std::nullopt);
}

TEST_F(DesktopPortalTest, AnnouncesChangesOfThisSettingAloneUntilTheTokenGoes)
{
    int changes = 0;
    auto token = portal.observe([&changes] { ++changes; });
    portal.preference(); // once that is answered the bus knows of the subscription
    fake.announce("contrast");
    fake.announce("color-scheme");
    while (changes == 0) {
        g_main_context_iteration(nullptr, TRUE);
    }
    portal.preference(); // answers come in order with announcements
    while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
    }
    EXPECT_EQ(changes, 1);
    token.reset();
    fake.announce("color-scheme");
    portal.preference(); // answers come in order with announcements
    while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
    }
    EXPECT_EQ(changes, 1);
}

TEST(DesktopPortal, KnowsNothingWithoutABus)
{
    DesktopPortal portal("");
    EXPECT_EQ(portal.preference(), std::nullopt);
    EXPECT_FALSE(portal.observe([] {}).isActive());
    EXPECT_EQ(DesktopPortal("disabled:").preference(), std::nullopt);
}

} // namespace
} // namespace quorvel::x11
