#pragma once

#include <memory>
#include <utility>

#include "platform/OverlayWindows.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

// Serves as window and as panel; only a panel is handed out with the operations of one.
class FaultyOverlayWindow final : public OverlayPanel {
public:
    FaultyOverlayWindow(std::unique_ptr<OverlayWindow> real, OverlayPanel* panel, PortFaults& faults)
        : real(std::move(real)), panel(panel), faults(faults)
    {}

    ScreenRect frame() const override { return real->frame(); }

    void setFrame(const ScreenRect& frame) override
    {
        faults.attemptEffect("OverlayWindow.setFrame", [&] { real->setFrame(frame); });
    }

    void setFrameAutosaveName(std::string_view name) override
    {
        faults.attemptEffect("OverlayWindow.setFrameAutosaveName", [&] { real->setFrameAutosaveName(name); });
    }

    void setContent(DrawList content) override
    {
        faults.attemptEffect("OverlayWindow.setContent", [&] { real->setContent(std::move(content)); });
    }

    void setClipsToBounds(bool clips) override
    {
        faults.attemptEffect("OverlayWindow.setClipsToBounds", [&] { real->setClipsToBounds(clips); });
    }

    void orderFrontRegardless() override
    {
        faults.attemptEffect("OverlayWindow.orderFrontRegardless", [&] { real->orderFrontRegardless(); });
    }

    void orderOut() override
    {
        faults.attemptEffect("OverlayWindow.orderOut", [&] { real->orderOut(); });
    }

    void close() override
    {
        faults.attemptEffect("OverlayWindow.close", [&] { real->close(); });
    }

    bool isVisible() const override { return real->isVisible(); }
    NotificationObject notificationObject() const override { return real->notificationObject(); }

    void makeKey() override
    {
        faults.attemptEffect("OverlayPanel.makeKey", [&] { panel->makeKey(); });
    }

    bool isKey() const override { return panel->isKey(); }

private:
    std::unique_ptr<OverlayWindow> real;
    OverlayPanel* panel; // the same, if it is one
    PortFaults& faults;
};

class FaultyOverlayWindows final : public OverlayWindows {
public:
    FaultyOverlayWindows(OverlayWindows& real, PortFaults& faults) : real(real), faults(faults) {}

    std::unique_ptr<OverlayWindow> createWindow(const WindowDescription& description) override
    {
        return std::make_unique<FaultyOverlayWindow>(real.createWindow(description), nullptr, faults);
    }

    std::unique_ptr<OverlayPanel> createPanel(const WindowDescription& description,
                                              std::function<void(const KeyEvent&)> onKeyDown) override
    {
        auto panel = real.createPanel(description, std::move(onKeyDown));
        auto* const same = panel.get();
        return std::make_unique<FaultyOverlayWindow>(std::move(panel), same, faults);
    }

private:
    OverlayWindows& real;
    PortFaults& faults;
};

} // namespace quorvel
