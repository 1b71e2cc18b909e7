#pragma once

#include <QAbstractButton>
#include <string>

namespace quorvel::x11 {

// A symbol over a title; the chosen one stands on a tinted ground.
class TabButton final : public QAbstractButton {
public:
    TabButton(const std::string& title, const std::string& symbol, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    // Two lines for the title instead of one.
    void setWrapped(bool wrapped);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int symbolSide() const { return fontMetrics().height() * 3 / 2; }

    QString shownText() const;

    std::string symbol;
    bool isWrapped = false;
};

} // namespace quorvel::x11
