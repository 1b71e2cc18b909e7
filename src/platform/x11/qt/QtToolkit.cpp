#include "platform/x11/qt/QtToolkit.h"

#include <QCursor>
#include <QIcon>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "platform/x11/qt/QtAboutWindow.h"
#include "platform/x11/qt/QtPreferencesWindow.h"
#include "platform/x11/qt/QtServerLoss.h"
#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

namespace {

bool isSet(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool isPlasma()
{
    const char* const desktop = std::getenv("XDG_CURRENT_DESKTOP");
    return desktop != nullptr && std::string_view(desktop).find("KDE") != std::string_view::npos;
}

// Where Qt itself knows the desktop's looks.
bool hasPlatformTheme()
{
    return isPlasma() || isSet("QT_QPA_PLATFORMTHEME");
}

void addItem(QMenu& menu, const MenuItem& item, const std::function<void(MenuCommand)>& onCommand)
{
    auto* const action = menu.addAction(labelText(item.title));
    action->setEnabled(item.isEnabled);
    if (!item.toolTip.empty()) {
        action->setToolTip(text(item.toolTip));
        menu.setToolTipsVisible(true);
    }
    if (!item.keyEquivalent.empty()) {
        action->setShortcut(QKeySequence("Ctrl+" + text(item.keyEquivalent)));
        action->setShortcutVisibleInContextMenu(true);
    }
    QObject::connect(action, &QAction::triggered, [onCommand, command = item.command] { onCommand(command); });
}

} // namespace

QtToolkit::Arguments::Arguments(const char* displayName) : texts{"quorvel", "-platform", "xcb"}
{
    if (!std::string_view(displayName).empty()) {
        texts.insert(texts.end(), {"-display", displayName});
    }
    // Elsewhere Qt would load GTK for its dialogs and colours, with a connection to the display of its own.
    if (!hasPlatformTheme()) {
        texts.insert(texts.end(), {"-platformtheme", "generic"});
    }
    for (auto& argument : texts) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    count = static_cast<int>(texts.size());
}

QtToolkit::QtToolkit(const char* displayName, const ToolkitHost& host)
    : host(host), arguments(displayName), application(arguments.count, arguments.pointers.data()), keyDownFilter(host)
{
    // Qt has taken over the user's locale as a whole; files hold numbers with a point all the same.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("quorvel");
    QApplication::setQuitOnLastWindowClosed(false);
    application.installEventFilter(&keyDownFilter);
    sayServerLossInOneLine();
    if (!hasPlatformTheme()) {
        style.emplace(host);
    }
}

QtToolkit::~QtToolkit() = default;

std::unique_ptr<ToolkitWindow> QtToolkit::createPreferencesWindow(PreferencesWindowModel& model,
                                                                  ToolkitWindowCallbacks callbacks)
{
    return std::make_unique<QtPreferencesWindow>(model, host, std::move(callbacks));
}

std::unique_ptr<ToolkitWindow> QtToolkit::createAboutWindow(const AboutContent& content)
{
    return std::make_unique<QtAboutWindow>(content, host);
}

void QtToolkit::endInnerLoops()
{
    sayNoServerLoss();
    QApplication::exit();
}

void QtToolkit::openMenu(const Menu& content, std::function<void(MenuCommand)> onCommand)
{
    menu = std::make_unique<QMenu>();
    for (const auto& entry : content.entries) {
        if (entry) {
            addItem(*menu, *entry, onCommand);
        } else {
            menu->addSeparator();
        }
    }
    menu->popup(QCursor::pos());
}

std::size_t QtToolkit::runAlert(const Alert& alert, const std::filesystem::path& icon)
{
    QMessageBox box;
    box.setWindowTitle("Quorvel");
    box.setTextFormat(Qt::RichText);
    box.setText("<b>" + text(alert.messageText).toHtmlEscaped() + "</b>");
    box.setInformativeText(asMarkup(alert.informativeText));
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    const QIcon picture(text(icon.string()));
    box.setWindowIcon(picture);
    constexpr int iconSide = 64;
    const auto pixmap = picture.pixmap(iconSide);
    if (!pixmap.isNull()) {
        box.setIconPixmap(pixmap);
    } else {
        box.setIcon(alert.style == AlertStyle::warning ? QMessageBox::Warning : QMessageBox::Information);
    }
    std::vector<QAbstractButton*> buttons;
    for (const auto& title : alert.buttons) {
        const bool isFirst = buttons.empty();
        auto* const button =
            box.addButton(labelText(title), isFirst ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
        if (isFirst) {
            box.setDefaultButton(button);
        }
        box.setEscapeButton(button); // the last one wins
        buttons.push_back(button);
    }
    box.exec();
    const auto chosen = std::ranges::find(buttons, box.clickedButton());
    const auto last = buttons.empty() ? buttons.end() : buttons.end() - 1;
    return static_cast<std::size_t>((chosen != buttons.end() ? chosen : last) - buttons.begin());
}

} // namespace quorvel::x11
