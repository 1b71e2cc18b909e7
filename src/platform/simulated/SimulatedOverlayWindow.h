#pragma once

#include <memory>

#include "platform/OverlayWindows.h"
#include "platform/simulated/OverlayWindowRecord.h"

namespace quorvel {

class SimulatedOverlayWindows;

// Serves as window and as panel; only a panel is handed out with the operations of one.
class SimulatedOverlayWindow final : public OverlayPanel {
public:
    SimulatedOverlayWindow(SimulatedOverlayWindows& owner, std::shared_ptr<OverlayWindowRecord> record);
    SimulatedOverlayWindow(const SimulatedOverlayWindow&) = delete;
    SimulatedOverlayWindow& operator=(const SimulatedOverlayWindow&) = delete;
    ~SimulatedOverlayWindow() override;

    ScreenRect frame() const override;
    void setFrame(const ScreenRect& frame) override;
    void setFrameAutosaveName(std::string_view name) override;
    void setContent(DrawList content) override;
    void setClipsToBounds(bool clips) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    void close() override;
    bool isVisible() const override;
    NotificationObject notificationObject() const override;
    void makeKey() override;
    bool isKey() const override;

private:
    SimulatedOverlayWindows& owner;
    std::shared_ptr<OverlayWindowRecord> record;
};

} // namespace quorvel
