#include "platform/x11/RequestErrors.h"

#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

xcb_generic_error_t error(std::uint8_t code, std::uint8_t major, std::uint16_t minor = 0)
{
    xcb_generic_error_t result{};
    result.error_code = code;
    result.major_code = major;
    result.minor_code = minor;
    result.resource_id = 0x1a2b;
    return result;
}

TEST(RequestErrors, AWindowThatVanishedIsExpected)
{
    EXPECT_TRUE(isExpected(error(XCB_WINDOW, XCB_CONFIGURE_WINDOW)));
    EXPECT_TRUE(isExpected(error(XCB_DRAWABLE, XCB_GET_GEOMETRY)));
    EXPECT_TRUE(isExpected(error(XCB_MATCH, XCB_SET_INPUT_FOCUS)));
    EXPECT_FALSE(isExpected(error(XCB_ATOM, XCB_CHANGE_PROPERTY)));
    EXPECT_FALSE(isExpected(error(XCB_ACCESS, XCB_GRAB_KEY)));
}

TEST(RequestErrors, TheLineNamesRequestAndError)
{
    EXPECT_EQ(describe(error(XCB_ACCESS, XCB_GRAB_KEY), {}), "X11: GrabKey failed: BadAccess (resource 0x1a2b)");
    EXPECT_EQ(describe(error(XCB_ATOM, XCB_GET_MODIFIER_MAPPING), {}),
              "X11: GetModifierMapping failed: BadAtom (resource 0x1a2b)");
}

TEST(RequestErrors, RequestsAndErrorsOfExtensionsAreNamedAsFarAsKnown)
{
    EXPECT_EQ(describe(error(XCB_VALUE, 140, 5), {{140, "RANDR"}}),
              "X11: RANDR request 5 failed: BadValue (resource 0x1a2b)");
    EXPECT_EQ(describe(error(150, 141, 2), {}), "X11: extension 141 request 2 failed: error 150 (resource 0x1a2b)");
}

} // namespace
} // namespace quorvel::x11
