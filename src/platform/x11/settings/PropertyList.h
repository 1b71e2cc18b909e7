#pragma once

#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/PropertyValue.h"
#include "platform/x11/settings/PlistHandle.h"

namespace quorvel::x11 {

// The dictionary of a property list file: settings, and whatever else the file holds, which is kept as it is.
class PropertyList {
public:
    PropertyList();

    // Reads the XML or the binary form. The error says in a few words what is wrong. A file of which anything would be
    // lost when it is written back is one that cannot be read.
    static std::expected<PropertyList, std::string> parse(std::string_view bytes);

    // The XML form; where that would lose something (the fraction of a date's second), the binary form. The error says
    // that neither form keeps everything.
    std::expected<std::string, std::string> bytes() const;

    bool contains(std::string_view key) const;

    // Nothing for an absent key, and for a value that no setting holds.
    std::optional<PropertyValue> value(std::string_view key) const;
    void set(std::string_view key, const PropertyValue& value);
    void remove(std::string_view key);

    // Every key with its value, or with nothing where no setting holds such a value.
    std::vector<std::pair<std::string, std::optional<PropertyValue>>> entries() const;

    // The same entries in the same order.
    bool operator==(const PropertyList& other) const;

private:
    explicit PropertyList(PlistHandle root);

    PlistHandle root;
};

} // namespace quorvel::x11
