#pragma once

#include <QColor>
#include <QColorDialog>
#include <QPointer>
#include <QPushButton>
#include <optional>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A swatch over a chequered ground. A press opens a colour dialog whose colour holds while it is being chosen;
// cancelling it takes that back. The dialog goes with the swatch, which leaves the colour chosen.
class ColorWidget final : public FormControlWidget {
public:
    ColorWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);
    ~ColorWidget() override;

    void showRow(const FormRow& row) override;

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void openDialog();
    void choose(const QColor& chosen);
    void takeBack();
    void dropDialog();

    QPushButton* swatch;
    QColor color;
    StoredValue stored;
    QPointer<QColorDialog> dialog;      // while it is open
    std::optional<StoredValue> earlier; // what was stored when the dialog opened, once something has been chosen in it
};

} // namespace quorvel::x11
