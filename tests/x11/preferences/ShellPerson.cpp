#include "x11/preferences/ShellPerson.h"

#include <QApplication>
#include <QDragMoveEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollArea>
#include <QWindow>
#include <cmath>

#include <unistd.h>

namespace quorvel::x11 {

namespace {

using Modifier = xtest::KeyInjector::Modifier;

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

// Whether the mouse meets the widget there, in its window and with nothing over it.
bool isHit(const QWidget& widget, const QPoint& global)
{
    const auto* const met = QApplication::widgetAt(global);
    return met == &widget || widget.isAncestorOf(met);
}

void bringIntoView(QWidget& widget)
{
    for (auto* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (auto* const area = qobject_cast<QScrollArea*>(parent)) {
            area->ensureWidgetVisible(&widget);
        }
    }
}

QListWidgetItem* item(const std::string& table, const std::string& row)
{
    auto* const list = ShellPerson::list(table);
    for (int index = 0; list != nullptr && index < list->count(); ++index) {
        if (list->item(index)->data(Qt::AccessibleTextRole).toString() == text(row)) {
            return list->item(index);
        }
    }
    return nullptr;
}

QLineEdit* digitField(const std::string& row)
{
    auto* const found = item("Selected", row);
    return found != nullptr ? found->listWidget()->itemWidget(found)->findChild<QLineEdit*>() : nullptr;
}

// Counts the clicks that have reached the program.
class ClickListener final : public QObject {
public:
    ClickListener() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        clicks += watched->isWindowType() && event->type() == QEvent::MouseButtonRelease ? 1 : 0;
        return false;
    }

    int clicks = 0;
};

// Tells where on the screen a widget was offered a drag last, and where the mouse was pulled over it before.
class DragListener final : public QObject {
public:
    explicit DragListener(QWidget& target) : target(target) { target.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == &target && event->type() == QEvent::DragMove) {
            offered = target.mapToGlobal(static_cast<QDragMoveEvent*>(event)->position().toPoint());
        } else if (watched == &target && event->type() == QEvent::MouseMove) {
            pulled = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        }
        return false;
    }

    std::optional<QPoint> offered;
    std::optional<QPoint> pulled;

private:
    QWidget& target;
};

} // namespace

QWidget* ShellPerson::control(const std::string& name)
{
    const auto* const window = QApplication::activeWindow();
    if (window == nullptr) {
        return nullptr;
    }
    for (auto* const widget : window->findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus && widget->accessibleName() == text(name)) {
            return widget;
        }
    }
    return nullptr;
}

QListWidget* ShellPerson::list(const std::string& name)
{
    return qobject_cast<QListWidget*>(control(name));
}

void ShellPerson::chooseFromTray(xtest::SystemTray& tray, const std::string& entry)
{
    std::optional<xtest::PixelRect> icon;
    session.waitFor("the icon in the tray", [&] { return (icon = tray.iconOf(getpid())).has_value(); });
    display.keyboard.click(icon->x + icon->width / 2, icon->y + icon->height / 2);
    const auto place = waitForPlace("the menu's entry", [&]() -> std::optional<QPoint> {
        const auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr || !menu->windowHandle()->isExposed()) {
            return std::nullopt;
        }
        for (auto* const action : menu->actions()) {
            if (action->text() == text(entry)) {
                return menu->mapToGlobal(menu->actionGeometry(action).center());
            }
        }
        return std::nullopt;
    });
    clickAt(place);
}

void ShellPerson::openPreferences(xtest::SystemTray& tray)
{
    chooseFromTray(tray, "Preferences...");
    waitForWindow("Preferences");
}

void ShellPerson::waitForWindow(const std::string& title)
{
    session.waitFor("the window \"" + title + "\"", [&] {
        const auto* const window = QApplication::activeWindow();
        return window != nullptr && window->windowTitle() == text(title) && standsStill(*window);
    });
}

