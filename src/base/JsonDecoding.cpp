#include "base/JsonDecoding.h"

#include <cmath>
#include <limits>

#include "base/Utf8.h"

namespace quorvel::jsonDecoding {

namespace {

std::unexpected<std::string> failure(std::string_view key, std::string_view problem)
{
    return std::unexpected("." + std::string(key) + std::string(problem));
}

// The member, if `hasType` tells that it is of the wanted type.
Decoded<const Json*> typedMember(const Json& object, std::string_view key, bool (Json::*hasType)() const noexcept,
                                 std::string_view typeName)
{
    auto value = member(object, key);
    if (value && !((*value)->*hasType)()) {
        return failure(key, " is not " + std::string(typeName));
    }
    return value;
}

template <class Value>
Decoded<Value> valueOf(const Decoded<const Json*>& member)
{
    if (!member) {
        return std::unexpected(member.error());
    }
    return (*member)->get<Value>();
}

bool fits64Bits(const Json& number)
{
    if (number.is_number_unsigned()) {
        return number.get<std::uint64_t>() <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    }
    if (number.is_number_integer()) {
        return true;
    }
    constexpr double limit = 0x1p63;
    const auto real = number.get<double>();
    return std::trunc(real) == real && real >= -limit && real < limit;
}

} // namespace

Decoded<const Json*> member(const Json& object, std::string_view key)
{
    if (!object.is_object()) {
        return std::unexpected(" is not an object");
    }
    const auto found = object.find(key);
    if (found == object.end()) {
        return failure(key, " is missing");
    }
    return &*found;
}

Decoded<double> number(const Json& object, std::string_view key)
{
    return valueOf<double>(typedMember(object, key, &Json::is_number, "a number"));
}

Decoded<std::int64_t> integer(const Json& object, std::string_view key)
{
    const auto value = typedMember(object, key, &Json::is_number, "an integer");
    if (value && !fits64Bits(**value)) {
        return failure(key, " is not an integer");
    }
    return valueOf<std::int64_t>(value);
}

Decoded<bool> boolean(const Json& object, std::string_view key)
{
    return valueOf<bool>(typedMember(object, key, &Json::is_boolean, "a Boolean"));
}

Decoded<std::string> text(const Json& object, std::string_view key)
{
    return valueOf<std::string>(typedMember(object, key, &Json::is_string, "a string"));
}

std::string documentError(std::string_view rootError)
{
    if (rootError.starts_with('.')) {
        rootError.remove_prefix(1);
        return std::string(rootError);
    }
    return rootError.starts_with('[') ? std::string(rootError) : "the top level" + std::string(rootError);
}

std::string parserError(const Json::exception& exception)
{
    std::string_view text = exception.what();
    if (const auto end = text.find("] "); end != std::string_view::npos) {
        text.remove_prefix(end + 2);
    }
    text = text.substr(0, text.find("; last read"));
    constexpr std::size_t longest = 200;
    return validUtf8(text.substr(0, longest));
}

} // namespace quorvel::jsonDecoding
