#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "system/GlobalEventBlocker.h"

namespace quorvel {

// A blocker over an application that keys go to.
class EventBlockerFixture : public testing::Test {
protected:
    CapturedKeyHandler collect()
    {
        return [this](const CapturedKey& key) { captured.push_back(key); };
    }

    std::vector<KeyCode> capturedCodes() const
    {
        std::vector<KeyCode> codes;
        codes.reserve(captured.size());
        for (const auto& key : captured) {
            codes.push_back(key.keyCode);
        }
        return codes;
    }

    std::vector<KeyCode> codesReceivedBy(const SimulatedApplication& application) const
    {
        std::vector<KeyCode> codes;
        for (const auto& event : application.receivedKeys()) {
            codes.push_back(event.keyCode);
        }
        return codes;
    }

    // The panel, or null while none was created.
    std::shared_ptr<const OverlayWindowRecord> panel() const
    {
        const auto windows = desktop.overlayWindows.all();
        return windows.empty() ? nullptr : windows.front();
    }

    bool isPanelVisible() const { return panel() && panel()->isVisible; }

    std::optional<ProcessId> frontmost()
    {
        const auto application = desktop.workspace.frontmostApplication();
        return application ? std::optional(application->process) : std::nullopt;
    }

    void startWithHandler(const KeyCodeSet& keyCodes)
    {
        blocker->start();
        blocker->setBlockedKeyCodes(keyCodes);
        blocker->setOnBlockKey(collect());
    }

    // No tap can be had, so the panel stands in.
    void startRefused(const KeyCodeSet& keyCodes)
    {
        desktop.eventTaps.refuseTaps();
        startWithHandler(keyCodes);
    }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    SimulatedApplication& editor = desktop.launch("Editor");
    std::unique_ptr<GlobalEventBlocker> blocker = std::make_unique<GlobalEventBlocker>(platform);
    std::vector<CapturedKey> captured;
};

} // namespace quorvel
