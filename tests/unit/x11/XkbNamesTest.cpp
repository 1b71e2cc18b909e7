#include "platform/x11/probe/XkbNames.h"

#include <gmock/gmock.h>

namespace quorvel::x11 {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(XkbNames, LayoutsHaveTheirVariantsBehindThem)
{
    EXPECT_THAT(xkbLayoutNames("evdev\0pc105\0us,de,fr\0,nodeadkeys\0grp:menu_toggle\0"sv),
                ElementsAre("us", "de (nodeadkeys)", "fr"));
}

TEST(XkbNames, OneLayoutStandsForItself)
{
    EXPECT_THAT(xkbLayoutNames("evdev\0pc105\0us\0\0\0"sv), ElementsAre("us"));
}

TEST(XkbNames, AnAbsentOrCutPropertyHasNoNames)
{
    EXPECT_THAT(xkbLayoutNames(""), IsEmpty());
    EXPECT_THAT(xkbLayoutNames("evdev\0pc105"sv), IsEmpty());
    EXPECT_THAT(xkbLayoutNames("evdev\0pc105\0\0\0"sv), IsEmpty());
    EXPECT_THAT(xkbLayoutNames("evdev\0pc105\0us"sv), ElementsAre("us"));
}

} // namespace
} // namespace quorvel::x11
