#pragma once

#include <memory>
#include <vector>

#include "base/Subscription.h"
#include "platform/LayoutsPaneModel.h"
#include "platform/macos/preferences/FieldEditing.h"
#include "platform/macos/preferences/LaterCall.h"
#include "platform/macos/preferences/LayoutTable.h"
#include "platform/macos/preferences/Pane.h"
#include "platform/macos/preferences/PaneBox.h"
#include "platform/macos/preferences/PaneButtonView.h"
#include "platform/macos/preferences/PaneLabels.h"
#include "platform/macos/preferences/SectionHeaderView.h"

namespace quorvel::macos {

// The two tables of layouts side by side.
class LayoutsPane final : public Pane {
public:
    LayoutsPane(LayoutsPaneModel& model, MainQueue& mainQueue);

    NSView* view() const override { return box.view(); }

private:
    struct DigitField {
        Retained<NSTextField*> view;
        std::unique_ptr<FieldEditing> editing;
    };

    LayoutsPane(LayoutsPaneModel& model, MainQueue& mainQueue, const LayoutsPaneContent& content);

    LayoutTable::Actions availableActions();
    LayoutTable::Actions selectedActions();
    void refresh();
    void showAvailable(const LayoutsPaneContent& content);
    void showSelected(const LayoutsPaneContent& content);
    void showDigits(const std::vector<SelectedLayoutRow>& rows);
    Retained<NSView*> createSelectedView(const SelectedLayoutRow& row, const LayoutsPaneContent& content);
    void finishEditing() const;
    void endEditing(const std::string& layoutID, const std::string& digit);
    void layOut() const;

    LayoutsPaneModel& model;
    LayoutsPaneContent shown;
    PaneBox box;
    Label title;
    Label availableTitle;
    Label selectedTitle;
    Label tip;
    PaneButtonView add;
    PaneButtonView remove;
    std::vector<std::unique_ptr<SectionHeaderView>> headers;
    std::vector<DigitField> digitFields; // by row of the table of selected layouts
    LayoutTable available;
    LayoutTable selected;
    LaterCall refreshing; // a change may come from inside the action of a view that goes
    Subscription changes;
};

} // namespace quorvel::macos
