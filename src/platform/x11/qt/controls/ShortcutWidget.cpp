#include "platform/x11/qt/controls/ShortcutWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "platform/x11/qt/PaneButtons.h"
#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

class ShortcutWidget::KeyCap final : public QLabel {
public:
    explicit KeyCap(QWidget* parent) : QLabel(parent)
    {
        const int height = fontMetrics().height();
        setAlignment(Qt::AlignCenter);
        setMinimumSize(fontMetrics().horizontalAdvance(QString::fromUtf8("⌘⇧⌥⌃Space")) + height, height * 3 / 2);
    }

    void setRecording(bool recording)
    {
        isRecording = recording;
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        constexpr double radius = 5.0;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor edge = palette().color(QPalette::WindowText);
        edge.setAlphaF(0.25F);
        painter.setPen(isRecording ? QPen(palette().color(QPalette::Highlight), 2.0) : QPen(edge, 1.0));
        painter.setBrush(palette().color(QPalette::Base));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
        QLabel::paintEvent(event);
    }

private:
    bool isRecording = false;
};

ShortcutWidget::ShortcutWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
    : FormControlWidget(pane, row, parent), keyCap(new KeyCap(this))
{
    const auto& control = std::get<ShortcutControl>(row.control);
    const auto pressButton = [this](const std::string& id) { press(id); };
    record = createPaneButton(control.record, pressButton, this);
    clear = createPaneButton(control.clear, pressButton, this);
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(keyCap);
    box->addWidget(record);
    box->addWidget(clear);
    setFocusProxy(record);
}

void ShortcutWidget::showRow(const FormRow& row)
{
    const auto& control = std::get<ShortcutControl>(row.control);
    keyCap->setText(text(control.text));
    keyCap->setToolTip(text(control.spelledOut));
    keyCap->setAccessibleName(text(row.accessibleName));
    keyCap->setAccessibleDescription(text(control.spelledOut.empty() ? control.text : control.spelledOut));
    keyCap->setRecording(control.isRecording);
    showPaneButton(*record, control.record);
    showPaneButton(*clear, control.clear);
    // One width for all titles that the button has had, so that nothing moves when a recording starts.
    widestRecord = std::max(widestRecord, record->minimumWidth());
    record->setMinimumWidth(widestRecord);
    setEnabled(row.isEnabled);
}

} // namespace quorvel::x11
