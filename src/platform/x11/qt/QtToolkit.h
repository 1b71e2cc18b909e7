#pragma once

#include <QApplication>
#include <QMenu>
#include <memory>
#include <string>
#include <vector>

#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::x11 {

// Qt's widgets under the program's own main loop: Qt's event dispatcher hangs its sources into GLib's default main
// context, which that loop turns.
class QtToolkit final : public ToolkitUi {
public:
    explicit QtToolkit(const char* displayName);
    ~QtToolkit() override;

    void openMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) override;
    std::size_t runAlert(const Alert& alert, const std::filesystem::path& icon) override;

private:
    // Qt wants the arguments of a program, changes them, and keeps pointing at them.
    struct Arguments {
        explicit Arguments(const char* displayName);

        std::vector<std::string> texts;
        std::vector<char*> pointers;
        int count = 0;
    };

    Arguments arguments;
    QApplication application;
    std::unique_ptr<QMenu> menu; // the one that was opened last
};

} // namespace quorvel::x11
