#include "platform/x11/desktop/ToolkitModule.h"

#include <cstdio>
#include <utility>

#include <fmt/format.h>

#include "platform/x11/desktop/LoadableModule.h"

namespace quorvel::x11 {

ToolkitModule::ToolkitModule(std::filesystem::path file, std::string displayName, ToolkitHost host)
    : file(std::move(file)), displayName(std::move(displayName)), host(std::move(host))
{}

std::filesystem::path ToolkitModule::standardFile()
{
    return moduleFile("quorvel-qt.so");
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

void ToolkitModule::endInnerLoops()
{
    if (toolkit) {
        toolkit->endInnerLoops();
    }
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
    const auto entry = moduleFunction(file, toolkitEntryName);
    if (!entry) {
        fmt::print(stderr, "Menus, windows and alerts cannot be shown: {}.\n", entry.error());
        return nullptr;
    }
    return std::unique_ptr<ToolkitUi>(reinterpret_cast<ToolkitEntry*>(*entry)(displayName.c_str(), host));
}

} // namespace quorvel::x11