// The window manager has put it where Qt believes it is, and it has the keyboard.
bool ShellPerson::standsStill(const QWidget& window)
{
    const auto rect = display.client.clientRect(static_cast<xcb_window_t>(window.winId()));
    const auto origin = window.mapToGlobal(QPoint(0, 0));
    return window.windowHandle()->isExposed() && rect && rect->x == origin.x() && rect->y == origin.y() &&
           rect->width == window.width() && rect->height == window.height() &&
           display.client.activeWindow() == window.winId();
}

void ShellPerson::chooseTab(const std::string& title)
{
    click(title);
    session.waitFor("the pane \"" + title + "\"", [&] {
        for (auto* const widget : QApplication::activeWindow()->findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->accessibleName() == text(title) &&
                !widget->inherits("QAbstractButton")) {
                return true;
            }
        }
        return false;
    });
}

QPoint ShellPerson::waitForPlace(const std::string& what, const std::function<std::optional<QPoint>()>& place)
{
    std::optional<QPoint> found;
    session.waitFor(what, [&] { return (found = place()).has_value(); });
    return *found;
}

// Window managers hold a click back for a moment to look at it, and a key would overtake it.
void ShellPerson::clickAt(const QPoint& place)
{
    std::unique_ptr<ClickListener> listener;
    session.ask([&] {
        listener = std::make_unique<ClickListener>();
        return true;
    });
    display.keyboard.click(place.x(), place.y());
    session.waitFor("the click", [&] { return listener->clicks > 0; });
    session.ask([&] {
        listener.reset();
        return true;
    });
}

void ShellPerson::click(const std::string& name)
{
    const auto place = waitForPlace("the control \"" + name + "\"", [&]() -> std::optional<QPoint> {
        auto* const widget = control(name);
        if (widget == nullptr || !widget->isEnabled() || !standsStill(*widget->window())) {
            return std::nullopt;
        }
        bringIntoView(*widget);
        const auto center = widget->mapToGlobal(widget->rect().center());
        return isHit(*widget, center) ? std::optional(center) : std::nullopt;
    });
    clickAt(place);
}

void ShellPerson::focus(const std::string& name)
{
    session.waitFor("the keyboard of \"" + name + "\"", [&] {
        auto* const widget = control(name);
        if (widget != nullptr && standsStill(*widget->window())) {
            widget->setFocus(Qt::TabFocusReason);
        }
        return widget != nullptr && widget->hasFocus();
    });
}

void ShellPerson::tap(xcb_keysym_t key, const std::vector<Modifier>& modifiers)
{
    display.keyboard.tap(modifiers, key);
}

QPoint ShellPerson::placeOfRow(const std::string& table, const std::string& row, double fromTop)
{
    constexpr int fromLeft = 120; // among the name, clear of the digit field
    return waitForPlace("the row \"" + row + "\"", [&]() -> std::optional<QPoint> {
        auto* const found = item(table, row);
        if (found == nullptr || !standsStill(*found->listWidget()->window())) {
            return std::nullopt;
        }
        auto& rows = *found->listWidget();
        rows.scrollToItem(found);
        const auto area = rows.visualItemRect(found);
        const int y = area.top() + static_cast<int>(std::lround(fromTop * area.height()));
        const auto place = rows.viewport()->mapToGlobal(QPoint(area.left() + fromLeft, y));
        return isHit(*rows.viewport(), place) ? std::optional(place) : std::nullopt;
    });
}

void ShellPerson::clickRow(const std::string& table, const std::string& row, const std::vector<Modifier>& modifiers)
{
    const auto place = placeOfRow(table, row, 0.5);
    for (const auto modifier : modifiers) {
        display.keyboard.pressModifier(modifier);
    }
    clickAt(place);
    for (const auto modifier : modifiers) {
        display.keyboard.releaseModifier(modifier);
    }
}

void ShellPerson::doubleClickRow(const std::string& table, const std::string& row)
{
    const auto place = placeOfRow(table, row, 0.5);
    clickAt(place);
    clickAt(place);
}

