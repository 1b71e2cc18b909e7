#pragma once

#include "contract/SessionVerbs.h"

namespace quorvel {

class SimulatedDesktop;

namespace contract {

class SimulatedSessionVerbs final : public SessionVerbs {
public:
    explicit SimulatedSessionVerbs(SimulatedDesktop& desktop) : desktop(desktop) {}

    bool isShown(std::string_view title) override;
    Size contentSize(std::string_view title) override;
    void resize(std::string_view title, const Size& contentSize) override;
    void focusShellWindow(std::string_view title) override;
    void closeShellWindow(std::string_view title) override;
    void answerNextAlert(AlertAnswer answer) override;
    void removeLoginItem() override;
    Updater& reopenedUpdater() override;

private:
    SimulatedDesktop& desktop;
};

} // namespace contract
} // namespace quorvel
