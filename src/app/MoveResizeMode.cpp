#include "app/MoveResizeMode.h"

#include <chrono>
#include <memory>
#include <utility>

#include "app/ModeState.h"
#include "app/ResizeLimits.h"
#include "app/SnapTargetMark.h"
#include "app/WindowMinimizing.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/Screens.h"
#include "platform/Workspace.h"
#include "settings/Settings.h"
#include "system/GlobalEventBlocker.h"
#include "system/OnScreenWindows.h"
#include "system/ScreensModel.h"

namespace quorvel {

namespace {

std::optional<ArrowKey> arrowKey(const MoveResizeKeys& keys, KeyCode keyCode)
{
    if (keyCode == keys.moveLeft) {
        return ArrowKey::left;
    }
    if (keyCode == keys.moveRight) {
        return ArrowKey::right;
    }
    if (keyCode == keys.moveUp) {
        return ArrowKey::up;
    }
    if (keyCode == keys.moveDown) {
        return ArrowKey::down;
    }
    return std::nullopt;
}

} // namespace

MoveResizeMode::MoveResizeMode(ModeEnvironment environment, ModeState& modes)
    : environment(std::move(environment)), modes(modes)
{}

void MoveResizeMode::toggle()
{
    if (!modes.moveResizeElement) {
        enter();
        return;
    }
    modes.moveResizeElement->tearDown();
    end();
}

void MoveResizeMode::leave()
{
    if (modes.moveResizeElement) {
        modes.moveResizeElement->hideOverlayFrame();
        modes.moveResizeElement.reset();
    }
    run.reset();
    hideSnapTarget();
}

void MoveResizeMode::end()
{
    leave();
    releaseBlocker();
}

void MoveResizeMode::enter()
{
    hideSnapTarget();
    releaseBlocker();
    const auto& platform = environment.platform;
    const Settings settings(platform.userDefaults);
    const auto element = WindowElementModel::frontmostWindow(platform);
    if (!element->axWindowElement()) {
        platform.log.line("No valid frontmost window to move/resize");
        return;
    }
    run.emplace(Run{
        .settings = moveResizeSettings(settings),
        .windows = CycledWindows(onScreenWindows(platform), element->windowRect()),
        .keys = moveResizeKeys(settings),
    });
    modes.moveResizeElement = element;
    captureKeys();
    element->showOverlayFrame();
}

void MoveResizeMode::captureKeys()
{
    auto* blocker = environment.eventBlocker;
    if (blocker == nullptr) {
        return;
    }
    blocker->setBlockedKeyCodes(run->keys.keyCodes());
    if (!blocker->hasEventTap()) {
        blocker->showKeyCapturePanel();
    }
    blocker->setOnBlockKey(weakly.guard([this](const CapturedKey& key) { handleKey(key); }));
}

void MoveResizeMode::handleKey(const CapturedKey& key)
{
    // A key that was pressed before the mode ended may arrive after that.
    if (!run) {
        return;
    }
    const auto& keys = run->keys;
    const bool isResizing = keys.isResizing(key.flags);
    if (const auto arrow = arrowKey(keys, key.keyCode)) {
        pressArrow(*arrow, isResizing ? ArrowEffect::resize : ArrowEffect::move);
    } else if (key.keyCode == keys.cycleWindows) {
        cycle(isResizing ? CycleDirection::backwards : CycleDirection::forwards);
    } else if (key.keyCode == keys.minimize) {
        minimize();
    } else if (key.keyCode == keys.exitMode) {
        end();
    }
}

void MoveResizeMode::pressArrow(ArrowKey key, ArrowEffect effect)
{
    if (isHeldBySnap()) {
        return;
    }
    const auto element = modes.moveResizeElement;
    const auto before = element->windowRect();
    if (!element->axWindowElement() || !before) {
        return;
    }
    auto rect = changedBy(*before, key, effect, run->settings.moveStep * signOf(key));
    if (effect == ArrowEffect::resize) {
        rect = withLeastSize(rect);
    }
    if (run->settings.snapEnabled) {
        rect = snapped({.before = *before, .after = rect, .key = key, .effect = effect});
    }
    if (effect == ArrowEffect::resize) {
        rect = limited(rect);
    }
    element->setWindowRect(rect);
    element->updateOverlayFrame();
}

// The key that ends the resistance moves the window.
bool MoveResizeMode::isHeldBySnap()
{
    if (!run->isSnapped) {
        return false;
    }
    ++run->resistanceCount;
    if (run->resistanceCount < run->settings.snapResistance) {
        return true;
    }
    endSnap();
    return false;
}

AxRect MoveResizeMode::snapped(const SnapStep& step)
{
    const auto screens = environment.platform.screens.screens();
    const SnapNeighbours neighbours{run->windows.windows(), run->windows.ownEntry(), screens};
    const auto snap = searchSnap(step, neighbours, run->settings.snapThreshold);
    if (!snap) {
        hideSnapTarget();
        return step.after;
    }
    run->isSnapped = true;
    run->resistanceCount = 0;
    showSnapTarget(environment.platform, modes.snapTargetOverlay, snap->targetEdge);
    return snap->rect;
}

AxRect MoveResizeMode::limited(const AxRect& rect)
{
    ScreensModel screens(environment.platform, environment.currentScreen);
    screens.selectScreenForWindowRect(rect);
    const auto& screen = screens.currentScreen();
    return withLeastSize(screen ? endingOnScreen(rect, *screen, environment.platform.screens.screens()) : rect);
}

void MoveResizeMode::endSnap()
{
    run->isSnapped = false;
    run->resistanceCount = 0;
    hideSnapTarget();
}

void MoveResizeMode::hideSnapTarget() const
{
    if (modes.snapTargetOverlay) {
        modes.snapTargetOverlay->hide();
    }
}

void MoveResizeMode::cycle(CycleDirection direction)
{
    auto& windows = run->windows;
    if (windows.windows().empty()) {
        return;
    }
    windows.step(direction);
    if (const auto present = modes.moveResizeElement->windowRect()) {
        windows.record(*present);
    }
    endSnap();
    continueWith(windows.currentIndex());
}

// False, and everything as before, if the window has gone from where it was.
bool MoveResizeMode::continueWith(std::size_t index)
{
    const auto& platform = environment.platform;
    const auto entry = run->windows.windows()[index];
    const auto found = WindowElementModel::findWindow(platform, entry.pid, entry.bounds);
    if (!found) {
        return false;
    }
    if (platform.workspace.runningApplication(entry.pid)) {
        platform.workspace.activate(entry.pid);
        if (environment.eventBlocker != nullptr) {
            environment.eventBlocker->keepKeysFrom(entry.pid);
        }
    }
    modes.moveResizeElement->hideOverlayFrame();
    modes.moveResizeElement = found;
    run->windows.enter(index);
    found->showOverlayFrame();
    return true;
}

void MoveResizeMode::minimize()
{
    if (!minimizeWindow(environment.platform, *modes.moveResizeElement)) {
        return;
    }
    run->windows.removeCurrent();
    modes.moveResizeElement->hideOverlayFrame();
    endSnap();
    if (continueAfterMinimizing()) {
        refreshFrameSoon();
    } else {
        end();
    }
}

// With the first window that is still there, from the present place on and round the end.
bool MoveResizeMode::continueAfterMinimizing()
{
    const auto count = run->windows.windows().size();
    const auto first = run->windows.currentIndex();
    for (std::size_t step = 0; step < count; ++step) {
        if (continueWith((first + step) % count)) {
            return true;
        }
    }
    return false;
}

// The window has come forward by then, and may have been moved or resized on the way.
void MoveResizeMode::refreshFrameSoon()
{
    constexpr std::chrono::duration<double> delay{0.05};
    environment.platform.mainQueue.after(delay, weakly.guard([this, awaited = std::weak_ptr(modes.moveResizeElement)] {
        const auto element = awaited.lock();
        if (element && element == modes.moveResizeElement) {
            element->updateOverlayFrame();
        }
    }));
}

void MoveResizeMode::releaseBlocker() const
{
    if (environment.eventBlocker != nullptr) {
        environment.eventBlocker->clearBlockedKeys();
    }
}

} // namespace quorvel
