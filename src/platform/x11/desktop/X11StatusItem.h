#pragma once

#include <optional>

#include "base/WeakGuard.h"
#include "platform/StatusBar.h"
#include "platform/x11/desktop/TrayIcon.h"

namespace quorvel::x11 {

class ToolkitUi;
class X11Bundle;

class X11StatusItem final : public StatusItem {
public:
    X11StatusItem(Connection& connection, const X11Bundle& bundle, ToolkitUi& toolkit);

    bool hasButton() const override { return true; }
    void setImage(const Image& newImage) override;
    void setMenu(const Menu& newMenu, std::function<void(MenuCommand)> newHandler) override;

private:
    void draw(PixelImage& background, const std::optional<Color>& textColor) const;
    void openMenu();

    const X11Bundle& bundle;
    ToolkitUi& toolkit;
    std::optional<Image> image;
    Menu menu;
    std::function<void(MenuCommand)> onCommand;
    TrayIcon icon;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
