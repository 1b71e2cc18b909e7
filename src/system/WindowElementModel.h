#pragma once

#include <expected>
#include <memory>
#include <optional>
#include <string_view>

#include "base/Geometry.h"
#include "platform/Accessibility.h"
#include "platform/ProcessId.h"

namespace quorvel {

struct FrameAppearance;
struct Platform;
class OverlayFrameWindowController;

// The value of an attribute. Nothing for a null element, silently; nothing and a line in the log if it cannot be read.
std::optional<AxValue> copyAttribute(const Platform& platform, const AxElementRef& element, std::string_view name);

// The handle on one window of another application: reads, moves and watches it, and owns the frame that marks it. All
// geometry is in accessibility coordinates. Main thread only.
//
// A model stays usable when its window is gone: it then has no element, keeps the last known geometry and writes
// nothing any more.
class WindowElementModel : public std::enable_shared_from_this<WindowElementModel> {
    struct Private {
        explicit Private() = default;
    };

public:
    // The focused window of the frontmost application. Never null; what could not be read is absent.
    static std::shared_ptr<WindowElementModel> frontmostWindow(const Platform& platform);

    // The first window of the application that is where `bounds` says, within 2 points, after raising it; null if there
    // is none.
    static std::shared_ptr<WindowElementModel> findWindow(const Platform& platform, ProcessId process,
                                                          const AxRect& bounds);

    // For the functions above.
    WindowElementModel(Private, const Platform& platform);
    WindowElementModel(const WindowElementModel&) = delete;
    WindowElementModel& operator=(const WindowElementModel&) = delete;
    ~WindowElementModel();

    // Null while there is no window.
    const AxElementRef& axWindowElement() const;

    // There is no window, or the last position written to it was refused because it no longer exists.
    bool isGone() const;

    const std::optional<AxPoint>& windowPosition() const;
    const std::optional<Size>& windowSize() const;

    // Present when position and size are.
    std::optional<AxRect> windowRect() const;

    // Answers the new geometry at once; the window itself follows in a later turn of the main queue, even if this model
    // is let go before.
    void setWindowRect(const AxRect& rect);

    // Write at once. A refusal is logged and leaves the known value as it was.
    void setWindowPosition(const AxPoint& position);
    void setWindowSize(const Size& size);

    // Writes position and then size in a later turn of the main queue, and refreshes the frame.
    void applyWindowRect(const AxRect& rect);

    // The selection frame, in the appearance that the settings have at that moment. Showing it without known geometry
    // hides it; updating leaves a hidden frame hidden.
    void showOverlayFrame();
    void updateOverlayFrame();
    void hideOverlayFrame();

    // Hides the frame and lets go of the window.
    void tearDown();

private:
    void loadFocusedWindow();
    bool readGeometry();
    void startObserving();
    std::expected<std::unique_ptr<AxObserver>, AxError> createObserver();
    void stopObserving();
    void handleNotification(std::string_view name);
    void placeOverlayFrame(const AxRect& rect);
    FrameAppearance frameAppearance() const;

    const Platform& platform;
    std::optional<AxPoint> position;
    std::optional<Size> size;
    AxElementRef element;
    bool elementExists = true;
    std::unique_ptr<OverlayFrameWindowController> overlayController;
    std::unique_ptr<AxObserver> observer;
};

} // namespace quorvel
