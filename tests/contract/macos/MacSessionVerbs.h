#pragma once

#include "contract/simulated/SimulatedSessionVerbs.h"

namespace quorvel::contract {

// What a person does to AppKit's windows, and to the session in memory.
class MacSessionVerbs final : public SessionVerbs {
public:
    explicit MacSessionVerbs(SimulatedDesktop& desktop) : session(desktop) {}

    bool isShown(std::string_view title) override;
    Size contentSize(std::string_view title) override;
    void resize(std::string_view title, const Size& contentSize) override;
    void focusShellWindow(std::string_view title) override;
    void closeShellWindow(std::string_view title) override;
    void answerNextAlert(AlertAnswer answer) override { session.answerNextAlert(answer); }
    void removeLoginItem() override { session.removeLoginItem(); }
    Updater& reopenedUpdater() override { return session.reopenedUpdater(); }

private:
    SimulatedSessionVerbs session;
};

} // namespace quorvel::contract
