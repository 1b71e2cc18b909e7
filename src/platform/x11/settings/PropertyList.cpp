#include "platform/x11/settings/PropertyList.h"

#include "platform/x11/settings/BinaryPlistReader.h"
#include "platform/x11/settings/XmlPlistReader.h"

namespace quorvel::x11 {

std::expected<PlistDictionary, std::string> parsePropertyList(std::string_view bytes)
{
    auto root = bytes.starts_with(binaryPlistMagic) ? readBinaryPlist(bytes) : readXmlPlist(bytes);
    if (!root) {
        return std::unexpected(std::move(root).error());
    }
    auto* dictionary = std::get_if<PlistDictionary>(&root->value);
    if (dictionary == nullptr) {
        return std::unexpected("the outermost value is not a dictionary");
    }
    return std::move(*dictionary);
}

} // namespace quorvel::x11
