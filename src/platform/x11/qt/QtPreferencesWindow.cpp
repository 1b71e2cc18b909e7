#include "platform/x11/qt/QtPreferencesWindow.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>
#include <cmath>
#include <utility>

#include <xcb/xcb.h>

#include "platform/x11/qt/FocusMarking.h"
#include "platform/x11/qt/FormPane.h"
#include "platform/x11/qt/GroupFrame.h"
#include "platform/x11/qt/LayoutsPane.h"
#include "platform/x11/qt/PaneMetrics.h"
#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/TabButton.h"
#include "platform/x11/qt/WindowShowing.h"

namespace quorvel::x11 {

namespace {

QSize qtSize(Size size)
{
    return {static_cast<int>(std::ceil(size.width)), static_cast<int>(std::ceil(size.height))};
}

} // namespace

QtPreferencesWindow::QtPreferencesWindow(PreferencesWindowModel& model, const ToolkitHost& host,
                                         ToolkitWindowCallbacks callbacks)
    : model(model), host(host), callbacks(std::move(callbacks)), panes(new QStackedWidget(this))
{
    constexpr int iconSide = 64;
    const auto content = model.content();
    setWindowTitle(text(content.title));
    setWindowIcon(QIcon(text(host.imageFile(content.iconName, iconSide).string())));
    alwaysMarkFocus(*this);
    setMinimumSize(qtSize(content.minimumSize));
    resize(qtSize(content.size));
    for (const auto& tab : content.tabs) {
        panes->addWidget(createPane(tab));
    }
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(0);
    box->addWidget(createTabs(content));
    fitTabs();
    box->addWidget(new Separator(this));
    box->addWidget(panes, 1);
    panes->setCurrentIndex(static_cast<int>(model.selectedTab()));
}

QtPreferencesWindow::~QtPreferencesWindow()
{
    close();
}

void QtPreferencesWindow::show()
{
    showInTheMiddle(*this, host);
}

QWidget* QtPreferencesWindow::createTabs(const PreferencesWindowContent& content)
{
    auto* const bar = new QWidget(this);
    auto* const line = new QHBoxLayout(bar);
    line->setContentsMargins(paneMetrics::margin, paneMetrics::titleSpacing, paneMetrics::margin,
                             paneMetrics::titleSpacing);
    line->setSpacing(paneMetrics::titleSpacing);
    line->addStretch(1);
    auto* const group = new QButtonGroup(this);
    for (std::size_t index = 0; index < content.tabs.size(); ++index) {
        auto* const tab = new TabButton(content.tabs[index].title, content.tabs[index].symbol, bar);
        tab->setChecked(index == model.selectedTab());
        // At once, so that the next key goes to the tab's pane; a button's own shortcut clicks it a moment later.
        connect(new QShortcut(QKeySequence(QString("Ctrl+%1").arg(index + 1)), this), &QShortcut::activated, tab,
                [tab] {
                    tab->click();
                    tab->setFocus(Qt::ShortcutFocusReason);
                });
        group->addButton(tab, static_cast<int>(index));
        tabs.push_back(tab);
        line->addWidget(tab);
    }
    line->addStretch(1);
    connect(group, &QButtonGroup::idClicked, this, [this](int index) {
        model.selectTab(static_cast<std::size_t>(index));
        panes->setCurrentIndex(index);
    });
    return bar;
}

QWidget* QtPreferencesWindow::createPane(const PreferencesTab& tab)
{
    QWidget* pane = nullptr;
    if (auto* const* const form = std::get_if<FormModel*>(&tab.pane)) {
        pane = new FormPane(**form, host, this);
    } else {
        pane = new LayoutsPane(*std::get<LayoutsPaneModel*>(tab.pane), host, this);
    }
    pane->setAccessibleName(text(tab.title));
    return pane;
}

void QtPreferencesWindow::closeEvent(QCloseEvent* event)
{
    if (isVisible()) {
        callbacks.willClose();
    }
    event->accept();
}

void QtPreferencesWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        fitTabs();
    }
    QWidget::changeEvent(event);
}

// Qt waits for a moment before it believes that a window has lost the keyboard, and misses who comes back within that.
bool QtPreferencesWindow::nativeEvent(const QByteArray& eventType, void* message, qintptr* result)
{
    const auto& event = *static_cast<const xcb_focus_in_event_t*>(message);
    const bool isByGrab = event.mode == XCB_NOTIFY_MODE_GRAB || event.mode == XCB_NOTIFY_MODE_UNGRAB;
    if ((event.response_type & 0x7FU) == XCB_FOCUS_IN && !isByGrab && event.detail != XCB_NOTIFY_DETAIL_POINTER) {
        callbacks.didBecomeActive();
    }
    return QWidget::nativeEvent(eventType, message, result);
}

// In the narrowest window every title is to be read in full, whatever the font.
void QtPreferencesWindow::fitTabs()
{
    int width = 2 * paneMetrics::margin;
    for (auto* const tab : tabs) {
        tab->setWrapped(false);
        width += tab->sizeHint().width() + paneMetrics::titleSpacing;
    }
    for (auto* const tab : tabs) {
        tab->setWrapped(width > minimumWidth());
    }
}

void QtPreferencesWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Close) || event->matches(QKeySequence::Cancel)) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace quorvel::x11
