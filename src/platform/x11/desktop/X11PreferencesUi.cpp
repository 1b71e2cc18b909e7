#include "platform/x11/desktop/X11PreferencesUi.h"

#include <utility>

#include "platform/NotificationCenter.h"
#include "platform/PreferencesWindowModel.h"
#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::x11 {

namespace {

class X11PreferencesWindow final : public PreferencesWindow {
public:
    X11PreferencesWindow(ToolkitUi& toolkit, PreferencesWindowModel& model, NotificationCenter& notificationCenter)
        : window(toolkit.createPreferencesWindow(
              model, {.didBecomeActive = [&model] { model.windowDidBecomeActive(); },
                      .willClose =
                          [this, &model, &notificationCenter] {
                              notificationCenter.post(notificationNames::windowWillClose, notificationObject());
                              model.windowWillClose();
                          }}))
    {}

    bool isThere() const { return window != nullptr; }

    void show() override { window->show(); }

    NotificationObject notificationObject() const override { return reinterpret_cast<NotificationObject>(this); }

private:
    std::unique_ptr<ToolkitWindow> window;
};

class X11AboutWindow final : public AboutWindow {
public:
    explicit X11AboutWindow(std::unique_ptr<ToolkitWindow> window) : window(std::move(window)) {}

    void show() override { window->show(); }

private:
    std::unique_ptr<ToolkitWindow> window;
};

} // namespace

std::unique_ptr<PreferencesWindow> X11PreferencesUi::createWindow(PreferencesWindowModel& model)
{
    auto window = std::make_unique<X11PreferencesWindow>(toolkit, model, notificationCenter);
    return window->isThere() ? std::move(window) : nullptr;
}

std::unique_ptr<AboutWindow> X11PreferencesUi::createAboutWindow(const AboutContent& content)
{
    auto window = toolkit.createAboutWindow(content);
    return window ? std::make_unique<X11AboutWindow>(std::move(window)) : nullptr;
}

} // namespace quorvel::x11
