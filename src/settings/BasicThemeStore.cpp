#include "settings/BasicThemeStore.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <fmt/format.h>

#include "platform/Log.h"
#include "settings/ThemeCoding.h"

namespace quorvel {

namespace {

std::string_view textOf(const PropertyData& data)
{
    return {reinterpret_cast<const char*>(data.data()), data.size()};
}

PropertyData dataOf(std::string_view text)
{
    const auto* const begin = reinterpret_cast<const std::byte*>(text.data());
    return {begin, begin + text.size()};
}

} // namespace

template <class Record>
BasicThemeStore<Record>::BasicThemeStore(Settings settings, Log& log) : settings(settings), log(log)
{
    load();
}

template <class Record>
void BasicThemeStore<Record>::load()
{
    std::vector<Record> loaded;
    lastDocument = settings.data(storageKey);
    if (lastDocument) {
        if (auto decoded = decodeThemes<Record>(textOf(*lastDocument))) {
            loaded = *std::move(decoded);
        } else {
            log.line(fmt::format("Failed to decode {}: {}", ThemeKind<Record>::plural, decoded.error()));
        }
    }
    publish(std::move(loaded));
}

template <class Record>
void BasicThemeStore<Record>::follow()
{
    if (settings.data(storageKey) != lastDocument) {
        load();
    }
}

template <class Record>
void BasicThemeStore<Record>::save()
{
    if (const auto encoded = encodeThemes(published)) {
        lastDocument = dataOf(*encoded);
        settings.setData(storageKey, *lastDocument);
    } else {
        log.line(fmt::format("Failed to encode {}: {}", ThemeKind<Record>::plural, encoded.error()));
    }
}

template <class Record>
void BasicThemeStore<Record>::add(Record theme)
{
    auto themes = published;
    themes.push_back(std::move(theme));
    publish(std::move(themes));
    save();
}

template <class Record>
void BasicThemeStore<Record>::rename(const Record& theme, std::string newName)
{
    auto themes = published;
    const auto found = std::ranges::find(themes, theme.id, &Record::id);
    if (found == themes.end()) {
        return;
    }
    found->name = std::move(newName);
    publish(std::move(themes));
    save();
}

template <class Record>
void BasicThemeStore<Record>::remove(const Record& theme)
{
    auto themes = published;
    const auto id = theme.id;
    if constexpr (ThemeKind<Record>::deletion == ThemeDeletion::everyMatch) {
        std::erase_if(themes, [&id](const Record& other) { return other.id == id; });
    } else if (const auto found = std::ranges::find(themes, id, &Record::id); found != themes.end()) {
        themes.erase(found);
    }
    publish(std::move(themes));
    save();
}

template <class Record>
void BasicThemeStore<Record>::publish(std::vector<Record> themes)
{
    published = std::move(themes);
    themesChanged.emit();
}

template class BasicThemeStore<Theme>;
template class BasicThemeStore<SwitcherTheme>;
template class BasicThemeStore<MoveResizeTheme>;

} // namespace quorvel
