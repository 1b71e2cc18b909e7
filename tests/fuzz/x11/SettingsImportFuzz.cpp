// A file that somebody imports: only what the table of settings allows is taken over, and a refused file changes
// nothing.

#include <cstdlib>
#include <filesystem>
#include <string>

#include "main/SettingsTransfer.h"
#include "platform/x11/settings/PropertyList.h"
#include "platform/x11/settings/SettingsFile.h"
#include "settings/SettingsCheck.h"
#include "support/TemporaryDirectory.h"
#include "tests/fuzz/FuzzTarget.h"

namespace quorvel {

namespace {

x11::PropertyList storedList()
{
    const auto contents = x11::SettingsFile(x11::SettingsFile::defaultPath()).read();
    require(contents && *contents, "the settings file can be read");
    auto list = x11::PropertyList::parse((*contents)->bytes);
    require(list.has_value(), "the settings file is whole");
    return *std::move(list);
}

x11::PropertyList initialList()
{
    x11::PropertyList list;
    list.set("mrMoveStep", PropertyValue{40.0});
    list.set("ofAnotherVersion", PropertyValue{std::string("kept")});
    return list;
}

void store(const x11::PropertyList& list)
{
    const x11::SettingsFile file(x11::SettingsFile::defaultPath());
    require(file.createDirectory().has_value() && file.replace(*list.bytes()).has_value(), "settings can be stored");
}

} // namespace

void fuzz(std::span<const std::uint8_t> input)
{
    static const xtest::TemporaryDirectory directory;
    setenv("XDG_CONFIG_HOME", directory.path().c_str(), 1);
    const auto before = initialList();
    store(before);
    const auto imported = directory.path() / "imported.plist";
    require(x11::SettingsFile(imported).replace(textOf(input)).has_value(), "the file can be written");
    const bool isTaken = importSettings(imported);
    const auto after = storedList();

    const auto list = x11::PropertyList::parse(textOf(input));
    require(isTaken == list.has_value(), "a file is imported if it can be read");
    if (!list) {
        require(after == before, "a refused file changes nothing");
        return;
    }
    const auto checked = checkSettings(list->entries());
    for (const auto& [key, value] : after.entries()) {
        const auto accepted = checked.accepted.find(key);
        const auto expected = accepted != checked.accepted.end() ? std::optional(accepted->second) : before.value(key);
        require(value == expected, "a setting has the imported value or the one before");
    }
    require(after.contains("ofAnotherVersion"), "what is not imported stays");
    std::vector<SettingsEntry> entries(checked.accepted.begin(), checked.accepted.end());
    require(checkSettings(entries).refusals.empty(), "what is accepted once is accepted again");
}

} // namespace quorvel
