#include "platform/x11/qt/controls/ColorWidget.h"

#include <QHBoxLayout>
#include <QHideEvent>
#include <QPainter>
#include <QPainterPath>
#include <utility>

#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

namespace {

class Swatch final : public QPushButton {
public:
    Swatch(const QColor& color, QWidget* parent) : QPushButton(parent), color(color) {}

    QSize sizeHint() const override
    {
        const int height = fontMetrics().height() + fontMetrics().height() / 2;
        return {height * 2, height};
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        constexpr double radius = 5.0;
        constexpr double focusInset = 2.5;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF area = QRectF(rect()).adjusted(focusInset, focusInset, -focusInset, -focusInset);
        QPainterPath outline;
        outline.addRoundedRect(area, radius, radius);
        painter.setClipPath(outline);
        paintChequers(painter, area);
        painter.fillRect(area, isEnabled() ? color : QColor(Qt::transparent));
        painter.setClipping(false);
        QColor edge = palette().color(QPalette::WindowText);
        edge.setAlphaF(0.35F);
        painter.strokePath(outline, QPen(edge, 1.0));
        if (hasFocus()) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
            painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius + 1.0, radius + 1.0);
        }
    }

private:
    static void paintChequers(QPainter& painter, const QRectF& area)
    {
        constexpr int side = 6;
        painter.fillRect(area, Qt::white);
        for (int y = 0; y * side < area.height(); ++y) {
            for (int x = y % 2; x * side < area.width(); x += 2) {
                painter.fillRect(QRectF(area.x() + x * side, area.y() + y * side, side, side), QColor(204, 204, 204));
            }
        }
    }

    const QColor& color; // of the widget around this
};

QColor qtColor(const Color& color)
{
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

} // namespace

ColorWidget::ColorWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent), swatch(new Swatch(color, this))
{
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(swatch);
    swatch->setAutoDefault(false);
    setFocusProxy(swatch);
    connect(swatch, &QPushButton::clicked, this, [this] { openDialog(); });
}

ColorWidget::~ColorWidget()
{
    dropDialog();
}

void ColorWidget::showRow(const FormRow& row)
{
    const auto& control = std::get<ColorControl>(row.control);
    color = qtColor(control.color);
    stored = control.stored;
    swatch->setAccessibleName(text(row.accessibleName));
    swatch->setAccessibleDescription(text(control.text));
    swatch->setToolTip(text(control.text));
    swatch->setEnabled(row.isEnabled);
    swatch->update();
}

// Another tab is chosen, or the window closes; a minimized window keeps its dialogs.
void ColorWidget::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) {
        dropDialog();
    }
    FormControlWidget::hideEvent(event);
}

void ColorWidget::openDialog()
{
    if (dialog) {
        dialog->raise();
        dialog->activateWindow();
        return;
    }
    earlier.reset();
    dialog = new QColorDialog(color, window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::ShowAlphaChannel);
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setWindowTitle(swatch->accessibleName());
    for (auto* const button : dialog->findChildren<QPushButton*>()) {
        button->setIcon({}); // as everywhere else in these windows
    }
    connect(dialog, &QColorDialog::currentColorChanged, this, [this](const QColor& chosen) { choose(chosen); });
    // Qt announces changes only, but whoever accepts the colour that is shown wants that one stored.
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor& chosen) { choose(chosen); });
    connect(dialog, &QColorDialog::rejected, this, [this] { takeBack(); });
    dialog->show();
}

void ColorWidget::choose(const QColor& chosen)
{
    if (chosen.isValid()) {
        earlier = earlier.value_or(stored);
        send(Color::bytes(chosen.red(), chosen.green(), chosen.blue(), chosen.alpha()));
    }
}

void ColorWidget::takeBack()
{
    if (earlier) {
        send(*std::exchange(earlier, std::nullopt));
    }
}

void ColorWidget::dropDialog()
{
    if (dialog) {
        dialog->disconnect(this);
        delete dialog;
    }
}

} // namespace quorvel::x11
