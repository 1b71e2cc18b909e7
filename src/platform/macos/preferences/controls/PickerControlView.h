#pragma once

#include <string>
#include <vector>

#include "platform/macos/Retained.h"
#include "platform/macos/preferences/ControlAction.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A pop-up button.
class PickerControlView final : public FormControlView {
public:
    PickerControlView(FormModel& model, const FormRow& row);

    void show(const FormRow& row) override;
    NSView* view() const override { return popUp.get(); }
    std::vector<NSControl*> keyViews() const override { return {popUp.get()}; }

private:
    void setChoices(const std::vector<std::string>& choices);
    void sendChoice() const;

    Retained<NSPopUpButton*> popUp;
    ControlAction action;
    std::vector<std::string> shownChoices;
};

} // namespace quorvel::macos
