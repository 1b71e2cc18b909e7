#include "platform/x11/qt/KeptFocus.h"

#include <algorithm>
#include <utility>

namespace quorvel::x11 {

namespace {

bool hasKeyboard(const QWidget& control)
{
    const auto* const window = control.window();
    return window->focusWidget() == &control;
}

// The one at that place, else the one nearest to it.
QWidget* enabledControl(const FocusRow& row, std::size_t place)
{
    QWidget* nearest = nullptr;
    std::size_t least = 0;
    for (std::size_t index = 0; index < row.controls.size(); ++index) {
        const std::size_t distance = index < place ? place - index : index - place;
        if (row.controls[index]->isEnabled() && (nearest == nullptr || distance < least)) {
            nearest = row.controls[index];
            least = distance;
        }
    }
    return nearest;
}

} // namespace

FocusRow::FocusRow(std::string id, const std::vector<QWidget*>& widgets) : id(std::move(id))
{
    for (auto* const widget : widgets) {
        auto candidates = widget->findChildren<QWidget*>();
        candidates.prepend(widget);
        std::ranges::copy_if(candidates, std::back_inserter(controls), [](const QWidget* candidate) {
            return (candidate->focusPolicy() & Qt::TabFocus) != 0 && candidate->focusProxy() == nullptr;
        });
    }
}

KeptFocus::KeptFocus(const std::vector<FocusRow>& rows)
{
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        const auto control = std::ranges::find_if(row->controls, [](const auto* each) { return hasKeyboard(*each); });
        if (control != row->controls.end()) {
            place = static_cast<std::size_t>(control - row->controls.begin());
            std::for_each(row, rows.end(), [this](const auto& each) { wanted.push_back(each.id); });
            std::for_each(std::make_reverse_iterator(row), rows.rend(),
                          [this](const auto& each) { wanted.push_back(each.id); });
            return;
        }
    }
}

QWidget* KeptFocus::restore(const std::vector<FocusRow>& rows) const
{
    for (const auto& id : wanted) {
        const auto row = std::ranges::find(rows, id, &FocusRow::id);
        auto* const control = row == rows.end() ? nullptr : enabledControl(*row, place);
        if (control != nullptr) {
            control->setFocus(Qt::OtherFocusReason);
            return control;
        }
    }
    return nullptr;
}

} // namespace quorvel::x11
