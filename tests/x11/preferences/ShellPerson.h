#pragma once

#include <QListWidget>
#include <QPoint>
#include <QWidget>
#include <string>
#include <vector>

#include "support/KeyInjector.h"
#include "support/SystemTray.h"
#include "x11/preferences/ShellSession.h"

namespace quorvel::x11 {

// What a person does to the windows of a session's program, with the real mouse and the real keyboard. Controls are
// known by their accessible names, and only those of the window with the keyboard count. What she is to act on is
// waited for.
class ShellPerson {
public:
    ShellPerson(ShellSession& session, xtest::TestDisplay& display) : session(session), display(display) {}

    void chooseFromTray(xtest::SystemTray& tray, const std::string& entry);
    void openPreferences(xtest::SystemTray& tray);

    // By the title; a window with it must have the keyboard and stand still.
    void waitForWindow(const std::string& title);
    void chooseTab(const std::string& title);

    void click(const std::string& name);

    // Gives the control the keyboard.
    void focus(const std::string& name);
    void tap(xcb_keysym_t key, const std::vector<xtest::KeyInjector::Modifier>& modifiers = {});

    // Rows of a table by what they show.
    void clickRow(const std::string& table, const std::string& row,
                  const std::vector<xtest::KeyInjector::Modifier>& modifiers = {});
    void doubleClickRow(const std::string& table, const std::string& row);

    // Drags the row, and all that are selected with it, before another one, or behind it.
    void dragRowBefore(const std::string& table, const std::string& row, const std::string& target);
    void dragRowBehind(const std::string& table, const std::string& row, const std::string& target);

    // Types into the digit field of a row, and waits until its editing has ended.
    void typeDigit(const std::string& row, const std::vector<xcb_keysym_t>& keys);

    // What there is to see.
    bool shows(const std::string& name);
    bool isEnabled(const std::string& name);
    std::vector<std::string> rows(const std::string& table);
    std::vector<std::string> selectedRows(const std::string& table);

    // Only in what the session asks: a control, a table, null where there is none; the digit of a selected layout.
    static QWidget* control(const std::string& name);
    static QListWidget* list(const std::string& name);
    static std::string digit(const std::string& row);

private:
    enum class Side { before, behind };

    void clickAt(const QPoint& place);
    void drag(const std::string& table, const std::string& row, const std::string& target, Side side);
    QPoint waitForPlace(const std::string& what, const std::function<std::optional<QPoint>()>& place);
    QPoint placeOfRow(const std::string& table, const std::string& row, double fromTop);
    bool standsStill(const QWidget& window);

    ShellSession& session;
    xtest::TestDisplay& display;
};

} // namespace quorvel::x11
