#include <string>
#include <vector>

#include "contract/ContractTest.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"

namespace quorvel::contract {
namespace {

constexpr NotificationObject oneObject = 17;
constexpr NotificationObject anotherObject = 18;

class NotificationCenterContract : public ContractTest {
protected:
    std::function<void()> note(std::string text)
    {
        return [this, text = std::move(text)] { notes.push_back(text); };
    }

    std::vector<std::string> notes;
    NotificationCenter& center = port(&ContractPorts::notificationCenter);
};

TEST_F(NotificationCenterContract, ObserversHearLaterInTheOrderOfRegistration)
{
    const auto first = center.observe("DidChange", noNotificationObject, note("first"));
    const auto second = center.observe("DidChange", noNotificationObject, note("second"));

    center.post("DidChange", noNotificationObject);
    EXPECT_TRUE(notes.empty());
    desktop->settle();

    EXPECT_EQ(notes, (std::vector<std::string>{"first", "second"}));
}

TEST_F(NotificationCenterContract, OtherNamesAreNotHeard)
{
    const auto observer = center.observe("DidChange", noNotificationObject, note("heard"));

    center.post("DidChangeMore", noNotificationObject);
    desktop->settle();

    EXPECT_TRUE(notes.empty());
}

TEST_F(NotificationCenterContract, AnObserverOfAnObjectHearsOfThatObjectOnly)
{
    const auto ofOne = center.observe("DidChange", oneObject, note("of one"));
    const auto ofAny = center.observe("DidChange", noNotificationObject, note("of any"));

    center.post("DidChange", anotherObject);
    desktop->settle();
    EXPECT_EQ(notes, (std::vector<std::string>{"of any"}));

    center.post("DidChange", oneObject);
    desktop->settle();
    EXPECT_EQ(notes, (std::vector<std::string>{"of any", "of one", "of any"}));
}

TEST_F(NotificationCenterContract, AnEndedObserverHearsNothingNotEvenWhatIsUnderWay)
{
    auto observer = center.observe("DidChange", noNotificationObject, note("heard"));
    center.post("DidChange", noNotificationObject);
    observer.reset();
    desktop->settle();

    EXPECT_TRUE(notes.empty());
}

TEST_F(NotificationCenterContract, AnObserverRegisteredAfterThePostDoesNotHearIt)
{
    center.post("DidChange", noNotificationObject);
    const auto observer = center.observe("DidChange", noNotificationObject, note("heard"));
    desktop->settle();

    EXPECT_TRUE(notes.empty());
}

} // namespace
} // namespace quorvel::contract
