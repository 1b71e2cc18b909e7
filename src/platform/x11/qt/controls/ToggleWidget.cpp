#include "platform/x11/qt/controls/ToggleWidget.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QSignalBlocker>

#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

namespace {

// A check box, also to screen readers, with the looks of a switch.
class Switch final : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

    QSize sizeHint() const override
    {
        const int height = fontMetrics().height() + fontMetrics().height() / 3;
        return {height * 7 / 4, height};
    }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        constexpr double focusInset = 2.0;
        constexpr double knobInset = 2.0;
        const auto group = isEnabled() ? QPalette::Normal : QPalette::Disabled;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF track = QRectF(rect()).adjusted(focusInset, focusInset, -focusInset, -focusInset);
        const double radius = track.height() / 2.0;

        QColor ground = palette().color(group, QPalette::WindowText);
        ground.setAlphaF(0.28F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isChecked() ? palette().color(group, QPalette::Highlight) : ground);
        painter.drawRoundedRect(track, radius, radius);

        const double side = track.height() - 2.0 * knobInset;
        const double x = isChecked() ? track.right() - knobInset - side : track.left() + knobInset;
        painter.setBrush(Qt::white);
        painter.drawEllipse(QRectF(x, track.top() + knobInset, side, side));
        if (hasFocus()) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
            painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius + focusInset, radius + focusInset);
        }
    }
};

} // namespace

ToggleWidget::ToggleWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent), toggle(new Switch(this))
{
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(toggle);
    setFocusProxy(toggle);
    connect(toggle, &QAbstractButton::toggled, this, [this](bool isOn) { send(isOn); });
}

void ToggleWidget::showRow(const FormRow& row)
{
    const QSignalBlocker quiet(toggle);
    toggle->setChecked(std::get<ToggleControl>(row.control).isOn);
    toggle->setAccessibleName(text(row.accessibleName));
    toggle->setEnabled(row.isEnabled);
    toggle->update();
}

} // namespace quorvel::x11