void ShellPerson::dragRowBefore(const std::string& table, const std::string& row, const std::string& target)
{
    drag(table, row, target, Side::before);
}

void ShellPerson::dragRowBehind(const std::string& table, const std::string& row, const std::string& target)
{
    drag(table, row, target, Side::behind);
}

void ShellPerson::drag(const std::string& table, const std::string& row, const std::string& target, Side side)
{
    const auto from = placeOfRow(table, row, 0.5);
    const auto to = placeOfRow(table, target, side == Side::before ? 0.2 : 0.8);
    std::unique_ptr<DragListener> listener;
    session.ask([&] {
        listener = std::make_unique<DragListener>(*list(table)->viewport());
        return true;
    });
    // The first movement makes Qt expect a drag, the second one begins it, the third one takes it to its target.
    const QPoint first = from + QPoint(20, 4);
    const QPoint second = from + QPoint(40, 8);
    display.keyboard.movePointer(from.x(), from.y());
    display.keyboard.pressButton();
    display.keyboard.movePointer(first.x(), first.y());
    session.waitFor("the pull", [&] { return listener->pulled == first; });
    display.keyboard.movePointer(second.x(), second.y());
    session.waitFor("the drag to begin", [&] { return listener->offered.has_value(); });
    display.keyboard.movePointer(to.x(), to.y());
    session.waitFor("the drag to reach its target", [&] { return listener->offered == to; });
    display.keyboard.releaseButton();
    session.ask([&] {
        listener.reset();
        return true;
    });
}

void ShellPerson::typeDigit(const std::string& row, const std::vector<xcb_keysym_t>& keys)
{
    const auto place = waitForPlace("the digit field of \"" + row + "\"", [&]() -> std::optional<QPoint> {
        auto* const field = digitField(row);
        if (field == nullptr || !standsStill(*field->window())) {
            return std::nullopt;
        }
        const auto center = field->mapToGlobal(field->rect().center());
        return isHit(*field, center) ? std::optional(center) : std::nullopt;
    });
    clickAt(place);
    display.keyboard.tap({Modifier::control}, XKB_KEY_a);
    display.keyboard.tap(XKB_KEY_BackSpace);
    std::string typed;
    for (const auto key : keys) {
        display.keyboard.tap(key);
        typed.push_back(static_cast<char>(key)); // which is ASCII for what can be typed here
    }
    session.waitFor("what is typed", [&] {
        const auto* const field = digitField(row);
        return field != nullptr && field->isModified() && field->text().toStdString() == typed;
    });
    display.keyboard.tap(XKB_KEY_Return);
    session.waitFor("the end of the editing", [&] {
        const auto* const field = digitField(row);
        return field != nullptr && !field->isModified();
    });
}

bool ShellPerson::shows(const std::string& name)
{
    return session.ask([&] { return control(name) != nullptr; });
}

bool ShellPerson::isEnabled(const std::string& name)
{
    return session.ask([&] { return control(name) != nullptr && control(name)->isEnabled(); });
}

std::vector<std::string> ShellPerson::rows(const std::string& table)
{
    return session.ask([&] {
        std::vector<std::string> names;
        const auto* const found = list(table);
        for (int index = 0; found != nullptr && index < found->count(); ++index) {
            names.push_back(found->item(index)->data(Qt::AccessibleTextRole).toString().toStdString());
        }
        return names;
    });
}

std::vector<std::string> ShellPerson::selectedRows(const std::string& table)
{
    return session.ask([&] {
        std::vector<std::string> names;
        const auto* const found = list(table);
        for (int index = 0; found != nullptr && index < found->count(); ++index) {
            if (found->item(index)->isSelected()) {
                names.push_back(found->item(index)->data(Qt::AccessibleTextRole).toString().toStdString());
            }
        }
        return names;
    });
}

std::string ShellPerson::digit(const std::string& row)
{
    const auto* const field = digitField(row);
    return field != nullptr ? field->text().toStdString() : "no field";
}

} // namespace quorvel::x11
