#pragma once

#include <QWidget>

namespace quorvel::x11 {

// A rounded ground for the rows of a group, a shade apart from the window's.
class GroupFrame final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A faint line between two rows.
class Separator final : public QWidget {
public:
    explicit Separator(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

// The colour of faint lines.
QColor separatorColor(const QPalette& palette);

} // namespace quorvel::x11
