#pragma once

#include <cstdint>
#include <expected>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/Geometry.h"
#include "platform/ProcessId.h"

namespace quorvel {

// The status of a failed accessibility call, in the numbering of the macOS accessibility interface.
struct AxError {
    std::int32_t code = 0;

    bool operator==(const AxError&) const = default;
};

namespace axErrors {
inline constexpr AxError failure{-25200};
inline constexpr AxError illegalArgument{-25201};
inline constexpr AxError invalidElement{-25202};
inline constexpr AxError cannotComplete{-25204};
inline constexpr AxError attributeUnsupported{-25205};
inline constexpr AxError actionUnsupported{-25206};
inline constexpr AxError notificationUnsupported{-25207};
inline constexpr AxError apiDisabled{-25211};
inline constexpr AxError noValue{-25212};
} // namespace axErrors

// Names a user-interface object of another application: the application itself or one of its windows. It stays valid as
// a name when the object is gone; calls with it then fail with axErrors::invalidElement.
class AxElement {
public:
    AxElement() = default;
    AxElement(const AxElement&) = delete;
    AxElement& operator=(const AxElement&) = delete;
    virtual ~AxElement() = default;

    // True when both name the same object.
    virtual bool isEqual(const AxElement& other) const = 0;
};

using AxElementRef = std::shared_ptr<const AxElement>;

// The value of an attribute; std::monostate stands for a type that the program has no use for.
using AxValue = std::variant<std::monostate, bool, std::string, AxPoint, Size, AxElementRef, std::vector<AxElementRef>>;

namespace axNames {
inline constexpr std::string_view focusedWindow = "AXFocusedWindow";
inline constexpr std::string_view windows = "AXWindows";
inline constexpr std::string_view frontmost = "AXFrontmost";
inline constexpr std::string_view role = "AXRole";
inline constexpr std::string_view title = "AXTitle";
inline constexpr std::string_view position = "AXPosition";
inline constexpr std::string_view size = "AXSize";
inline constexpr std::string_view minimized = "AXMinimized";
inline constexpr std::string_view windowRole = "AXWindow";
inline constexpr std::string_view raise = "AXRaise";
inline constexpr std::string_view moved = "AXMoved";
inline constexpr std::string_view resized = "AXResized";
inline constexpr std::string_view elementDestroyed = "AXUIElementDestroyed";
} // namespace axNames

// Watches elements of one process. Its callback runs from the main loop, with the notification's name, for every
// notification that was added; it no longer runs once the observer is destroyed.
class AxObserver {
public:
    AxObserver() = default;
    AxObserver(const AxObserver&) = delete;
    AxObserver& operator=(const AxObserver&) = delete;
    virtual ~AxObserver() = default;

    virtual std::expected<void, AxError> addNotification(const AxElementRef& element, std::string_view name) = 0;
    virtual std::expected<void, AxError> removeNotification(const AxElementRef& element, std::string_view name) = 0;

    // Lets the main loop deliver; before this call nothing arrives.
    virtual void startDelivery() = 0;
};

// Reading, moving and watching the windows of other applications. Positions and sizes are those of the window as a
// person sees it, frame included and invisible shadow excluded, in accessibility coordinates.
//
// Attributes, by element:
//   application   "AXFocusedWindow" (element), "AXWindows" (elements: first those on screen, front to back, so that of
//                 windows in one place the one that can be seen comes first; minimized ones last); on macOS also
//                 "AXFrontmost" (Boolean, settable), which brings it forward
//   window        "AXRole" (text; "AXWindow" for what a person calls a window), "AXTitle" (text), "AXPosition" (point,
//                 settable), "AXSize" (size, settable), "AXMinimized" (Boolean, settable); action "AXRaise";
//                 notifications "AXMoved", "AXResized", "AXUIElementDestroyed"
//
// A window that vanished answers axErrors::invalidElement, a process that does not answer in time
// axErrors::cannotComplete, everything without the permission axErrors::apiDisabled.
//
// X11: an attribute is written by a request to the window manager, which may grant it in part or later; the adapter
// watches the result and corrects it. Position and size written in one turn of the main loop become one request.
class Accessibility {
public:
    Accessibility() = default;
    Accessibility(const Accessibility&) = delete;
    Accessibility& operator=(const Accessibility&) = delete;
    virtual ~Accessibility() = default;

    virtual AxElementRef applicationElement(ProcessId process) = 0;

    virtual std::expected<AxValue, AxError> copyAttribute(const AxElementRef& element, std::string_view name) = 0;

    // The value's type must be the attribute's, else axErrors::illegalArgument.
    virtual std::expected<void, AxError> setAttribute(const AxElementRef& element, std::string_view name,
                                                      const AxValue& value) = 0;

    virtual std::expected<void, AxError> performAction(const AxElementRef& element, std::string_view name) = 0;

    virtual std::expected<ProcessId, AxError> processId(const AxElementRef& element) = 0;

    virtual std::expected<std::unique_ptr<AxObserver>, AxError>
    createObserver(ProcessId process, std::function<void(std::string_view name)> callback) = 0;
};

} // namespace quorvel
