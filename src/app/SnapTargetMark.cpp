#include "app/SnapTargetMark.h"

#include "platform/Platform.h"
#include "settings/AppearanceSettings.h"
#include "settings/Settings.h"
#include "system/OverlayFrameWindowController.h"
#include "system/ScreensModel.h"

namespace quorvel {

namespace {

constexpr double stripWidth = 6.0; // points

AxRect stripAlong(const AxRect& edge)
{
    constexpr double half = stripWidth / 2.0;
    return edge.width > edge.height ? edge.insetBy(0.0, -half) : edge.insetBy(-half, 0.0);
}

} // namespace

void showSnapTarget(const Platform& platform, std::unique_ptr<OverlayFrameWindowController>& overlay,
                    const AxRect& targetEdge)
{
    const auto appearance = snapTargetFrameAppearance(Settings(platform.userDefaults), platform.systemColors);
    if (overlay) {
        overlay->setAppearance(appearance);
    } else {
        overlay = std::make_unique<OverlayFrameWindowController>(platform, appearance);
    }
    const auto frame = stripAlong(targetEdge).insetBy(-appearance.borderWidth, -appearance.borderWidth);
    overlay->setFrame(ScreensModel::appKitRectFromAccessibility(platform, frame));
    overlay->show();
}

} // namespace quorvel
