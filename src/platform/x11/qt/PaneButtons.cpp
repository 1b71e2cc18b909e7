#include "platform/x11/qt/PaneButtons.h"

#include <QPushButton>
#include <QToolButton>
#include <utility>

#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/Symbols.h"

namespace quorvel::x11 {

namespace {

constexpr QColor warningColor(224, 62, 62); // readable on light and on dark ground

} // namespace

void showPaneButton(QAbstractButton& widget, const PaneButton& button)
{
    const QIcon icon = button.symbol.empty() ? QIcon() : symbolIcon(button.symbol);
    const QString name = text(button.accessibleName.empty() ? button.title : button.accessibleName);
    if (widget.icon().isNull() != icon.isNull()) {
        widget.setIcon(icon);
    }
    widget.setText(icon.isNull() ? labelText(button.title) : QString());
    widget.setToolTip(icon.isNull() ? QString() : name);
    widget.setAccessibleName(name);
    widget.setEnabled(button.isEnabled);
    if (icon.isNull()) {
        constexpr int sidePadding = 14;
        const auto& metrics = widget.fontMetrics();
        widget.setMinimumSize(metrics.size(Qt::TextShowMnemonic, widget.text()).width() + 2 * sidePadding,
                              metrics.height() * 3 / 2);
    }
}

QAbstractButton* createPaneButton(const PaneButton& button, std::function<void(const std::string&)> pressed,
                                  QWidget* parent)
{
    QAbstractButton* widget = nullptr;
    if (button.symbol.empty() || symbolIcon(button.symbol).isNull()) {
        auto* const push = new QPushButton(parent);
        push->setAutoDefault(button.role == ButtonRole::confirm);
        push->setDefault(button.role == ButtonRole::confirm);
        if (button.role == ButtonRole::destructive) {
            QPalette warning = push->palette();
            warning.setColor(QPalette::Active, QPalette::ButtonText, warningColor);
            warning.setColor(QPalette::Inactive, QPalette::ButtonText, warningColor);
            push->setPalette(warning);
        }
        widget = push;
    } else {
        auto* const tool = new QToolButton(parent);
        tool->setAutoRaise(true);
        tool->setFocusPolicy(Qt::StrongFocus);
        widget = tool;
    }
    showPaneButton(*widget, button);
    QObject::connect(widget, &QAbstractButton::clicked, widget,
                     [pressed = std::move(pressed), id = button.id] { pressed(id); });
    return widget;
}

} // namespace quorvel::x11
