#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/desktop/MacMainQueue.h"
#include "platform/macos/desktop/MacNotificationCenter.h"
#include "platform/macos/desktop/MacUserDefaults.h"

namespace quorvel::macos {
namespace {

class MacDefaultsTest : public testing::Test {
protected:
    // As another program does it.
    void changeFromOutside(NSString* key, id value)
    {
        [[NSUserDefaults standardUserDefaults] setObject:value forKey:key];
        desktop.drain();
    }

    SimulatedDesktop desktop;
    fakes::FakeDesktop mac{desktop};
    MacMainQueue mainQueue;
    MacUserDefaults defaults{mainQueue};
    MacNotificationCenter center{mainQueue};
    int changes = 0;
};

TEST_F(MacDefaultsTest, AChangeByAnotherProgramOfAKeyThatWasReadIsHeardOfOnce)
{
    const auto observation = defaults.observeForeignChanges([this] { ++changes; });
    EXPECT_EQ(defaults.object("color"), std::nullopt);

    changeFromOutside(@"color", @"red");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(defaults.object("color"), (PropertyValue{std::string("red")}));

    changeFromOutside(@"color", @"red");
    EXPECT_EQ(changes, 1);
}

TEST_F(MacDefaultsTest, OwnChangesAreNotHeardOf)
{
    const auto observation = defaults.observeForeignChanges([this] { ++changes; });
    EXPECT_EQ(defaults.object("width"), std::nullopt);

    defaults.setObject("width", {std::int64_t{3}});
    defaults.removeObject("width");
    desktop.drain();

    EXPECT_EQ(changes, 0);
}

TEST_F(MacDefaultsTest, WhatNobodyObservesAnyLongerIsNotTold)
{
    auto observation = defaults.observeForeignChanges([this] { ++changes; });
    EXPECT_EQ(defaults.object("color"), std::nullopt);
    observation.reset();

    changeFromOutside(@"color", @"red");

    EXPECT_EQ(changes, 0);
}

TEST_F(MacDefaultsTest, ADateIsNoneOfTheProgramsValues)
{
    [[NSUserDefaults standardUserDefaults] setObject:[NSDate date] forKey:@"when"];
    [[NSUserDefaults standardUserDefaults] setObject:@[ [NSDate date], @"now" ] forKey:@"dates"];

    EXPECT_EQ(defaults.object("when"), std::nullopt);
    EXPECT_EQ(defaults.object("dates"), (PropertyValue{PropertyArray{{std::string("now")}}}));
}

TEST_F(MacDefaultsTest, TheNewsOfAWindowOfTheSystemNamesTheWindow)
{
    NSObject* const window = [[[NSObject alloc] init] autorelease];
    NSObject* const another = [[[NSObject alloc] init] autorelease];
    int heard = 0;
    const auto observation = center.observe(notificationNames::windowWillClose,
                                            reinterpret_cast<NotificationObject>(window), [&] { ++heard; });

    for (NSObject* each in @[ window, another ]) {
        [[NSNotificationCenter defaultCenter] postNotificationName:@"NSWindowWillCloseNotification" object:each];
    }
    EXPECT_EQ(heard, 0);
    desktop.drain();

    EXPECT_EQ(heard, 1);
}

TEST_F(MacDefaultsTest, NewsOfTheProgramAreOnTheDefaultNotificationCentre)
{
    __block int heard = 0;
    const id token = [[NSNotificationCenter defaultCenter] addObserverForName:@"ShortcutDidChangeNotification"
                                                                       object:nil
                                                                        queue:nil
                                                                   usingBlock:^(NSNotification*) {
                                                                     ++heard;
                                                                   }];

    center.post(notificationNames::shortcutDidChange, noNotificationObject);
    [[NSNotificationCenter defaultCenter] removeObserver:token];

    EXPECT_EQ(heard, 1);
}

} // namespace
} // namespace quorvel::macos
