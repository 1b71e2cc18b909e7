#pragma once

#include <QStackedWidget>
#include <QWidget>
#include <vector>

#include "platform/PreferencesWindowModel.h"
#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::x11 {

class TabButton;

// The window with the panes, one for each tab. Tabs are buttons with a symbol over a title, in a row at the top.
class QtPreferencesWindow final : public QWidget, public ToolkitWindow {
public:
    QtPreferencesWindow(PreferencesWindowModel& model, const ToolkitHost& host, ToolkitWindowCallbacks callbacks);
    ~QtPreferencesWindow() override;

    void show() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    QWidget* createTabs(const PreferencesWindowContent& content);
    void fitTabs();
    QWidget* createPane(const PreferencesTab& tab);

    PreferencesWindowModel& model;
    const ToolkitHost& host;
    ToolkitWindowCallbacks callbacks;
    QStackedWidget* panes;
    std::vector<TabButton*> tabs;
};

} // namespace quorvel::x11
