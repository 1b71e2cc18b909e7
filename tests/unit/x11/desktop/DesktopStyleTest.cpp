#include "platform/x11/desktop/DesktopStyle.h"

#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

TEST(DesktopStyle, FollowsThePortalsPreference)
{
    EXPECT_EQ(colorScheme(PortalPreference::dark, "Adwaita"), ColorScheme::dark);
    EXPECT_EQ(colorScheme(PortalPreference::light, "Adwaita-dark"), ColorScheme::light);
}

TEST(DesktopStyle, FollowsTheThemesNameWhereThePortalHasNoOpinion)
{
    for (const std::optional<PortalPreference> preference :
         {std::optional<PortalPreference>(), std::optional(PortalPreference::none),
          std::optional(static_cast<PortalPreference>(3))}) {
        EXPECT_EQ(colorScheme(preference, "Adwaita-dark"), ColorScheme::dark);
        EXPECT_EQ(colorScheme(preference, "Arc-DARKER"), ColorScheme::dark);
        EXPECT_EQ(colorScheme(preference, "Adwaita"), ColorScheme::light);
        EXPECT_EQ(colorScheme(preference, std::nullopt), ColorScheme::light);
    }
}

} // namespace
} // namespace quorvel::x11
