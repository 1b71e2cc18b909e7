#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/simulated/SimulatedDesktop.h"
#include "platform/x11/desktop/ToolkitModule.h"
#include "platform/x11/painting/TextLayouts.h"
#include "preferences/PreferencesWindowController.h"
#include "x11/desktop/DesktopTest.h"

namespace quorvel::x11 {

// What the toolkit makes of the real models, seen from inside: the module and the test share one Qt.
class ShellTest : public DesktopTest {
protected:
    void SetUp() override
    {
        simulated.bundle.addResource("layouts", "json", bundle.resource("layouts", "json").value().value());
        controller.emplace(platform, nullptr);
        display.startWindowManager(xtest::WindowManager::openbox);
        toolkitWindow = toolkit.createPreferencesWindow(*controller, {.didBecomeActive = [] {}, .willClose = [] {}});
        toolkitWindow->show();
        loop.waitFor("the preferences", [&] { return (window = activeWindow()) != nullptr; });
    }

    static QWidget* activeWindow() { return QApplication::activeWindow(); }

    static std::string nameOf(QWidget* widget)
    {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).toStdString();
    }

    QAbstractButton* button(const std::string& name)
    {
        for (auto* const each : window->findChildren<QAbstractButton*>()) {
            if (each->isVisible() && nameOf(each) == name) {
                return each;
            }
        }
        throw xtest::HarnessError("There is no button " + name);
    }

    SimulatedDesktop simulated;
    const Platform platform = simulated.platform();
    std::optional<PreferencesWindowController> controller;
    TextLayouts textLayouts{"sans"};
    DesktopStyle style{.scheme = ColorScheme::dark, .font = "DejaVu Sans 9"};
    std::function<void()> styleChanged;
    ToolkitModule toolkit{
        ToolkitModule::standardFile(),
        display.server.display(),
        {.imageFile = [this](std::string_view name, int pixels) { return bundle.imageFile(name, pixels); },
         .activate = [](std::uint32_t) {},
         .keyDown = [](std::uint8_t, std::uint16_t) { return EventHandling::pass; },
         .textLayouts = textLayouts,
         .style = [this] { return style; },
         .observeStyle =
             [this](std::function<void()> changed) {
                 styleChanged = std::move(changed);
                 return Subscription();
             }}};
    std::unique_ptr<ToolkitWindow> toolkitWindow;
    QWidget* window = nullptr;
};

} // namespace quorvel::x11
