#pragma once

#include <QApplication>
#include <QMenu>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/x11/desktop/ToolkitUi.h"
#include "platform/x11/qt/KeyDownFilter.h"
#include "platform/x11/qt/QtStyle.h"

namespace quorvel::x11 {

// Qt's widgets under the program's own main loop: Qt's event dispatcher hangs its sources into GLib's default main
// context, which that loop turns.
class QtToolkit final : public ToolkitUi {
public:
    QtToolkit(const char* displayName, const ToolkitHost& host);
    ~QtToolkit() override;

    void openMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) override;
    std::size_t runAlert(const Alert& alert, const std::filesystem::path& icon) override;
    std::unique_ptr<ToolkitWindow> createPreferencesWindow(PreferencesWindowModel& model,
                                                           ToolkitWindowCallbacks callbacks) override;
    std::unique_ptr<ToolkitWindow> createAboutWindow(const AboutContent& content) override;
    void endInnerLoops() override;

private:
    // Qt wants the arguments of a program, changes them, and keeps pointing at them.
    struct Arguments {
        explicit Arguments(const char* displayName);

        std::vector<std::string> texts;
        std::vector<char*> pointers;
        int count = 0;
    };

    const ToolkitHost& host;
    Arguments arguments;
    QApplication application;
    KeyDownFilter keyDownFilter;
    std::optional<QtStyle> style; // nothing where Qt follows the desktop by itself
    std::unique_ptr<QMenu> menu;  // the one that was opened last
};

} // namespace quorvel::x11
