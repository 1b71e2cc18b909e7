#include "platform/x11/qt/KeptFocus.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvel::x11 {

namespace {

bool hasKeyboard(const QWidget& control)
{
    const auto* const window = control.window();
    return window->focusWidget() == &control;
}

std::vector<FocusableRow> focusable(const std::vector<FocusRow>& rows)
{
    std::vector<FocusableRow> result;
    for (const auto& row : rows) {
        std::vector<bool> isEnabled;
        std::ranges::transform(row.controls, std::back_inserter(isEnabled), &QWidget::isEnabled);
        result.push_back({row.id, std::move(isEnabled)});
    }
    return result;
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
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const auto& controls = rows[row].controls;
        const auto control = std::ranges::find_if(controls, [](const auto* each) { return hasKeyboard(*each); });
        if (control != controls.end()) {
            place = KeptPlace(focusable(rows), {row, static_cast<std::size_t>(control - controls.begin())});
            return;
        }
    }
}

QWidget* KeptFocus::restore(const std::vector<FocusRow>& rows) const
{
    const auto found = place.among(focusable(rows));
    if (!found) {
        return nullptr;
    }
    auto* const control = rows[found->row].controls[found->control];
    control->setFocus(Qt::OtherFocusReason);
    return control;
}

} // namespace quorvel::x11
