#include "preferences/BasicThemesListView.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <fmt/format.h>

#include "platform/Dates.h"
#include "preferences/PaneButtons.h"
#include "preferences/ThemesListTexts.h"

namespace quorvel {

namespace {

constexpr std::string_view closeID = "themes.close";
constexpr std::string_view nameID = "themes.name";
constexpr std::string_view confirmID = "themes.confirm";
constexpr std::string_view cancelID = "themes.cancel";

constexpr std::string_view applySuffix = ".apply";
constexpr std::string_view renameSuffix = ".rename";
constexpr std::string_view deleteSuffix = ".delete";

PaneButton rowButton(const std::string& rowID, std::string_view suffix, std::string_view title,
                     const std::string& themeName, ButtonRole role = ButtonRole::normal)
{
    auto result = titledButton(rowID + std::string(suffix), title, role);
    result.accessibleName = fmt::format("{} “{}”", title, themeName);
    return result;
}

PaneAlert renameAlert(const std::string& newName)
{
    return {.title = "Rename Theme",
            .message = "Enter a new name for this theme.",
            .field = PaneTextField{.id = std::string(nameID), .placeholder = "Theme name", .text = newName},
            .buttons = {titledButton(cancelID, "Cancel", ButtonRole::cancel),
                        titledButton(confirmID, "Rename", ButtonRole::confirm)}};
}

PaneAlert deletionAlert(const std::string& themeName)
{
    return {.title = "Delete Theme",
            .message =
                fmt::format("Are you sure you want to delete the theme “{}”? This action cannot be undone.", themeName),
            .field = std::nullopt,
            .buttons = {titledButton(confirmID, "Delete", ButtonRole::destructive),
                        titledButton(cancelID, "Cancel", ButtonRole::cancel)}};
}

} // namespace

template <class Record>
BasicThemesListView<Record>::BasicThemesListView(BasicThemeStore<Record>& store, const Dates& dates, Actions actions)
    : store(store),
      dates(dates),
      actions(std::move(actions)),
      storeChanges(store.observeThemes([this] { followStore(); }))
{}

template <class Record>
ListSheet BasicThemesListView<Record>::sheet() const
{
    const auto& texts = themesListTexts<Record>;
    const auto& themes = store.themes();
    ListSheet sheet{.title = std::string(texts.title),
                    .placeholder = {.symbol = std::string(texts.emptySymbol),
                                    .heading = "No Themes Saved",
                                    .line = std::string(texts.emptyLine)},
                    .rows = {},
                    .footer = fmt::format("{} theme{}", themes.size(), themes.size() == 1 ? "" : "s"),
                    .close = titledButton(closeID, "Close", ButtonRole::cancel)};
    const auto ids = rowIDs();
    for (std::size_t index = 0; index < themes.size(); ++index) {
        const auto& theme = themes[index];
        sheet.rows.push_back({.id = ids[index],
                              .title = theme.name,
                              .subtitle = "Created " + dates.mediumText(theme.createdAt),
                              .buttons = buttons(ids[index], theme)});
    }
    return sheet;
}

template <class Record>
std::optional<PaneAlert> BasicThemesListView<Record>::alert() const
{
    if (!pending) {
        return std::nullopt;
    }
    return pending->question == Question::rename ? renameAlert(pending->newName) : deletionAlert(pending->theme.name);
}

template <class Record>
bool BasicThemesListView<Record>::set(std::string_view id, const ControlValue& value)
{
    const auto* const text = std::get_if<std::string>(&value);
    if (!pending || pending->question != Question::rename || id != nameID || text == nullptr) {
        return false;
    }
    pending->newName = *text;
    contentChanged.emit();
    return true;
}

template <class Record>
bool BasicThemesListView<Record>::press(std::string_view id)
{
    if (id == closeID) {
        actions.close();
        return true;
    }
    return pressAlert(id) || pressRow(id);
}

// The ids of the themes, by which rows stay what they are when others come and go. A stored document may give the same
// one to several themes.
template <class Record>
std::vector<std::string> BasicThemesListView<Record>::rowIDs() const
{
    std::vector<std::string> ids;
    for (const auto& theme : store.themes()) {
        auto id = theme.id.text();
        while (std::ranges::find(ids, id) != ids.end()) {
            id += "+";
        }
        ids.push_back(std::move(id));
    }
    return ids;
}

template <class Record>
std::vector<PaneButton> BasicThemesListView<Record>::buttons(const std::string& rowID, const Record& theme) const
{
    std::vector<PaneButton> result{rowButton(rowID, applySuffix, "Apply", theme.name)};
    auto deletion = rowButton(rowID, deleteSuffix, "Delete", theme.name, ButtonRole::destructive);
    if (themesListTexts<Record>.style == ThemesListStyle::renaming) {
        result.push_back(rowButton(rowID, renameSuffix, "Rename", theme.name));
        deletion.symbol = "trash";
    }
    result.push_back(std::move(deletion));
    return result;
}

template <class Record>
bool BasicThemesListView<Record>::pressRow(std::string_view id)
{
    const auto ids = rowIDs();
    const auto found =
        std::ranges::find_if(ids, [id](const std::string& rowID) { return id.starts_with(rowID + "."); });
    if (found == ids.end()) {
        return false;
    }
    constexpr bool canRename = themesListTexts<Record>.style == ThemesListStyle::renaming;
    const Record theme = store.themes()[static_cast<std::size_t>(found - ids.begin())];
    const auto suffix = id.substr(found->size());
    if (suffix == applySuffix) {
        actions.apply(theme);
    } else if (suffix == renameSuffix && canRename) {
        ask(Question::rename, theme);
    } else if (suffix == deleteSuffix && canRename) {
        store.remove(theme);
    } else if (suffix == deleteSuffix) {
        ask(Question::removal, theme);
    } else {
        return false;
    }
    return true;
}

template <class Record>
bool BasicThemesListView<Record>::pressAlert(std::string_view id)
{
    if (!pending || (id != confirmID && id != cancelID)) {
        return false;
    }
    if (id == confirmID) {
        answer();
    } else {
        pending.reset();
        contentChanged.emit();
    }
    return true;
}

template <class Record>
void BasicThemesListView<Record>::ask(Question question, const Record& theme)
{
    pending = Pending{question, theme, theme.name};
    contentChanged.emit();
}

// A question about a theme goes with the theme.
template <class Record>
void BasicThemesListView<Record>::followStore()
{
    const auto& themes = store.themes();
    if (pending && std::ranges::find(themes, pending->theme.id, &Record::id) == themes.end()) {
        pending.reset();
    }
    contentChanged.emit();
}

template <class Record>
void BasicThemesListView<Record>::answer()
{
    const auto answered = *std::exchange(pending, std::nullopt);
    if (answered.question == Question::rename) {
        store.rename(answered.theme, answered.newName);
    } else {
        store.remove(answered.theme);
    }
    contentChanged.emit();
}

template class BasicThemesListView<Theme>;
template class BasicThemesListView<SwitcherTheme>;
template class BasicThemesListView<MoveResizeTheme>;

} // namespace quorvel
