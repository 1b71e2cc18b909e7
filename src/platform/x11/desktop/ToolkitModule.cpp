#include "platform/x11/desktop/ToolkitModule.h"

#include <cstdio>
#include <system_error>
#include <utility>

#include <dlfcn.h>
#include <fmt/format.h>

#include "platform/x11/desktop/BuildFacts.h"

namespace quorvel::x11 {

ToolkitModule::ToolkitModule(std::filesystem::path file, std::string displayName, ToolkitHost host)
    : file(std::move(file)), displayName(std::move(displayName)), host(std::move(host))
{}

std::filesystem::path ToolkitModule::standardFile()
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return program.parent_path() / buildFacts::programsToModules / "quorvel-qt.so";
}

void ToolkitModule::openMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand)
{
    if (auto* const ui = loaded()) {
        ui->openMenu(menu, std::move(onCommand));
    }
}

std::size_t ToolkitModule::runAlert(const Alert& alert, const std::filesystem::path& icon)
{
    if (auto* const ui = loaded()) {
        return ui->runAlert(alert, icon);
    }
    return alert.buttons.empty() ? 0 : alert.buttons.size() - 1;
}

std::unique_ptr<ToolkitWindow> ToolkitModule::createPreferencesWindow(PreferencesWindowModel& model,
                                                                      ToolkitWindowCallbacks callbacks)
{
    auto* const ui = loaded();
    return ui != nullptr ? ui->createPreferencesWindow(model, std::move(callbacks)) : nullptr;
}

std::unique_ptr<ToolkitWindow> ToolkitModule::createAboutWindow(const AboutContent& content)
{
    auto* const ui = loaded();
    return ui != nullptr ? ui->createAboutWindow(content) : nullptr;
}

ToolkitUi* ToolkitModule::loaded()
{
    if (std::exchange(state, State::tried) == State::untried) {
        toolkit = load();
    }
    return toolkit.get();
}

std::unique_ptr<ToolkitUi> ToolkitModule::load() const
{
    // Never unloaded: Qt leaves threads and exit handlers behind.
    void* const module = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (module == nullptr) {
        fmt::print(stderr, "Menus, windows and alerts cannot be shown: {}\n", dlerror());
        return nullptr;
    }
    auto* const entry = reinterpret_cast<ToolkitEntry*>(dlsym(module, toolkitEntryName));
    if (entry == nullptr) {
        fmt::print(stderr, "Menus, windows and alerts cannot be shown: {} is not a module of this program.\n",
                   file.string());
        return nullptr;
    }
    return std::unique_ptr<ToolkitUi>(entry(displayName.c_str(), host));
}

} // namespace quorvel::x11
