#include "platform/FormShape.h"

#include <algorithm>
#include <utility>

namespace quorvel {

namespace {

using Groups = std::vector<std::size_t>; // as indexes

bool areSameRows(const FormRow& one, const FormRow& other)
{
    return one.id == other.id && one.control.index() == other.control.index() &&
           one.title.empty() == other.title.empty();
}

bool areSameGroups(const FormGroup& one, const FormGroup& other)
{
    return one.title == other.title && std::ranges::equal(one.rows, other.rows, areSameRows);
}

bool areSameButtons(const PaneButton& one, const PaneButton& other)
{
    return one.id == other.id;
}

// In rows.
double height(const FormGroup& group)
{
    constexpr double title = 1.5;
    constexpr double help = 0.7;
    double rows = title;
    for (const auto& row : group.rows) {
        rows += row.help.empty() ? 1.0 : 1.0 + help;
    }
    return rows;
}

double height(const Form& form, const Groups& groups)
{
    double rows = 0.0;
    for (const std::size_t group : groups) {
        rows += height(form.groups[group]);
    }
    return rows;
}

double tallest(const Form& form, const std::vector<Groups>& columns)
{
    double most = 0.0;
    for (const auto& column : columns) {
        most = std::max(most, height(form, column));
    }
    return most;
}

// The first groups at the left, the others at the right.
std::vector<Groups> splitInOrder(const Form& form, const Groups& groups)
{
    std::vector<Groups> best;
    for (auto middle = groups.begin(); middle != groups.end(); ++middle) {
        std::vector<Groups> columns{{groups.begin(), middle}, {middle, groups.end()}};
        if (best.empty() || tallest(form, columns) < tallest(form, best)) {
            best = std::move(columns);
        }
    }
    return best;
}

// Each group where there is more room yet.
std::vector<Groups> filledByTurns(const Form& form, const Groups& groups)
{
    std::vector<Groups> columns(2);
    for (const std::size_t group : groups) {
        const bool goesLeft = height(form, columns[0]) <= height(form, columns[1]);
        columns[goesLeft ? 0 : 1].push_back(group);
    }
    return columns;
}

} // namespace

bool hasSameShape(const Form& one, const Form& other)
{
    return one.note == other.note && one.footnote == other.footnote &&
           std::ranges::equal(one.groups, other.groups, areSameGroups) &&
           std::ranges::equal(one.buttons, other.buttons, areSameButtons);
}

bool isSameQuestion(const PaneAlert& one, const PaneAlert& other)
{
    PaneAlert same = other;
    if (same.field && one.field && same.field->id == one.field->id) {
        same.field->text = one.field->text;
    }
    return same == one;
}

bool hasPreview(const FormGroup& group)
{
    return std::ranges::any_of(group.rows,
                               [](const FormRow& row) { return std::holds_alternative<PreviewControl>(row.control); });
}

std::vector<std::vector<std::size_t>> groupColumns(const Form& form, Columns columns)
{
    constexpr double longColumn = 12.0;
    std::vector<std::size_t> groups;
    for (std::size_t index = 0; index < form.groups.size(); ++index) {
        if (!hasPreview(form.groups[index])) {
            groups.push_back(index);
        }
    }
    if (columns == Columns::one || height(form, groups) <= longColumn) {
        return {groups};
    }
    const auto inOrder = splitInOrder(form, groups);
    const auto filled = filledByTurns(form, groups);
    return tallest(form, filled) < tallest(form, inOrder) ? filled : inOrder;
}

bool hasOverlayControl(const Form& form, std::string_view id)
{
    const auto has = [id](const std::vector<PaneButton>& buttons) {
        return std::ranges::find(buttons, id, &PaneButton::id) != buttons.end();
    };
    const bool isOfAlert =
        form.alert && (has(form.alert->buttons) || (form.alert->field && form.alert->field->id == id));
    const bool isOfSheet = form.sheet && (form.sheet->close.id == id ||
                                          std::ranges::any_of(form.sheet->rows, has, &ListSheetRow::buttons));
    return isOfAlert || isOfSheet;
}

} // namespace quorvel
