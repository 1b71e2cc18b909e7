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

namespace quorvel::x11 {

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// Menus take "&" for the mark of a mnemonic.
QString menuText(std::string_view title)
{
    return text(title).replace('&', "&&");
}

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

void addItem(QMenu& menu, const MenuItem& item, const std::function<void(MenuCommand)>& onCommand)
{
    auto* const action = menu.addAction(menuText(item.title));
    action->setEnabled(item.isEnabled);
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
    if (!isPlasma() && !isSet("QT_QPA_PLATFORMTHEME")) {
        texts.insert(texts.end(), {"-platformtheme", "generic"});
    }
    for (auto& argument : texts) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    count = static_cast<int>(texts.size());
}

QtToolkit::QtToolkit(const char* displayName)
    : arguments(displayName), application(arguments.count, arguments.pointers.data())
{
    // Qt has taken over the user's locale as a whole; files hold numbers with a point all the same.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("quorvel");
    QApplication::setApplicationDisplayName("Quorvel");
    QApplication::setQuitOnLastWindowClosed(false);
}

QtToolkit::~QtToolkit() = default;

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
    box.setTextFormat(Qt::RichText);
    box.setText("<b>" + text(alert.messageText).toHtmlEscaped() + "</b>");
    box.setInformativeText(text(alert.informativeText));
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
            box.addButton(menuText(title), isFirst ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
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
