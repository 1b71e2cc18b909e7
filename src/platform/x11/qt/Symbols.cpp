#include "platform/x11/qt/Symbols.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <utility>

#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

namespace {

// A drawing in one colour, which is filled in when it is drawn.
class SymbolEngine final : public QIconEngine {
public:
    SymbolEngine(QByteArray drawing, std::optional<QColor> color) : drawing(std::move(drawing)), color(color) {}

    QIconEngine* clone() const override { return new SymbolEngine(drawing, color); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        Q_UNUSED(state)
        QByteArray filled = drawing;
        filled.replace("currentColor", colorFor(mode).name().toLatin1());
        QSvgRenderer(filled).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }

private:
    QColor colorFor(QIcon::Mode mode) const
    {
        const auto palette = QGuiApplication::palette();
        if (mode == QIcon::Disabled) {
            return palette.color(QPalette::Disabled, QPalette::ButtonText);
        }
        if (mode == QIcon::Selected) {
            return palette.color(QPalette::HighlightedText);
        }
        return color.value_or(palette.color(QPalette::ButtonText));
    }

    QByteArray drawing;
    std::optional<QColor> color;
};

} // namespace

QIcon symbolIcon(std::string_view name, std::optional<QColor> color)
{
    QFile file(":/symbols/" + text(name) + ".svg");
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QIcon(new SymbolEngine(file.readAll(), color));
}

} // namespace quorvel::x11
