#pragma once

#include <QLineEdit>
#include <QWidget>
#include <functional>

#include "platform/LayoutsPaneModel.h"

namespace quorvel::x11 {

class TextLayouts;

// The picture and the name of a layout, and in the table of selected ones a field for its digit. But for the field,
// the mouse belongs to the table underneath.
class LayoutCellWidget final : public QWidget {
public:
    LayoutCellWidget(const LayoutCell& cell, const TextLayouts& layouts, QWidget* parent);

    struct DigitFieldContent {
        QString digit;
        QString accessibleName;
        QString toolTip;
    };

    // Adds the field. `ended` is called with its text when editing ends.
    QLineEdit* addDigitField(const DigitFieldContent& content, std::function<void(const QString&)> ended);
};

} // namespace quorvel::x11
