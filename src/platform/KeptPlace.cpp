#include "platform/KeptPlace.h"

#include <algorithm>

namespace quorvel {

namespace {

// The one at that place, else the one nearest to it.
std::optional<std::size_t> enabledControl(const FocusableRow& row, std::size_t place)
{
    std::optional<std::size_t> nearest;
    const auto distance = [place](std::size_t index) { return index < place ? place - index : index - place; };
    for (std::size_t index = 0; index < row.isEnabled.size(); ++index) {
        if (row.isEnabled[index] && (!nearest || distance(index) < distance(*nearest))) {
            nearest = index;
        }
    }
    return nearest;
}

} // namespace

KeptPlace::KeptPlace(const std::vector<FocusableRow>& rows, const FocusPlace& place) : control(place.control)
{
    for (std::size_t row = place.row; row < rows.size(); ++row) {
        wanted.push_back(rows[row].id);
    }
    for (std::size_t row = place.row; row-- > 0;) {
        wanted.push_back(rows[row].id);
    }
}

std::optional<FocusPlace> KeptPlace::among(const std::vector<FocusableRow>& rows) const
{
    for (const auto& id : wanted) {
        const auto row = std::ranges::find(rows, id, &FocusableRow::id);
        const auto found = row == rows.end() ? std::nullopt : enabledControl(*row, control);
        if (found) {
            return FocusPlace{static_cast<std::size_t>(row - rows.begin()), *found};
        }
    }
    return std::nullopt;
}

} // namespace quorvel
