#include "platform/x11/qt/SymbolLabel.h"

#include <QEvent>
#include <QPainter>

#include "platform/x11/qt/Symbols.h"

namespace quorvel::x11 {

SymbolLabel::SymbolLabel(int side, QPalette::ColorRole role, QWidget* parent) : QLabel(parent), side(side)
{
    setForegroundRole(role);
}

void SymbolLabel::showSymbol(std::string_view name, std::optional<QColor> newColor)
{
    symbol = name;
    color = newColor;
    createIcon();
    update();
}

void SymbolLabel::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    icon.paint(&painter, QRect((width() - side) / 2, (height() - side) / 2, side, side));
}

void SymbolLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        createIcon();
    }
}

void SymbolLabel::createIcon()
{
    icon = symbolIcon(symbol, color.value_or(palette().color(foregroundRole())));
}

} // namespace quorvel::x11
