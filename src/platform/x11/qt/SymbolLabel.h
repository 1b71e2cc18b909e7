#pragma once

#include <QColor>
#include <QIcon>
#include <QLabel>
#include <QPalette>
#include <optional>
#include <string>
#include <string_view>

namespace quorvel::x11 {

// A symbol that is no button, a square of that many pixels: in the colour given, else in the palette's one for its
// role, whichever holds.
class SymbolLabel final : public QLabel {
public:
    SymbolLabel(int side, QPalette::ColorRole role, QWidget* parent);

    void showSymbol(std::string_view name, std::optional<QColor> color = {});

    QSize sizeHint() const override { return {side, side}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createIcon();

    int side;
    std::string symbol;
    std::optional<QColor> color;
    QIcon icon;
};

} // namespace quorvel::x11
