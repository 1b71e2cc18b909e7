#include "platform/x11/settings/PropertyList.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include <fmt/format.h>
#include <locale.h>

#include "base/Utf8.h"
#include "platform/x11/settings/BinaryPlistCheck.h"
#include "platform/x11/settings/PlistConversions.h"
#include "platform/x11/settings/XmlPlistItems.h"

namespace quorvel::x11 {

namespace {

constexpr std::string_view binaryMagic = "bplist0";
constexpr std::string_view unreadable = "not a property list";

// The library reads numbers by the thread's locale, where the user's decimal separator may be a comma.
class PlainNumbers {
public:
    PlainNumbers() : plain(::newlocale(LC_ALL_MASK, "C", nullptr)), former(::uselocale(plain)) {}
    PlainNumbers(const PlainNumbers&) = delete;
    PlainNumbers& operator=(const PlainNumbers&) = delete;
    ~PlainNumbers()
    {
        ::uselocale(former);
        ::freelocale(plain);
    }

private:
    locale_t plain;
    locale_t former;
};

using Reader = void (*)(const char* bytes, std::uint32_t size, plist_t* root);
using Writer = void (*)(plist_t root, char** bytes, std::uint32_t* size);

PlistHandle read(Reader reader, std::string_view bytes)
{
    const PlainNumbers plainNumbers;
    plist_t root = nullptr;
    reader(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
    return PlistHandle(root);
}

std::string written(Writer writer, plist_t root)
{
    const PlainNumbers plainNumbers;
    char* bytes = nullptr;
    std::uint32_t size = 0;
    writer(root, &bytes, &size);
    std::string result(bytes, size);
    std::free(bytes);
    return result;
}

std::expected<PlistHandle, std::string> parseBinary(std::string_view bytes)
{
    if (auto problem = binaryPlistProblem(bytes)) {
        return std::unexpected(std::move(*problem));
    }
    auto root = read(plist_from_bin, bytes);
    return root ? std::expected<PlistHandle, std::string>(std::move(root)) : std::unexpected(std::string(unreadable));
}

std::string lossMessage(const XmlPlistItem& item)
{
    constexpr std::size_t enoughToFindIt = 40;
    return fmt::format("{} near line {} makes no sense", validUtf8(item.text.substr(0, enoughToFindIt)), item.line);
}

// The library takes what it cannot read for 0 or leaves it out. So what it has understood has to say the same as the
// document.
std::expected<PlistHandle, std::string> parseXml(std::string_view document)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    document.remove_prefix(document.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
    const auto items = xmlPlistItems(document);
    if (!items) {
        return std::unexpected(items.error());
    }
    auto root = read(plist_from_xml, document);
    if (!root) {
        return std::unexpected(std::string(unreadable));
    }
    const auto understood = xmlPlistItems(written(plist_to_xml, root.get()));
    if (!understood) {
        return std::unexpected(understood.error());
    }
    const auto differing = std::ranges::mismatch(*items, *understood, {}, &XmlPlistItem::text, &XmlPlistItem::text);
    if (differing.in1 != items->end()) {
        return std::unexpected(lossMessage(*differing.in1));
    }
    if (differing.in2 != understood->end()) {
        return std::unexpected(std::string(unreadable));
    }
    return root;
}

} // namespace

PropertyList::PropertyList() : root(plist_new_dict()) {}

PropertyList::PropertyList(PlistHandle root) : root(std::move(root)) {}

std::expected<PropertyList, std::string> PropertyList::parse(std::string_view bytes)
{
    auto root = bytes.starts_with(binaryMagic) ? parseBinary(bytes) : parseXml(bytes);
    if (!root) {
        return std::unexpected(std::move(root).error());
    }
    if (plist_get_node_type(root->get()) != PLIST_DICT) {
        return std::unexpected("the outermost value is not a dictionary");
    }
    return PropertyList(std::move(*root));
}

std::expected<std::string, std::string> PropertyList::bytes() const
{
    for (const Writer writer : {plist_to_xml, plist_to_bin}) {
        std::string bytes = written(writer, root.get());
        const auto kept = parse(bytes);
        if (kept && *kept == *this) {
            return bytes;
        }
    }
    return std::unexpected("it holds what no property list can keep");
}

bool PropertyList::contains(std::string_view key) const
{
    return plist_dict_get_item(root.get(), std::string(key).c_str()) != nullptr;
}

std::optional<PropertyValue> PropertyList::value(std::string_view key) const
{
    const plist_t node = plist_dict_get_item(root.get(), std::string(key).c_str());
    return node != nullptr ? propertyValueFrom(node) : std::nullopt;
}

void PropertyList::set(std::string_view key, const PropertyValue& value)
{
    plist_dict_set_item(root.get(), storableText(key).c_str(), plistFrom(value).release());
}

void PropertyList::remove(std::string_view key)
{
    while (contains(key)) { // a binary list may have a key more than once
        plist_dict_remove_item(root.get(), std::string(key).c_str());
    }
}

std::vector<std::pair<std::string, std::optional<PropertyValue>>> PropertyList::entries() const
{
    std::vector<std::pair<std::string, std::optional<PropertyValue>>> entries;
    forEachEntry(root.get(),
                 [&](std::string key, plist_t node) { entries.emplace_back(std::move(key), propertyValueFrom(node)); });
    return entries;
}

bool PropertyList::operator==(const PropertyList& other) const
{
    return written(plist_to_bin, root.get()) == written(plist_to_bin, other.root.get());
}

} // namespace quorvel::x11
