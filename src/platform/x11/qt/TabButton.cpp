#include "platform/x11/qt/TabButton.h"

#include <QPainter>
#include <cstdlib>

#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/Symbols.h"

namespace quorvel::x11 {

namespace {

constexpr int padding = 8;

}

TabButton::TabButton(const std::string& title, const std::string& symbol, QWidget* parent)
    : QAbstractButton(parent), symbol(symbol)
{
    setText(labelText(title));
    setAccessibleName(quorvel::x11::text(title));
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
}

void TabButton::setWrapped(bool newWrapped)
{
    isWrapped = newWrapped;
    updateGeometry();
    update();
}

QSize TabButton::sizeHint() const
{
    const auto size = fontMetrics().size(Qt::TextShowMnemonic, shownText());
    const int lines = isWrapped ? 2 : 1;
    return {size.width() + 3 * padding, symbolSide() + lines * fontMetrics().height() + 2 * padding};
}

// Broken at the space next to the middle.
QString TabButton::shownText() const
{
    QString title = text();
    qsizetype place = -1;
    for (auto space = title.indexOf(' '); isWrapped && space >= 0; space = title.indexOf(' ', space + 1)) {
        if (place < 0 || std::abs(2 * space - title.size()) < std::abs(2 * place - title.size())) {
            place = space;
        }
    }
    if (place >= 0) {
        title[place] = '\n';
    }
    return title;
}

void TabButton::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    constexpr double radius = 7.0;
    constexpr float checkedAlpha = 0.10F;
    constexpr float hoverAlpha = 0.05F;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ground = QRectF(rect()).adjusted(1, 1, -1, -1);
    QColor shade = palette().color(QPalette::WindowText);
    shade.setAlphaF(isChecked() ? checkedAlpha : (underMouse() ? hoverAlpha : 0.0F));
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2.0) : QPen(Qt::NoPen));
    painter.setBrush(shade);
    painter.drawRoundedRect(ground, radius, radius);

    const QColor color = isChecked() ? palette().color(QPalette::Highlight) : palette().color(QPalette::WindowText);
    const int side = symbolSide();
    symbolIcon(symbol, color).paint(&painter, (width() - side) / 2, padding, side, side);
    painter.setPen(color);
    painter.drawText(QRect(0, padding + side, width(), height() - padding - side - padding / 2),
                     Qt::AlignCenter | Qt::TextShowMnemonic, shownText());
}

void TabButton::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void TabButton::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace quorvel::x11
