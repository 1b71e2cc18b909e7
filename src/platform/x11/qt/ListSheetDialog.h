#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/ListSheet.h"
#include "platform/x11/qt/KeptFocus.h"

namespace quorvel::x11 {

// A list over the preferences window. Whatever closes it presses the sheet's own button.
class ListSheetDialog final : public QDialog {
public:
    using Press = std::function<void(const std::string& buttonId)>;

    ListSheetDialog(const ListSheet& sheet, Press press, QWidget* parent);

    void showSheet(const ListSheet& sheet);
    void reject() override;

private:
    QWidget* createRow(const ListSheetRow& row);
    QWidget* createPlaceholder(const ListSheetPlaceholder& placeholder);
    void fillList(const ListSheet& sheet);
    std::vector<FocusRow> focusRows() const;

    Press press;
    ListSheet shown;
    QLabel* title;
    QWidget* list = nullptr;
    std::vector<std::pair<std::string, QWidget*>> rows; // by their ids, as the list shows them
    QLabel* footer;
    QAbstractButton* closeButton;
};

} // namespace quorvel::x11
