#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/Subscription.h"
#include "platform/FormModel.h"
#include "platform/FormShape.h"
#include "platform/KeptPlace.h"
#include "platform/macos/preferences/FormGroupView.h"
#include "platform/macos/preferences/LaterCall.h"
#include "platform/macos/preferences/Pane.h"
#include "platform/macos/preferences/PaneButtonView.h"

namespace quorvel::macos {

class ListSheetWindow;
class PaneAlertSheet;

// A form with everything that lies over it. Its groups stand in one column or, where they are many, in two; a group
// with a preview stays in sight under them while they scroll.
class FormPane final : public Pane {
public:
    // `narrowest` is the width that the pane has in the smallest window.
    FormPane(FormModel& model, MainQueue& mainQueue, double narrowest);
    ~FormPane() override;

    NSView* view() const override { return box.view(); }

private:
    using Groups = std::vector<std::size_t>; // as indexes

    void refresh();
    void build(const Form& form);
    void clear();
    bool fits(const std::vector<Groups>& candidate) const;
    void showForm(const Form& form);
    void showOverlays(const Form& form);

    // What takes the keyboard, row by row; that of the foot has no id.
    struct KeyRow {
        std::string id;
        std::vector<NSControl*> views;
    };
    std::vector<KeyRow> keyRows() const;
    KeptPlace placeOfKeyboard() const;
    static std::vector<FocusableRow> focusable(const std::vector<KeyRow>& rows);

    void layOut() const;
    double layOutFoot(double bottom) const;
    double layOutPreviews(double bottom) const;
    void layOutColumns() const;

    FormModel& model;
    double narrowest;
    Form shown;
    bool isBuildDue = true;

    PaneBox box;
    PaneBox columnsBox; // scrolls
    Retained<NSScrollView*> scroll;
    Retained<NSBox*> separator; // where what scrolls ends
    Label note;
    Label footnote;
    std::vector<std::unique_ptr<FormGroupView>> groups;
    std::vector<Groups> columns;
    Groups previews;
    std::vector<std::unique_ptr<PaneButtonView>> buttons;

    std::unique_ptr<ListSheetWindow> sheet;
    std::unique_ptr<PaneAlertSheet> alert; // over the sheet, if that is there
    LaterCall refreshing;                  // a change may come from inside the action of a control that goes
    Subscription changes;
};

} // namespace quorvel::macos
