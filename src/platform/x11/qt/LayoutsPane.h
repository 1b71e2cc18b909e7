#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <vector>

#include "base/Subscription.h"
#include "platform/LayoutsPaneModel.h"
#include "platform/x11/qt/LaterCall.h"

namespace quorvel::x11 {

struct ToolkitHost;
class LayoutTable;

// The two tables of layouts side by side.
class LayoutsPane final : public QWidget {
public:
    LayoutsPane(LayoutsPaneModel& model, const ToolkitHost& host, QWidget* parent = nullptr);
    ~LayoutsPane() override;

private:
    void refresh();
    void showAvailable(const LayoutsPaneContent& content);
    void showSelected(const LayoutsPaneContent& content);
    void showDigits(const std::vector<SelectedLayoutRow>& rows);
    QWidget* createHeader(const LayoutSectionHeader& header);
    LayoutTable* createAvailableTable();
    LayoutTable* createSelectedTable();
    void endEditing(const std::string& layoutID, const QString& digit);

    LayoutsPaneModel& model;
    const ToolkitHost& host;
    LayoutsPaneContent shown;
    LaterCall refreshing{[this] { refresh(); }}; // a change may come from inside a signal of a widget that goes
    LayoutTable* available;
    LayoutTable* selected;
    QAbstractButton* add;
    QAbstractButton* remove;
    std::vector<QLineEdit*> digitFields; // by row of the table of selected layouts
    Subscription changes;
};

} // namespace quorvel::x11
