#include "platform/x11/qt/LayoutCellWidget.h"

#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <utility>

#include "platform/x11/qt/DrawListPainting.h"
#include "platform/x11/qt/GroupFrame.h"
#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

namespace {

constexpr int margin = 8;

// The picture with rounded corners, a hairline and a faint shadow; drawn anew where the window's scale is another one.
class Thumbnail final : public QWidget {
public:
    Thumbnail(const LayoutCell& cell, const TextLayouts& layouts, QWidget* parent)
        : QWidget(parent), pictureSize(cell.thumbnailSize), content(cell.thumbnail), layouts(layouts)
    {
        constexpr float shadowAlpha = 0.15F;
        setFixedSize(QSizeF(pictureSize.width, pictureSize.height).toSize());
        auto* const shadow = new QGraphicsDropShadowEffect(this);
        shadow->setBlurRadius(1.0);
        shadow->setOffset(0.0);
        shadow->setColor(QColor::fromRgbF(0.0F, 0.0F, 0.0F, shadowAlpha));
        setGraphicsEffect(shadow);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        constexpr double radius = 6.0;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath outline;
        outline.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        painter.setClipPath(outline);
        if (image.isNull() || image.devicePixelRatio() != devicePixelRatioF()) {
            image = drawnImage(content, pictureSize, devicePixelRatioF(), layouts);
        }
        painter.drawImage(0, 0, image);
        painter.setClipping(false);
        painter.strokePath(outline, QPen(separatorColor(palette()), 1.0));
    }

private:
    Size pictureSize;
    DrawList content;
    const TextLayouts& layouts;
    QImage image;
};

// A field whose edge can be seen on dark ground, too.
class DigitField final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        QLineEdit::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            event->accept(); // it ends the editing, and is not for the row around the field
        }
    }

    void paintEvent(QPaintEvent* event) override
    {
        constexpr double radius = 2.0;
        QLineEdit::paintEvent(event);
        if (!hasFocus()) {
            QColor edge = palette().color(QPalette::Text);
            edge.setAlphaF(0.3F);
            QPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QPen(edge, 1.0));
            painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        }
    }
};

// Cut with an ellipsis where the row is too narrow.
class ElidedLabel final : public QWidget {
public:
    ElidedLabel(QString content, QWidget* parent) : QWidget(parent), content(std::move(content))
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }

    QSize sizeHint() const override { return {fontMetrics().horizontalAdvance(content) + 1, fontMetrics().height()}; }
    QSize minimumSizeHint() const override { return {fontMetrics().averageCharWidth() * 4, fontMetrics().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeading,
                         fontMetrics().elidedText(content, Qt::ElideRight, width()));
    }

private:
    QString content;
};

} // namespace

LayoutCellWidget::LayoutCellWidget(const LayoutCell& cell, const TextLayouts& layouts, QWidget* parent)
    : QWidget(parent)
{
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(margin, 0, margin, 0);
    line->setSpacing(margin);
    auto* const thumbnail = new Thumbnail(cell, layouts, this);
    auto* const name = new ElidedLabel(text(cell.name), this);
    for (QWidget* const passive : {static_cast<QWidget*>(thumbnail), static_cast<QWidget*>(name)}) {
        passive->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    line->addWidget(thumbnail);
    line->addWidget(name, 1);
    setToolTip(asMarkup(cell.name));
}

QLineEdit* LayoutCellWidget::addDigitField(const DigitFieldContent& content, std::function<void(const QString&)> ended)
{
    constexpr int fieldWidth = 30;
    auto* const field = new DigitField(content.digit, this);
    QFont font = field->font();
    font.setWeight(QFont::DemiBold);
    field->setFont(font);
    field->setFixedWidth(std::max(fieldWidth, fontMetrics().horizontalAdvance("00") * 2));
    field->setAlignment(Qt::AlignCenter);
    field->setToolTip(content.toolTip);
    field->setAccessibleName(content.accessibleName);
    field->setAccessibleDescription(content.toolTip);
    connect(field, &QLineEdit::editingFinished, field, [field, ended = std::move(ended)] {
        if (field->isModified()) { // not so where the keyboard has only passed by
            ended(field->text());
        }
    });
    layout()->addWidget(field);
    return field;
}

} // namespace quorvel::x11
