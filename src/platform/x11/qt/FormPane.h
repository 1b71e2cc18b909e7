#pragma once

#include <QAbstractButton>
#include <QBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QWidget>
#include <map>
#include <string>
#include <vector>

#include "base/Subscription.h"
#include "platform/FormModel.h"
#include "platform/FormShape.h"
#include "platform/x11/qt/KeptFocus.h"
#include "platform/x11/qt/LaterCall.h"
#include "platform/x11/qt/controls/FormControlWidget.h"

namespace quorvel::x11 {

class ListSheetDialog;
class PaneAlertDialog;
class PreviewWidget;

// A form with everything that lies over it. Its groups stand in one column or, where they are many, in two; a group
// with a preview stays in sight under them while they scroll.
class FormPane final : public QWidget {
public:
    FormPane(FormModel& model, const ToolkitHost& host, QWidget* parent = nullptr);
    ~FormPane() override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct RowWidgets {
        FormControlWidget* control = nullptr;
        QLabel* title = nullptr;
        QLabel* help = nullptr;
    };

    void refresh();
    void build(const Form& form);
    std::vector<FocusRow> focusRows(const Form& form) const;
    QWidget* createContent(const Form& form, Columns columns);
    void addGroups(const Form& form, Columns columns, QBoxLayout& column);
    QWidget* createGroup(const FormGroup& group, QWidget* parent);
    void addRow(const FormRow& row, QBoxLayout& box, QWidget* parent);
    void showForm(const Form& form);
    void fitPreview();
    void showOverlays(const Form& form);
    QWidget* createFoot(const Form& form);

    FormModel& model;
    const ToolkitHost& host;
    Form shown;
    LaterCall refreshing{[this] { refresh(); }}; // a change may come from inside a signal of a widget that goes
    bool isBuildDue = true;
    QWidget* body = nullptr;
    QScrollArea* area = nullptr;
    PreviewWidget* preview = nullptr; // null where the form has none
    int aroundPreview = 0;            // the height of all that neither scrolls nor is the preview
    std::map<std::string, RowWidgets> rows;
    std::vector<QAbstractButton*> buttons;
    QPointer<ListSheetDialog> sheet;
    QPointer<PaneAlertDialog> alert;
    Subscription changes;
};

} // namespace quorvel::x11
