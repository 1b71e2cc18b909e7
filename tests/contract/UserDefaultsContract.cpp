#include <cstddef>
#include <cstdint>
#include <string>

#include "contract/ContractTest.h"
#include "platform/UserDefaults.h"

namespace quorvel::contract {
namespace {

class UserDefaultsContract : public ContractTest {
protected:
    void expectKept(const PropertyValue& value)
    {
        defaults.setObject("key", value);
        EXPECT_EQ(defaults.object("key"), value);
        EXPECT_EQ(desktop->reopenedUserDefaults().object("key"), value);
    }

    UserDefaults& defaults = port(&ContractPorts::userDefaults);
};

TEST_F(UserDefaultsContract, AKeyThatWasNeverWrittenIsAbsent)
{
    EXPECT_EQ(defaults.object("key"), std::nullopt);
}

TEST_F(UserDefaultsContract, BooleansIntegersAndRealsStayApart)
{
    expectKept({true});
    expectKept({false});
    expectKept({std::int64_t{1}});
    expectKept({std::int64_t{0}});
    expectKept({1.0});
}

TEST_F(UserDefaultsContract, NumbersKeepTheirExactValue)
{
    expectKept({std::int64_t{-1}});
    expectKept({std::int64_t{4294967296}});
    expectKept({INT64_MIN});
    expectKept({INT64_MAX});
    expectKept({0.1});
    expectKept({-2.5e300});
}

TEST_F(UserDefaultsContract, TextKeepsEveryCharacter)
{
    expectKept({std::string()});
    expectKept({std::string("<a & b> \"c\" 'd'")});
    expectKept({std::string("  two\nlines\t ")});
    expectKept({std::string("código 日本語 👩‍👧")});
}

TEST_F(UserDefaultsContract, DataArraysAndDictionariesKeepTheirContents)
{
    expectKept({PropertyData{std::byte{0}, std::byte{255}, std::byte{10}}});
    expectKept({PropertyData{}});
    expectKept({PropertyArray{}});
    expectKept({PropertyArray{{std::string("b")}, {std::int64_t{5}}, {std::string("a")}}});
    expectKept({PropertyDictionary{}});
    expectKept({PropertyDictionary{{"one", {true}}, {"two", {PropertyArray{{2.0}}}}}});
}

TEST_F(UserDefaultsContract, AValueReplacesTheEarlierOneWhateverItsType)
{
    defaults.setObject("key", {std::string("text")});
    expectKept({std::int64_t{3}});
}

TEST_F(UserDefaultsContract, KeysAreIndependentAndCaseSensitive)
{
    defaults.setObject("key", {std::int64_t{1}});
    defaults.setObject("Key", {std::int64_t{2}});

    EXPECT_EQ(defaults.object("key"), (PropertyValue{std::int64_t{1}}));
    EXPECT_EQ(defaults.object("Key"), (PropertyValue{std::int64_t{2}}));
}

TEST_F(UserDefaultsContract, ARemovedKeyIsAbsentAgain)
{
    defaults.setObject("key", {false});
    defaults.removeObject("key");
    EXPECT_EQ(defaults.object("key"), std::nullopt);
    EXPECT_EQ(desktop->reopenedUserDefaults().object("key"), std::nullopt);

    defaults.removeObject("key");
    EXPECT_EQ(defaults.object("key"), std::nullopt);
}

} // namespace
} // namespace quorvel::contract
