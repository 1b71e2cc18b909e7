#pragma once

#include <QAbstractButton>
#include <string>

namespace quorvel::x11 {

// A symbol over a title; the chosen one stands on a tinted ground.
class TabButton final : public QAbstractButton {
public:
    TabButton(const std::string& title, const std::string& symbol, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int symbolSide() const { return fontMetrics().height() * 3 / 2; }

    std::string symbol;
};

} // namespace quorvel::x11
