#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "platform/PaneAlert.h"

namespace quorvel::x11 {

// A question over a pane or a sheet. Whatever closes it presses the button that cancels.
class PaneAlertDialog final : public QDialog {
public:
    using Press = std::function<void(const std::string& buttonId)>;
    using SetText = std::function<void(const std::string& fieldId, const std::string& text)>;

    PaneAlertDialog(const PaneAlert& alert, Press press, const SetText& setText, QWidget* parent);

    // Whether this asks that question; what stands in its text field does not matter.
    bool isFor(const PaneAlert& alert) const;

    void reject() override;

private:
    Press press;
    PaneAlert shown;
};

} // namespace quorvel::x11
