#include "system/WindowElementModel.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "base/LogText.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "settings/AppearanceSettings.h"
#include "settings/Settings.h"
#include "system/AxReading.h"
#include "system/OverlayFrameWindowController.h"
#include "system/ScreensModel.h"
#include "system/WindowInfo.h"

namespace quorvel {

namespace {

constexpr std::array observedNotifications{axNames::moved, axNames::resized, axNames::elementDestroyed};

std::string codeText(AxError error)
{
    return std::to_string(error.code);
}

template <class Value>
std::optional<Value> valueOfType(const AxValue& value)
{
    const auto* typed = std::get_if<Value>(&value);
    return typed != nullptr ? std::optional(*typed) : std::nullopt;
}

bool isWindow(const Platform& platform, const AxElementRef& element)
{
    return quietAttribute<std::string>(platform, element, axNames::role) == axNames::windowRole;
}

} // namespace

std::optional<AxValue> copyAttribute(const Platform& platform, const AxElementRef& element, std::string_view name)
{
    if (!element) {
        return std::nullopt;
    }
    auto value = platform.accessibility.copyAttribute(element, name);
    if (!value) {
        platform.log.line("Hubo un problema al obtener el valor del atributo especificado: " + std::string(name) +
                          " (código de error " + codeText(value.error()) + ")");
        return std::nullopt;
    }
    return std::move(*value);
}

std::shared_ptr<WindowElementModel> WindowElementModel::frontmostWindow(const Platform& platform)
{
    auto model = std::make_shared<WindowElementModel>(Private(), platform);
    model->loadFocusedWindow();
    return model;
}

std::shared_ptr<WindowElementModel> WindowElementModel::findWindow(const Platform& platform, ProcessId process,
                                                                   const AxRect& bounds)
{
    const auto application = platform.accessibility.applicationElement(process);
    const auto windows = quietAttribute<std::vector<AxElementRef>>(platform, application, axNames::windows);
    if (!windows) {
        return nullptr;
    }
    for (const auto& window : *windows) {
        if (!isWindow(platform, window)) {
            continue;
        }
        const auto rect = quietRect(platform, window);
        if (!rect || !isSamePlace(*rect, bounds)) {
            continue;
        }
        // A window that refuses to come forward is still the one.
        static_cast<void>(platform.accessibility.performAction(window, axNames::raise));
        auto model = std::make_shared<WindowElementModel>(Private(), platform);
        model->element = window;
        model->position = rect->origin();
        model->size = rect->size();
        model->startObserving();
        return model;
    }
    return nullptr;
}

WindowElementModel::WindowElementModel(Private, const Platform& platform) : platform(platform) {}

WindowElementModel::~WindowElementModel()
{
    stopObserving();
}

const AxElementRef& WindowElementModel::axWindowElement() const
{
    return element;
}

bool WindowElementModel::isGone() const
{
    return !element || !elementExists;
}

const std::optional<AxPoint>& WindowElementModel::windowPosition() const
{
    return position;
}

const std::optional<Size>& WindowElementModel::windowSize() const
{
    return size;
}

std::optional<AxRect> WindowElementModel::windowRect() const
{
    return position && size ? std::optional(AxRect::of(*position, *size)) : std::nullopt;
}

void WindowElementModel::setWindowRect(const AxRect& rect)
{
    platform.log.line("rect origin: " + logText(rect.origin()) + ", rect size: " + logText(rect.size()));
    position = rect.origin();
    size = rect.size();
    applyWindowRect(rect);
}

void WindowElementModel::setWindowPosition(const AxPoint& newPosition)
{
    if (!element) {
        return;
    }
    const auto written = platform.accessibility.setAttribute(element, axNames::position, newPosition);
    elementExists = written || written.error() != axErrors::invalidElement;
    if (written) {
        position = newPosition;
        platform.log.line("window position: " + logText(newPosition));
    } else {
        platform.log.line("Failed to set window position: " + codeText(written.error()));
    }
}

void WindowElementModel::setWindowSize(const Size& newSize)
{
    if (!element) {
        return;
    }
    if (const auto written = platform.accessibility.setAttribute(element, axNames::size, newSize)) {
        size = newSize;
    } else {
        platform.log.line("Failed to set window size: " + codeText(written.error()));
    }
}

void WindowElementModel::applyWindowRect(const AxRect& rect)
{
    platform.mainQueue.async([self = shared_from_this(), rect] {
        self->setWindowPosition(rect.origin());
        self->setWindowSize(rect.size());
        self->updateOverlayFrame();
    });
}

void WindowElementModel::showOverlayFrame()
{
    const auto rect = windowRect();
    if (!rect) {
        hideOverlayFrame();
        return;
    }
    if (overlayController) {
        overlayController->setAppearance(frameAppearance());
    } else {
        overlayController = std::make_unique<OverlayFrameWindowController>(platform, frameAppearance());
    }
    placeOverlayFrame(*rect);
    overlayController->show();
}

void WindowElementModel::updateOverlayFrame()
{
    const auto rect = windowRect();
    if (!overlayController || !rect) {
        return;
    }
    overlayController->setAppearance(frameAppearance());
    placeOverlayFrame(*rect);
}

void WindowElementModel::hideOverlayFrame()
{
    if (overlayController) {
        overlayController->hide();
    }
}

void WindowElementModel::tearDown()
{
    hideOverlayFrame();
    stopObserving();
    observer.reset();
    element.reset();
}

void WindowElementModel::loadFocusedWindow()
{
    const auto application = platform.workspace.frontmostApplication();
    if (!application) {
        return;
    }
    const auto applicationElement = platform.accessibility.applicationElement(application->process);
    const auto window = quietAttribute<AxElementRef>(platform, applicationElement, axNames::focusedWindow);
    if (!window || !*window) {
        platform.log.line("Window is nil or not a valid AXUIElement");
        return;
    }
    if (!isWindow(platform, *window)) {
        platform.log.line("Element is not an app window (AXWindow role)");
        return;
    }
    element = *window;
    if (readGeometry()) {
        startObserving();
    }
}

// Stores what has the right type; false, and nothing stored, if either attribute cannot be read.
bool WindowElementModel::readGeometry()
{
    const auto readPosition = copyAttribute(platform, element, axNames::position);
    if (!readPosition) {
        return false;
    }
    const auto readSize = copyAttribute(platform, element, axNames::size);
    if (!readSize) {
        return false;
    }
    if (const auto point = valueOfType<AxPoint>(*readPosition)) {
        position = point;
    }
    if (const auto extent = valueOfType<Size>(*readSize)) {
        size = extent;
    }
    return true;
}

void WindowElementModel::startObserving()
{
    auto created = createObserver();
    if (!created) {
        platform.log.line("Failed to create AXObserver with error: " + codeText(created.error()));
        return;
    }
    observer = std::move(*created);
    for (const auto name : observedNotifications) {
        // A notification that the application does not know leaves the others at work.
        static_cast<void>(observer->addNotification(element, name));
    }
    observer->startDelivery();
}

std::expected<std::unique_ptr<AxObserver>, AxError> WindowElementModel::createObserver()
{
    const auto process = platform.accessibility.processId(element);
    if (!process) {
        return std::unexpected(process.error());
    }
    const auto onNotification = [weak = weak_from_this(), &mainQueue = platform.mainQueue](std::string_view name) {
        mainQueue.async([weak, name = std::string(name)] {
            if (const auto self = weak.lock()) {
                self->handleNotification(name);
            }
        });
    };
    return platform.accessibility.createObserver(*process, onNotification);
}

void WindowElementModel::stopObserving()
{
    if (!observer || !element) {
        return;
    }
    for (const auto name : observedNotifications) {
        static_cast<void>(observer->removeNotification(element, name));
    }
}

void WindowElementModel::handleNotification(std::string_view name)
{
    if (!element) {
        return;
    }
    if (name == axNames::moved || name == axNames::resized) {
        if (readGeometry()) {
            platform.mainQueue.async([weak = weak_from_this()] {
                if (const auto self = weak.lock()) {
                    self->updateOverlayFrame();
                }
            });
        }
    } else if (name == axNames::elementDestroyed) {
        platform.mainQueue.async([weak = weak_from_this()] {
            if (const auto self = weak.lock()) {
                self->tearDown();
            }
        });
    }
}

void WindowElementModel::placeOverlayFrame(const AxRect& rect)
{
    overlayController->setFrame(ScreensModel::appKitRectFromAccessibility(platform, rect));
}

FrameAppearance WindowElementModel::frameAppearance() const
{
    return selectionFrameAppearance(Settings(platform.userDefaults), platform.systemColors);
}

} // namespace quorvel
