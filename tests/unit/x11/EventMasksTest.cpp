#include "platform/x11/EventMasks.h"

#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

TEST(EventMasks, AWindowGetsWhatAnyPartyWants)
{
    EventMasks masks;
    EXPECT_EQ(masks.add(7, XCB_EVENT_MASK_PROPERTY_CHANGE), std::uint32_t{XCB_EVENT_MASK_PROPERTY_CHANGE});
    EXPECT_EQ(masks.add(7, XCB_EVENT_MASK_STRUCTURE_NOTIFY),
              std::uint32_t{XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY});
}

TEST(EventMasks, APartThatAnotherPartyStillWantsStays)
{
    EventMasks masks;
    masks.add(7, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    masks.add(7, XCB_EVENT_MASK_PROPERTY_CHANGE);
    EXPECT_EQ(masks.remove(7, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY),
              std::uint32_t{XCB_EVENT_MASK_PROPERTY_CHANGE});
    EXPECT_EQ(masks.remove(7, XCB_EVENT_MASK_PROPERTY_CHANGE), std::uint32_t{XCB_EVENT_MASK_NO_EVENT});
}

TEST(EventMasks, WindowsAreApart)
{
    EventMasks masks;
    masks.add(7, XCB_EVENT_MASK_PROPERTY_CHANGE);
    EXPECT_EQ(masks.add(8, XCB_EVENT_MASK_EXPOSURE), std::uint32_t{XCB_EVENT_MASK_EXPOSURE});
    EXPECT_EQ(masks.remove(9, XCB_EVENT_MASK_EXPOSURE), std::uint32_t{XCB_EVENT_MASK_NO_EVENT});
}

} // namespace
} // namespace quorvel::x11
