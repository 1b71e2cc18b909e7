#include "platform/x11/settings/PlistUserDefaults.h"

#include <utility>

#include <fmt/format.h>

namespace quorvel::x11 {

namespace {

void apply(PropertyList& list, std::string_view key, const std::optional<PropertyValue>& value)
{
    if (value) {
        list.set(key, *value);
    } else {
        list.remove(key);
    }
}

} // namespace

PlistUserDefaults::PlistUserDefaults(SettingsFile file, Report report)
    : file(std::move(file)), report(std::move(report))
{
    // The directory has to be there for changes in it to be noticed; where it cannot be made, the first write says so.
    static_cast<void>(this->file.createDirectory());
    this->file.removeLeftovers();
    read();
    clearTheWay();
    foreignChanges.clear();
}

std::optional<PropertyValue> PlistUserDefaults::object(std::string_view key) const
{
    return values.value(key);
}

void PlistUserDefaults::setObject(std::string_view key, PropertyValue value)
{
    change(key, std::move(value));
    save();
}

bool PlistUserDefaults::setObjects(const PropertyDictionary& objects)
{
    for (const auto& [key, value] : objects) {
        change(key, value);
    }
    save();
    return unsaved.empty();
}

void PlistUserDefaults::removeObject(std::string_view key)
{
    change(key, std::nullopt);
    save();
}

void PlistUserDefaults::change(std::string_view key, std::optional<PropertyValue> value)
{
    const bool isSo = value ? values.value(key) == value : !values.contains(key);
    if (isSo && unsaved.empty()) {
        return;
    }
    apply(values, key, value);
    unsaved.insert_or_assign(std::string(key), std::move(value));
}

std::set<std::string> PlistUserDefaults::reload()
{
    read();
    if (state == FileState::damaged) {
        reportOnce("is damaged; the settings in use stay", damage);
    }
    auto changes = std::exchange(foreignChanges, {});
    if (!changes.empty()) {
        changedByOthers.emit();
    }
    return changes;
}

Subscription PlistUserDefaults::observeForeignChanges(std::function<void()> changed)
{
    return changedByOthers.observe(std::move(changed));
}

void PlistUserDefaults::read()
{
    auto contents = file.read();
    state = contents ? FileState::usable : FileState::unreadable;
    stamp.reset();
    if (!contents) {
        reportOnce("cannot be read and is left alone", contents.error());
        return;
    }
    if (!*contents) {
        return;
    }
    stamp = (*contents)->stamp;
    auto list = PropertyList::parse((*contents)->bytes);
    if (!list) {
        state = FileState::damaged;
        damage = list.error();
        return;
    }
    adopt(std::move(*list));
}

void PlistUserDefaults::adopt(PropertyList list)
{
    for (const auto& [key, value] : unsaved) {
        apply(list, key, value);
    }
    noteForeignChanges(list);
    values = std::move(list);
}

void PlistUserDefaults::noteForeignChanges(const PropertyList& list)
{
    for (const auto& [key, value] : list.entries()) {
        if (value != values.value(key)) {
            foreignChanges.insert(key);
        }
    }
    for (const auto& [key, value] : values.entries()) {
        if (value && !list.contains(key)) {
            foreignChanges.insert(key);
        }
    }
}

void PlistUserDefaults::save()
{
    if (unsaved.empty()) {
        return;
    }
    if (!stamp || file.stamp() != stamp) {
        read();
    }
    if (!clearTheWay()) {
        return;
    }
    const auto written = write();
    if (!written) {
        reportOnce("cannot be written; changes hold for this run", written.error());
        return;
    }
    stamp = *written;
    unsaved.clear();
    lastLine.clear();
}

std::expected<FileStamp, std::string> PlistUserDefaults::write() const
{
    const auto bytes = values.bytes();
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    if (const auto created = file.createDirectory(); !created) {
        return std::unexpected(created.error());
    }
    return file.replace(*bytes);
}

// Whether the file may be replaced now.
bool PlistUserDefaults::clearTheWay()
{
    if (state != FileState::damaged) {
        return state == FileState::usable;
    }
    const auto aside = file.moveAside();
    if (!aside) {
        reportOnce("is damaged and cannot be moved aside", aside.error());
        return false;
    }
    reportOnce(fmt::format("is damaged and was moved to {}", aside->string()), damage);
    state = FileState::usable;
    stamp.reset();
    return true;
}

// A problem that lasts is told once, not at every value that is set.
void PlistUserDefaults::reportOnce(std::string_view problem, std::string_view reason)
{
    auto line = fmt::format("The settings file {} {}: {}.", file.path().string(), problem, reason);
    if (line != lastLine) {
        report(line);
        lastLine = std::move(line);
    }
}

} // namespace quorvel::x11
