#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::x11 {

// Loads the toolkit when it is needed for the first time. Qt alone takes more memory than everything else together, and
// most runs of the program never show a menu or an alert.
//
// Where the module cannot be loaded, one line on standard error says so, once; then menus and windows do not open and
// alerts are answered by their last button.
class ToolkitModule final : public ToolkitUi {
public:
    ToolkitModule(std::filesystem::path file, std::string displayName, ToolkitHost host);

    // The module that belongs to the running program, in the build tree and installed.
    static std::filesystem::path standardFile();

    bool isLoaded() const { return toolkit != nullptr; }

    void openMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) override;
    std::size_t runAlert(const Alert& alert, const std::filesystem::path& icon) override;
    std::unique_ptr<ToolkitWindow> createPreferencesWindow(PreferencesWindowModel& model,
                                                           ToolkitWindowCallbacks callbacks) override;
    std::unique_ptr<ToolkitWindow> createAboutWindow(const AboutContent& content) override;
    void endInnerLoops() override;

private:
    enum class State { untried, tried };

    ToolkitUi* loaded();
    std::unique_ptr<ToolkitUi> load() const;

    std::filesystem::path file;
    std::string displayName;
    ToolkitHost host;
    State state = State::untried;
    std::unique_ptr<ToolkitUi> toolkit;
};

} // namespace quorvel::x11
