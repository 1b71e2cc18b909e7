#pragma once

#include <QAbstractButton>

#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

// A shortcut as a key cap, with the buttons that record and clear it.
class ShortcutWidget final : public FormControlWidget {
public:
    ShortcutWidget(const ControlPane& pane, const FormRow& row, QWidget* parent);

    void showRow(const FormRow& row) override;

private:
    class KeyCap;

    KeyCap* keyCap;
    QAbstractButton* record;
    QAbstractButton* clear;
    int widestRecord = 0;
};

} // namespace quorvel::x11
