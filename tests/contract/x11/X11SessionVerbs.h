#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "base/Subscription.h"
#include "contract/SessionVerbs.h"
#include "platform/MainQueue.h"
#include "platform/Updater.h"
#include "support/TestDisplay.h"

namespace quorvel::contract {

// Acts on the shell's windows through the window manager, and on the files of a session.
class X11SessionVerbs final : public SessionVerbs {
public:
    using OpenUpdater = std::function<std::unique_ptr<Updater>()>;

    X11SessionVerbs(xtest::TestDisplay& display, MainQueue& mainQueue, std::filesystem::path autostartDirectory,
                    OpenUpdater openUpdater);

    bool isShown(std::string_view title) override;
    Size contentSize(std::string_view title) override;
    void resize(std::string_view title, const Size& contentSize) override;
    void focusShellWindow(std::string_view title) override;
    void closeShellWindow(std::string_view title) override;
    void answerNextAlert(AlertAnswer answer) override;
    void removeLoginItem() override;
    Updater& reopenedUpdater() override;

private:
    // XCB_WINDOW_NONE where there is none.
    xcb_window_t windowTitled(std::string_view title);

    xtest::TestDisplay& display;
    xtest::XClient& client = display.client;
    MainQueue& mainQueue;
    std::filesystem::path autostartDirectory;
    OpenUpdater openUpdater;
    std::unique_ptr<Updater> laterUpdater;
    Subscription person; // waits for the alert that is to be answered
};

} // namespace quorvel::contract
