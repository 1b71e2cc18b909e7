#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTimer>
#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <utility>

#include "x11/preferences/ShellTest.h"

namespace quorvel::x11 {
namespace {

class KeyboardUseTest : public ShellTest {
protected:
    // Controls that take part in using the window; what they are made of inside does not.
    static std::vector<QWidget*> controlsIn(const QWidget& whole)
    {
        const auto widgets = whole.findChildren<QWidget*>();
        std::vector<QWidget*> controls;
        std::ranges::copy_if(widgets, std::back_inserter(controls),
                             [](const QWidget* widget) { return isControl(*widget); });
        return controls;
    }

    static bool isControl(const QWidget& widget)
    {
        const QWidget* const parent = widget.parentWidget();
        const bool isInner = qobject_cast<const QAbstractSpinBox*>(parent) != nullptr ||
                             qobject_cast<const QScrollBar*>(&widget) != nullptr ||
                             widget.inherits("QComboBoxListView") || widget.inherits("QTableCornerButton");
        return !isInner && (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                            qobject_cast<const QAbstractSlider*>(&widget) != nullptr ||
                            qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
                            qobject_cast<const QComboBox*>(&widget) != nullptr ||
                            qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                            qobject_cast<const QAbstractItemView*>(&widget) != nullptr);
    }

    static std::string describe(QWidget* widget)
    {
        return std::string(widget->metaObject()->className()) + " \"" + nameOf(widget) + '"';
    }

    static void expectNames(const QWidget& whole)
    {
        const auto controls = controlsIn(whole);
        EXPECT_FALSE(controls.empty());
        for (auto* const control : controls) {
            EXPECT_NE(nameOf(control), "")
                << control->metaObject()->className() << " in " << nameOf(control->parentWidget());
        }
    }

    // Presses the button and waits until a window over the one in front is there.
    QWidget* open(const std::string& name)
    {
        auto* const before = activeWindow();
        button(name)->click();
        QWidget* opened = nullptr;
        loop.waitFor("a window over the preferences",
                     [&] { return (opened = activeWindow()) != nullptr && opened != before; });
        return opened;
    }

    void closeByEscape()
    {
        display.keyboard.tap(XKB_KEY_Escape);
        loop.waitFor("the preferences in front again", [&] { return activeWindow() == window; });
    }

    // Presses Tab until it comes back to where it has been.
    std::vector<QWidget*> walk()
    {
        std::vector<QWidget*> way{QApplication::focusWidget()};
        while (true) {
            auto* const before = QApplication::focusWidget();
            display.keyboard.tap(XKB_KEY_Tab);
            loop.waitFor("the focus to go on", [&] {
                return QApplication::focusWidget() != nullptr && QApplication::focusWidget() != before;
            });
            if (std::ranges::find(way, QApplication::focusWidget()) != way.end()) {
                return way;
            }
            way.push_back(QApplication::focusWidget());
        }
    }

    // Of buttons of which one is chosen, Tab reaches that one and the arrow keys the others.
    static bool isBesideTheChosenOne(const QWidget& control)
    {
        const auto* const choice = qobject_cast<const QAbstractButton*>(&control);
        return choice != nullptr && choice->group() != nullptr && choice->group()->exclusive() && !choice->isChecked();
    }

    void expectReached(const QWidget& whole)
    {
        const auto way = walk();
        for (auto* const control : controlsIn(whole)) {
            if (control->isVisible() && control->isEnabled() && !isBesideTheChosenOne(*control)) {
                EXPECT_TRUE(std::ranges::find(way, control) != way.end()) << describe(control);
            }
        }
    }

