#include <algorithm>
#include <string>
#include <string_view>
#include <typeinfo>
#include <utility>
#include <variant>

#include "x11/preferences/ShellTest.h"

namespace quorvel::x11 {
namespace {

class PreviewSize : public ShellTest {
protected:
    // Chooses the tab; what is posted while that is laid out has its effect, too.
    FormModel& show(const std::string& title)
    {
        button(title)->click();
        QApplication::processEvents();
        const auto tabs = controller->content().tabs;
        return *std::get<FormModel*>(std::ranges::find(tabs, title, &PreferencesTab::title)->pane);
    }

    // Of the preview that can be seen.
    double scale(const FormModel& model)
    {
        for (const auto& group : model.form().groups) {
            for (const auto& row : group.rows) {
                if (const auto* const control = std::get_if<PreviewControl>(&row.control)) {
                    return preview().height() / control->size.height;
                }
            }
        }
        throw xtest::HarnessError("The form has no preview");
    }

    QWidget& preview()
    {
        for (auto* const widget : window->findChildren<QWidget*>()) {
            if (std::string_view(typeid(*widget).name()).contains("PreviewWidget") && widget->isVisible()) {
                return *widget;
            }
        }
        throw xtest::HarnessError("There is no preview");
    }

    static void flipFirstToggle(FormModel& model)
    {
        for (const auto& group : model.form().groups) {
            for (const auto& row : group.rows) {
                if (const auto* const toggle = std::get_if<ToggleControl>(&row.control)) {
                    model.set(row.id, !toggle->isOn);
                    QApplication::processEvents();
                    return;
                }
            }
        }
        throw xtest::HarnessError("The form has no toggle");
    }
};

TEST_F(PreviewSize, PreviewsHaveAllTheRoomThatThereIsFromTheFirstMomentOn)
{
    for (const auto& [title, smallest] :
         {std::pair{"Layout Appearance", 0.95}, std::pair{"Move/Resize Appearance", 0.95},
          std::pair{"Window Switcher Appearance", 0.6}}) {
        auto& model = show(title);
        const double atFirst = scale(model);
        EXPECT_GE(atFirst, smallest) << title;
        flipFirstToggle(model);
        EXPECT_EQ(scale(model), atFirst) << title;
    }
}

} // namespace
} // namespace quorvel::x11
