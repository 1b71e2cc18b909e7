#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "contract/SessionVerbs.h"
#include "platform/Updater.h"
#include "support/XClient.h"

namespace quorvel::contract {

// Acts on the shell's windows through the window manager, and on the files of a session.
class X11SessionVerbs final : public SessionVerbs {
public:
    using OpenUpdater = std::function<std::unique_ptr<Updater>()>;

    X11SessionVerbs(xtest::XClient& client, std::filesystem::path autostartDirectory, OpenUpdater openUpdater);

    bool isShown(std::string_view title) override;
    Size contentSize(std::string_view title) override;
    void resize(std::string_view title, const Size& contentSize) override;
    void focusShellWindow(std::string_view title) override;
    void closeShellWindow(std::string_view title) override;
    void removeLoginItem() override;
    Updater& reopenedUpdater() override;

private:
    // XCB_WINDOW_NONE where there is none.
    xcb_window_t windowTitled(std::string_view title);

    xtest::XClient& client;
    std::filesystem::path autostartDirectory;
    OpenUpdater openUpdater;
    std::unique_ptr<Updater> laterUpdater;
};

} // namespace quorvel::contract