    // Whether all that is to be seen of the window has the room that it needs.
    static bool isNothingCut(const QWidget& whole)
    {
        const auto areas = whole.findChildren<QScrollArea*>();
        const auto widgets = whole.findChildren<QWidget*>();
        return std::ranges::all_of(areas,
                                   [](const QScrollArea* area) {
                                       return !area->isVisible() || area->horizontalScrollBar()->maximum() == 0;
                                   }) &&
               std::ranges::all_of(widgets, [&whole](const QWidget* widget) {
                   const bool hasText = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                        qobject_cast<const QLabel*>(widget) != nullptr;
                   const int right = widget->mapTo(&whole, QPoint(widget->width(), 0)).x();
                   return !hasText || !widget->isVisible() ||
                          (right <= whole.width() && widget->width() >= widget->minimumSizeHint().width());
               });
    }
};

TEST_F(KeyboardUseTest, EveryControlHasAName)
{
    expectNames(*window);

    button("Layout Appearance")->click();
    auto* const question = open("Save Current Theme");
    expectNames(*question);
    display.keyboard.tap(XKB_KEY_Return);
    loop.waitFor("the preferences in front again", [&] { return activeWindow() == window; });
    expectNames(*open("Manage Themes…"));
    closeByEscape();
    expectNames(*open("Reset to Defaults"));
    closeByEscape();
}

TEST_F(KeyboardUseTest, NoTwoControlsOfAPaneHaveTheSameName)
{
    auto& layouts = *std::get<LayoutsPaneModel*>(controller->content().tabs.back().pane);
    layouts.doubleClickAvailable(1);
    layouts.doubleClickAvailable(2);
    for (const auto& tab : controller->content().tabs) {
        button(tab.title)->click();
        QApplication::processEvents();
        std::set<std::string> names;
        for (auto* const control : controlsIn(*window)) {
            if (control->isVisible()) {
                EXPECT_TRUE(names.insert(nameOf(control)).second) << describe(control) << " in " << tab.title;
            }
        }
    }
    EXPECT_EQ(std::ranges::count_if(window->findChildren<QLineEdit*>(), &QWidget::isVisible), 2);
}

TEST_F(KeyboardUseTest, TabReachesEveryControlOfEveryPane)
{
    for (const auto& tab : controller->content().tabs) {
        SCOPED_TRACE(tab.title);
        auto* const chosen = button(tab.title);
        chosen->click();
        chosen->setFocus();
        expectReached(*window);
    }
}

TEST_F(KeyboardUseTest, TabGoesFromLeftToRightThroughTheLayouts)
{
    auto* const chosen = button("Layouts");
    chosen->click();
    auto& layouts = *std::get<LayoutsPaneModel*>(controller->content().tabs.back().pane);
    layouts.doubleClickAvailable(1);
    layouts.doubleClickAvailable(2);
    loop.waitFor("two fields for digits",
                 [&] { return std::ranges::count_if(window->findChildren<QLineEdit*>(), &QWidget::isVisible) == 2; });
    layouts.selectAvailable({3});
    layouts.selectSelected({0});
    const auto remove = layouts.content().remove.accessibleName;
    loop.waitFor("buttons for what is selected", [&] { return button(remove)->isEnabled(); });
    chosen->setFocus();
    std::vector<std::string> names;
    for (auto* const widget : walk()) {
        names.push_back(nameOf(widget));
    }
    const auto rows = layouts.content().selected;
    EXPECT_EQ(names,
              (std::vector<std::string>{"Layouts", "Available", layouts.content().add.accessibleName, remove,
                                        "Selected", rows.at(0).digitAccessibleName, rows.at(1).digitAccessibleName}));
}

TEST_F(KeyboardUseTest, WithALargeFontNothingIsCutInTheSmallestWindow)
{
    window->resize(window->minimumSize());
    for (const double factor : {1.0, 1.5}) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * factor);
        QApplication::setFont(font);
        for (const auto& tab : controller->content().tabs) {
            button(tab.title)->click();
            loop.waitFor("the smallest size", [&] { return window->size() == window->minimumSize(); });
            QApplication::processEvents();
            loop.waitFor("room for everything in " + tab.title, [&] { return isNothingCut(*window); });
        }
    }
}

TEST_F(KeyboardUseTest, AnAlertShowsEveryCharacterOfItsTexts)
{
    Alert alert;
    alert.messageText = "<i>1</i> &lt; 2";
    alert.informativeText = "Version <b>1</b> &lt; 2\nis there.";
    alert.buttons = {"OK"};
    std::vector<std::string> read;
    QTimer::singleShot(0, [&] {
        auto* const box = QApplication::activeModalWidget();
        for (const auto* const label : box->findChildren<QLabel*>()) {
            const auto text = label->text();
            const bool isMarkup = label->textFormat() == Qt::RichText ||
                                  (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(text));
            read.push_back((isMarkup ? QTextDocumentFragment::fromHtml(text).toPlainText() : text).toStdString());
        }
        box->close();
    });
    toolkit.runAlert(alert, {});
    EXPECT_THAT(read, testing::Contains(alert.messageText));
    EXPECT_THAT(read, testing::Contains(alert.informativeText));
}

TEST_F(KeyboardUseTest, AtItsFirstSizeNoPaneScrolls)
{
    for (const auto& tab : controller->content().tabs) {
        button(tab.title)->click();
        loop.waitFor("room for all of " + tab.title, [&] {
            const auto areas = window->findChildren<QScrollArea*>();
            return std::ranges::all_of(areas, [](const QScrollArea* area) {
                return !area->isVisible() || area->verticalScrollBar()->maximum() == 0;
            });
        });
    }
}

TEST_F(KeyboardUseTest, TheFocusStaysWhereItIsWhenAnotherFontMakesAnotherPane)
{
    double size = 9.0;
    for (const auto& [tab, name] : std::vector<std::pair<std::string, std::string>>{
             {"Shortcuts", "Move/Resize Mode, Move Up: Clear"}, {"Move/Resize Appearance", "Manage Themes…"}}) {
        SCOPED_TRACE(name);
        button(tab)->click();
        const QPointer<QWidget> before = button(name);
        before->setFocus();
        style.font = "DejaVu Sans " + std::to_string(++size);
        styleChanged();
        loop.waitFor("another pane", [&] { return before == nullptr; });
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        EXPECT_EQ(nameOf(QApplication::focusWidget()), name);
        loop.waitFor("the control in sight", [&] { return !QApplication::focusWidget()->visibleRegion().isEmpty(); });
    }
}

TEST_F(KeyboardUseTest, TheOpenWindowFollowsTheDesktopsColorsAndItsFont)
{
    const auto isDark = [this] { return window->palette().color(QPalette::Window).lightness() < 128; };
    EXPECT_TRUE(isDark());
    EXPECT_EQ(window->font().family().toStdString(), "DejaVu Sans");
    EXPECT_EQ(window->font().pointSizeF(), 9.0);
    EXPECT_FALSE(window->font().bold());

    button("Layout Appearance")->click();
    open("Text, Text color");

    style = {.scheme = ColorScheme::light, .font = "DejaVu Sans Bold 11"};
    styleChanged();
    loop.waitFor("light colours", [&] { return !isDark(); });
    loop.waitFor("the new font", [&] { return window->font().pointSizeF() == 11.0; });
    EXPECT_TRUE(window->font().bold());
    loop.waitFor("the colour dialog to go with the old rows", [&] { return activeWindow() == window; });
    EXPECT_FALSE(simulated.userDefaults.contents().contains("textColor"));
}

} // namespace
} // namespace quorvel::x11
