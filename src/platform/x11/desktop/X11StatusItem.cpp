#include "platform/x11/desktop/X11StatusItem.h"

#include <algorithm>
#include <utility>

#include "platform/x11/desktop/ToolkitUi.h"
#include "platform/x11/desktop/X11Bundle.h"
#include "platform/x11/painting/IconPainting.h"

namespace quorvel::x11 {

X11StatusItem::X11StatusItem(Connection& connection, const X11Bundle& bundle, ToolkitUi& toolkit)
    : bundle(bundle),
      toolkit(toolkit),
      icon(
          connection,
          [this](PixelImage& background, const std::optional<Color>& textColor) { draw(background, textColor); },
          [this] { openMenu(); })
{}

void X11StatusItem::setImage(const Image& newImage)
{
    image = newImage;
    icon.update();
}

void X11StatusItem::setMenu(const Menu& newMenu, std::function<void(MenuCommand)> newHandler)
{
    menu = newMenu;
    onCommand = std::move(newHandler);
}

void X11StatusItem::draw(PixelImage& background, const std::optional<Color>& textColor) const
{
    if (!image) {
        return;
    }
    const int side = std::min(background.size.width, background.size.height);
    std::optional<Color> color;
    if (image->isTemplate) {
        color = textColor.value_or(readableColor(background));
    }
    paintIcon(background, bundle.imageFile(image->name, side), color);
}

void X11StatusItem::openMenu()
{
    if (!menu.entries.empty()) {
        toolkit.openMenu(menu, weakGuard.guard([this](MenuCommand command) { onCommand(command); }));
    }
}

} // namespace quorvel::x11
