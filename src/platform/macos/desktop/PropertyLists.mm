#include "platform/macos/desktop/PropertyLists.h"

#include <utility>

#include "platform/macos/CfValues.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

PropertyValue numberValue(NSNumber* number)
{
    if (asBoolean(number) != nullptr) {
        return {static_cast<bool>([number boolValue])};
    }
    if (CFNumberIsFloatType(asNumber(number))) {
        return {[number doubleValue]};
    }
    return {std::int64_t{[number longLongValue]}};
}

PropertyData dataValue(NSData* data)
{
    const auto* const bytes = static_cast<const std::byte*>([data bytes]);
    return {bytes, bytes + [data length]};
}

PropertyArray arrayValue(NSArray* array)
{
    PropertyArray result;
    for (id each in array) {
        if (auto value = propertyValue(each)) {
            result.push_back(*std::move(value));
        }
    }
    return result;
}

PropertyDictionary dictionaryValue(NSDictionary* dictionary)
{
    PropertyDictionary result;
    for (id key in dictionary) {
        auto value = propertyValue([dictionary objectForKey:key]);
        if (value && [key isKindOfClass:[NSString class]]) {
            result.emplace(utf8(static_cast<NSString*>(key)), *std::move(value));
        }
    }
    return result;
}

// Makes the object for each kind of value.
struct Creation {
    id operator()(bool value) const { return [NSNumber numberWithBool:value]; }
    id operator()(std::int64_t value) const { return [NSNumber numberWithLongLong:value]; }
    id operator()(double value) const { return [NSNumber numberWithDouble:value]; }
    id operator()(const std::string& text) const { return nsString(text); }
    id operator()(const PropertyData& data) const { return [NSData dataWithBytes:data.data() length:data.size()]; }

    id operator()(const PropertyArray& array) const
    {
        NSMutableArray* const result = [NSMutableArray array];
        for (const auto& each : array) {
            [result addObject:propertyListObject(each)];
        }
        return result;
    }

    id operator()(const PropertyDictionary& dictionary) const
    {
        NSMutableDictionary* const result = [NSMutableDictionary dictionary];
        for (const auto& [key, value] : dictionary) {
            [result setObject:propertyListObject(value) forKey:nsString(key)];
        }
        return result;
    }
};

} // namespace

std::optional<PropertyValue> propertyValue(id object)
{
    if ([object isKindOfClass:[NSString class]]) {
        return PropertyValue{utf8(static_cast<NSString*>(object))};
    }
    if ([object isKindOfClass:[NSNumber class]]) {
        return numberValue(object);
    }
    if ([object isKindOfClass:[NSData class]]) {
        return PropertyValue{dataValue(object)};
    }
    if ([object isKindOfClass:[NSArray class]]) {
        return PropertyValue{arrayValue(object)};
    }
    if ([object isKindOfClass:[NSDictionary class]]) {
        return PropertyValue{dictionaryValue(object)};
    }
    return std::nullopt;
}

id propertyListObject(const PropertyValue& value)
{
    return std::visit(Creation{}, value.value);
}

} // namespace quorvel::macos
