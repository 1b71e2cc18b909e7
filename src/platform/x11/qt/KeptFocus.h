#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "platform/KeptPlace.h"

namespace quorvel::x11 {

// Controls that stand for the same thing, one behind the other: those of a row, the buttons at a foot.
struct FocusRow {
    FocusRow(std::string id, const std::vector<QWidget*>& widgets);

    std::string id;
    std::vector<QWidget*> controls; // of the widgets and inside of them, those that take the keyboard
};

// Where the keyboard is among widgets that are about to be replaced by others.
class KeptFocus {
public:
    explicit KeptFocus(const std::vector<FocusRow>& rows);

    // Gives the keyboard to the same control, or where that has gone or is disabled, to one near it. Answers which;
    // null where the keyboard was elsewhere.
    QWidget* restore(const std::vector<FocusRow>& rows) const;

private:
    KeptPlace place;
};

} // namespace quorvel::x11
