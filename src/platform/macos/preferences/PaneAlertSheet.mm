#include "platform/macos/preferences/PaneAlertSheet.h"

#include <cstddef>
#include <utility>

#include "platform/FormShape.h"
#include "platform/macos/Strings.h"
#include "platform/macos/preferences/ButtonRoles.h"

namespace quorvel::macos {

PaneAlertSheet::PaneAlertSheet(const PaneAlert& question, Actions actions, NSWindow* owner)
    : shown(question),
      actions(std::move(actions)),
      owner(Retained<NSWindow*>::retain(owner)),
      alert(Retained<NSAlert*>::adopt([[NSAlert alloc] init]))
{
    [alert.get() setMessageText:nsString(question.title)];
    [alert.get() setInformativeText:nsString(question.message)];
    for (const auto& button : question.buttons) {
        giveRole([alert.get() addButtonWithTitle:nsString(button.title)], button.role);
    }
    if (question.field) {
        addField(*question.field);
    }
    const std::function<void(NSModalResponse)> end =
        weakly.guard([this](NSModalResponse response) { answered(response); });
    [alert.get() beginSheetModalForWindow:owner
                        completionHandler:^(NSModalResponse response) {
                          end(response);
                        }];
}

PaneAlertSheet::~PaneAlertSheet()
{
    if (!isAnswered) {
        isAnswered = true;
        [owner.get() endSheet:[alert.get() window]];
    }
}

bool PaneAlertSheet::isFor(const PaneAlert& question) const
{
    return !isAnswered && isSameQuestion(question, shown);
}

void PaneAlertSheet::addField(const PaneTextField& content)
{
    constexpr NSRect fieldFrame = {{0.0, 0.0}, {230.0, 24.0}};
    field = Retained<NSTextField*>::adopt([[NSTextField alloc] initWithFrame:fieldFrame]);
    [field.get() setStringValue:nsString(content.text)];
    [[field.get() cell] setPlaceholderString:nsString(content.placeholder)];
    [field.get() setAccessibilityLabel:nsString(content.placeholder)];
    editing = std::make_unique<FieldEditing>(
        field.get(),
        FieldEditing::Actions{
            .changed = [this, id = content.id](const std::string& text) { actions.setText(id, text); }, .ended = {}});
    [alert.get() setAccessoryView:field.get()];
    [[alert.get() window] setInitialFirstResponder:field.get()];
}

void PaneAlertSheet::answered(NSModalResponse response)
{
    const NSInteger index = response - NSAlertFirstButtonReturn;
    if (std::exchange(isAnswered, true) || index < 0 || index >= static_cast<NSInteger>(shown.buttons.size())) {
        return;
    }
    actions.press(shown.buttons[static_cast<std::size_t>(index)].id);
}

} // namespace quorvel::macos
