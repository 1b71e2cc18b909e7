#include "platform/x11/qt/DrawListPainting.h"

#include <algorithm>
#include <cmath>

#include "platform/x11/painting/Painter.h"
#include "platform/x11/painting/PixelAlignment.h"
#include "platform/x11/painting/PixelImage.h"

namespace quorvel::x11 {

QImage drawnImage(const DrawList& list, Size size, double scale, const TextLayouts& layouts)
{
    // Whole pixels for all of it, so that no text is cut that fits its box.
    const PixelSize pixels{std::max(1, static_cast<int>(std::ceil(size.width * scale))),
                           std::max(1, static_cast<int>(std::ceil(size.height * scale)))};
    PixelImage picture(pixels);
    Painter(layouts).paint(picture, alignedToPixels(list, size, pixels, scale), scale);
    const QImage view(reinterpret_cast<const uchar*>(picture.pixels.data()), pixels.width, pixels.height,
                      QImage::Format_ARGB32_Premultiplied);
    QImage image = view.copy(); // the picture goes
    image.setDevicePixelRatio(scale);
    return image;
}

} // namespace quorvel::x11
