#pragma once

#include "platform/Alerts.h"

namespace quorvel::x11 {

class ToolkitUi;
class X11Bundle;

// Message boxes of the toolkit.
class X11Alerts final : public Alerts {
public:
    X11Alerts(const X11Bundle& bundle, ToolkitUi& toolkit) : bundle(bundle), toolkit(toolkit) {}

    std::size_t runModal(const Alert& alert) override;

private:
    const X11Bundle& bundle;
    ToolkitUi& toolkit;
};

} // namespace quorvel::x11
