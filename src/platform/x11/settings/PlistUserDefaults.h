#pragma once

#include <expected>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "base/Signal.h"
#include "platform/UserDefaults.h"
#include "platform/x11/settings/PropertyList.h"
#include "platform/x11/settings/SettingsFile.h"

namespace quorvel::x11 {

// Settings in a property list file that other programs may change as well: people edit it, and a domain exported on a
// Mac can be put in its place. Whatever this program does not know stays in the file as it is.
//
// A file that cannot be understood is never overwritten but moved aside, and one that cannot be read or written is left
// alone; values that were set then hold for this run and are written as soon as that is possible again.
class PlistUserDefaults final : public UserDefaults {
public:
    // Gets one line for people about each problem.
    using Report = std::function<void(std::string_view line)>;

    PlistUserDefaults(SettingsFile file, Report report);

    std::optional<PropertyValue> object(std::string_view key) const override;
    void setObject(std::string_view key, PropertyValue value) override;
    void removeObject(std::string_view key) override;
    Subscription observeForeignChanges(std::function<void()> changed) override;

    // Stores all of them in one step: a crash leaves either none or all in the file. Answers whether they are on disk.
    bool setObjects(const PropertyDictionary& objects);

    // To be called when the file may have changed: reads it again. Answers the keys whose values another program
    // changed since the last call. A file that has vanished or is damaged leaves the values as they are.
    std::set<std::string> reload();

private:
    // The file on disk, as far as it decides whether it may be replaced.
    enum class FileState { usable, damaged, unreadable };

    void read();
    void adopt(PropertyList list);
    void noteForeignChanges(const PropertyList& list);
    void change(std::string_view key, std::optional<PropertyValue> value);
    void save();
    std::expected<FileStamp, std::string> write() const;
    bool clearTheWay();
    void reportOnce(std::string_view problem, std::string_view reason);

    SettingsFile file;
    Report report;
    PropertyList values;
    std::map<std::string, std::optional<PropertyValue>, std::less<>> unsaved; // nothing: to be removed
    std::optional<FileStamp> stamp;                                           // of the file that `values` agrees with
    FileState state = FileState::usable;
    std::string damage; // what is wrong with a damaged file
    std::string lastLine;
    std::set<std::string> foreignChanges; // keys
    Signal<> changedByOthers;
};

} // namespace quorvel::x11
