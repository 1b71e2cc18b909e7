#include "platform/x11/settings/PlistConversions.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "base/Utf8.h"

namespace quorvel::x11 {

namespace {

constexpr std::string_view replacementCharacter = "\uFFFD";

PlistHandle plist(bool value)
{
    return PlistHandle(plist_new_bool(value ? 1 : 0));
}

// The library keeps integers as their 64 bits; those that are made this way it takes for signed.
PlistHandle plist(std::int64_t value)
{
    return PlistHandle(plist_new_uint(static_cast<std::uint64_t>(value)));
}

PlistHandle plist(double value)
{
    return PlistHandle(plist_new_real(value));
}

PlistHandle plist(const std::string& value)
{
    return PlistHandle(plist_new_string(storableText(value).c_str()));
}

PlistHandle plist(const PropertyData& data)
{
    return PlistHandle(plist_new_data(reinterpret_cast<const char*>(data.data()), data.size()));
}

PlistHandle plist(const PropertyArray& values)
{
    PlistHandle array(plist_new_array());
    for (const PropertyValue& value : values) {
        plist_array_append_item(array.get(), plistFrom(value).release());
    }
    return array;
}

PlistHandle plist(const PropertyDictionary& values)
{
    PlistHandle dictionary(plist_new_dict());
    for (const auto& [key, value] : values) {
        plist_dict_set_item(dictionary.get(), storableText(key).c_str(), plistFrom(value).release());
    }
    return dictionary;
}

std::optional<PropertyValue> booleanFrom(plist_t node)
{
    std::uint8_t value = 0;
    plist_get_bool_val(node, &value);
    return PropertyValue{value != 0};
}

std::optional<PropertyValue> integerFrom(plist_t node)
{
    std::uint64_t bits = 0;
    plist_get_uint_val(node, &bits);
    const auto value = static_cast<std::int64_t>(bits);
    // The same bits stand for a negative number and for one beyond 63 bits; only a comparison tells them apart.
    const bool isSigned = value >= 0 || plist_compare_node_value(node, plist(value).get()) != 0;
    return isSigned ? std::optional(PropertyValue{value}) : std::nullopt;
}

std::optional<PropertyValue> realFrom(plist_t node)
{
    double value = 0.0;
    plist_get_real_val(node, &value);
    return PropertyValue{value};
}

std::optional<PropertyValue> dataFrom(plist_t node)
{
    std::uint64_t size = 0;
    const char* const bytes = plist_get_data_ptr(node, &size);
    PropertyData data(size);
    std::transform(bytes, bytes + size, data.begin(), [](char byte) { return static_cast<std::byte>(byte); });
    return PropertyValue{std::move(data)};
}

std::optional<PropertyValue> arrayFrom(plist_t array)
{
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };
    plist_array_iter rawIterator = nullptr;
    plist_array_new_iter(array, &rawIterator);
    const std::unique_ptr<void, Free> iterator(rawIterator);
    PropertyArray values;
    for (;;) {
        plist_t node = nullptr;
        plist_array_next_item(array, iterator.get(), &node);
        if (node == nullptr) {
            return PropertyValue{std::move(values)};
        }
        auto value = propertyValueFrom(node);
        if (!value) {
            return std::nullopt;
        }
        values.push_back(std::move(*value));
    }
}

std::optional<PropertyValue> dictionaryFrom(plist_t dictionary)
{
    PropertyDictionary values;
    bool isWhole = true;
    forEachEntry(dictionary, [&](std::string key, plist_t node) {
        auto value = propertyValueFrom(node);
        isWhole = isWhole && value;
        if (value) {
            values.insert_or_assign(std::move(key), std::move(*value));
        }
    });
    return isWhole ? std::optional(PropertyValue{std::move(values)}) : std::nullopt;
}

} // namespace

std::string storableText(std::string_view text)
{
    std::string result;
    for (const char character : validUtf8(text)) {
        const bool isControl =
            static_cast<unsigned char>(character) < 0x20 && character != '\t' && character != '\n' && character != '\r';
        result += isControl ? replacementCharacter : std::string_view(&character, 1);
    }
    return result;
}

PlistHandle plistFrom(const PropertyValue& value)
{
    return std::visit([](const auto& held) { return plist(held); }, value.value);
}

std::optional<PropertyValue> propertyValueFrom(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        return booleanFrom(node);
    case PLIST_UINT:
        return integerFrom(node);
    case PLIST_REAL:
        return realFrom(node);
    case PLIST_STRING: {
        std::uint64_t size = 0;
        const char* const text = plist_get_string_ptr(node, &size);
        return PropertyValue{std::string(text, size)};
    }
    case PLIST_DATA:
        return dataFrom(node);
    case PLIST_ARRAY:
        return arrayFrom(node);
    case PLIST_DICT:
        return dictionaryFrom(node);
    default:
        return std::nullopt;
    }
}

void forEachEntry(plist_t dictionary, const std::function<void(std::string key, plist_t value)>& visit)
{
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };
    plist_dict_iter rawIterator = nullptr;
    plist_dict_new_iter(dictionary, &rawIterator);
    const std::unique_ptr<void, Free> iterator(rawIterator);
    for (;;) {
        char* rawKey = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dictionary, iterator.get(), &rawKey, &value);
        const std::unique_ptr<char, Free> key(rawKey);
        if (value == nullptr) {
            return;
        }
        visit(key.get(), value);
    }
}

} // namespace quorvel::x11
