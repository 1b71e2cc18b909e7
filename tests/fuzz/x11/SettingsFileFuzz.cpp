// The settings file: what can be read can be written, and nothing gets lost.

#include <string>

#include "platform/x11/settings/PropertyList.h"
#include "settings/PropertyConversions.h"
#include "tests/fuzz/FuzzTarget.h"

namespace quorvel {

namespace {

void convert(const PropertyValue& value)
{
    const auto whole = integerFrom(value);
    require(integerFrom(PropertyValue{whole}) == whole, "a whole number stays the same");
    static_cast<void>(realFrom(value));
    static_cast<void>(booleanFrom(value));
    static_cast<void>(stringFrom(value));
    static_cast<void>(stringArrayFrom(value));
    static_cast<void>(stringDictionaryFrom(value));
}

} // namespace

void fuzz(std::span<const std::uint8_t> input)
{
    auto list = x11::PropertyList::parse(textOf(input));
    if (!list) {
        require(!list.error().empty(), "a refusal has a reason");
        return;
    }
    for (const auto& [key, value] : list->entries()) {
        require(list->contains(key), "an entry is there under its key");
        if (value) {
            convert(*value);
        }
    }
    const auto bytes = list->bytes();
    require(bytes.has_value(), "what was read can be written");
    const auto again = x11::PropertyList::parse(*bytes);
    require(again.has_value(), "what was written can be read");
    require(*again == *list, "nothing gets lost on the way");
    list->set("mrMoveStep", PropertyValue{12.5});
    require(list->value("mrMoveStep") == PropertyValue{12.5}, "a value that is set is there");
    list->remove("mrMoveStep");
    require(!list->contains("mrMoveStep"), "a value that is removed is gone");
}

} // namespace quorvel
