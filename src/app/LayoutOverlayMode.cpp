#include "app/LayoutOverlayMode.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <utility>

#include "app/LabelAlphabet.h"
#include "app/OverlayNavigation.h"
#include "app/StateManager.h"
#include "app/WindowPlacement.h"
#include "base/FatalError.h"
#include "base/LogText.h"
#include "base/Utf8.h"
#include "layouts/LayoutsManager.h"
#include "layouts/OverlayWindowManager.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "settings/Settings.h"
#include "system/GlobalEventBlocker.h"
#include "system/WindowElementModel.h"

namespace quorvel {

namespace {

static_assert(labelAlphabet.size() == LayoutsManager::largestFrameCount);

std::map<std::string, WindowModel> labelFrames(const std::vector<WindowModel>& frames)
{
    std::map<std::string, WindowModel> labelToFrame;
    for (std::size_t index = 0; index < std::min(frames.size(), labelAlphabet.size()); ++index) {
        labelToFrame.emplace(labelAlphabet.substr(index, 1), frames[index]);
    }
    return labelToFrame;
}

// Of equal frames the last one's label is drawn on all of them, so that the letters on top of each other are the same.
std::unordered_map<WindowModel, std::string> labelsByFrame(const std::map<std::string, WindowModel>& labelToFrame)
{
    std::unordered_map<WindowModel, std::string> frameToLabel;
    for (const auto& [label, frame] : labelToFrame) {
        frameToLabel.insert_or_assign(frame, label);
    }
    return frameToLabel;
}

const std::string& labelOf(const WindowModel& frame, const std::unordered_map<WindowModel, std::string>& frameToLabel)
{
    const auto found = frameToLabel.find(frame);
    if (found == frameToLabel.end()) {
        fatalError("A layout with more frames than letters cannot be shown");
    }
    return found->second;
}

std::string windowModelText(const WindowModel& frame)
{
    return "(" + logText(frame.bottom_left_x) + ", " + logText(frame.bottom_left_y) + ", " +
           logText(frame.top_right_x) + ", " + logText(frame.top_right_y) + ")";
}

} // namespace

LayoutOverlayMode::LayoutOverlayMode(ModeEnvironment environment) : environment(std::move(environment)) {}

void LayoutOverlayMode::showOverlay(const std::optional<ScreensModel>& screens,
                                    std::shared_ptr<WindowElementModel> element)
{
    auto& log = environment.platform.log;
    if (!element) {
        element = WindowElementModel::frontmostWindow(environment.platform);
        if (!element->axWindowElement()) {
            log.line("Frontmost element invalid; cannot show overlay");
            return;
        }
    }
    if (!screens && !element->windowRect()) {
        return;
    }
    const auto targetScreens = screens ? screens : screensForElement(*element);
    if (!targetScreens) {
        log.line("No screens model; cannot show overlay");
        return;
    }
    const auto layout = environment.layoutsManager.selectedLayout();
    const auto frames = layout ? layout->windows : std::vector<WindowModel>();
    current = std::make_shared<const Showing>(Showing{*targetScreens, std::move(element), labelFrames(frames)});
    showFrames(*current, frames);
    showLegend(current->screens);
    captureKeys();
    if (environment.overlayWindowManager.isOverlayVisible()) {
        environment.stateManager.currentState = StateManager::States::overlayOn;
    }
}

std::optional<ScreensModel> LayoutOverlayMode::screensForElement(const WindowElementModel& element) const
{
    const auto rect = element.windowRect();
    ScreensModel screens(environment.platform, environment.currentScreen);
    return rect && screens.selectScreenForWindowRect(*rect) ? std::optional(screens) : std::nullopt;
}

void LayoutOverlayMode::showFrames(const Showing& showing, const std::vector<WindowModel>& frames)
{
    const auto& screen = showing.screens.currentScreen();
    const auto visibleFrame = screen ? screen->visibleFrame : ScreenRect();
    const auto frameToLabel = labelsByFrame(showing.labelToFrame);
    for (const auto& frame : frames) {
        environment.overlayWindowManager.showLayoutFrame(labelOf(frame, frameToLabel), frame, visibleFrame);
    }
}

void LayoutOverlayMode::showLegend(const ScreensModel& screens)
{
    if (const auto& screen = screens.currentScreen()) {
        environment.overlayWindowManager.showLegend(environment.layoutsManager.legendEntries(), screen->visibleFrame);
    }
}

// A key that was typed before an earlier one ended the overlay may arrive after that.
void LayoutOverlayMode::captureKeys()
{
    auto* blocker = environment.eventBlocker;
    if (blocker == nullptr) {
        return;
    }
    blocker->setOnBlockKey(weakly.guard([this, showing = std::weak_ptr(current)](const CapturedKey& key) {
        if (const auto present = showing.lock()) {
            handleKey(*present, key);
        }
    }));
    blocker->blockAllKeys();
}

void LayoutOverlayMode::handleKey(const Showing& showing, const CapturedKey& key) const
{
    const Settings settings(environment.platform.userDefaults);
    if (const auto action = overlayNavigation(settings, key.keyCode, hotKeyModifiersOf(key.flags))) {
        navigate(*action, showing);
    } else if (key.keyCode == keyCodes::escape) {
        environment.handleAction(Action::cancel, {});
    } else if (isNumericCharacter(key.character)) {
        jump(key.character, showing);
    } else {
        choose(key.character, showing);
    }
    environment.platform.log.line("Blocker blocked key: " + std::to_string(key.keyCode));
}

void LayoutOverlayMode::navigate(Action action, const Showing& showing) const
{
    const bool changesScreen = action == Action::nextScreen || action == Action::previousScreen;
    const auto screens = changesScreen ? stepScreen(action, showing) : std::optional(showing.screens);
    environment.handleAction(action, {screens ? ActionArgument(*screens) : ActionArgument(), showing.element});
}

// A screen that was unplugged while the overlay is up has no neighbours; the step then starts from where the window is.
std::optional<ScreensModel> LayoutOverlayMode::stepScreen(Action action, const Showing& showing) const
{
    const auto direction = action == Action::nextScreen ? ScreenStep::next : ScreenStep::previous;
    if (auto neighbour = showing.screens.neighbour(direction)) {
        return neighbour;
    }
    const auto screens = screensForElement(*showing.element);
    return screens ? screens->neighbour(direction) : std::nullopt;
}

void LayoutOverlayMode::jump(const std::string& digit, const Showing& showing) const
{
    if (auto id = environment.layoutsManager.layoutIDForDigit(digit)) {
        environment.handleAction(Action::jumpToLayout, {*std::move(id), showing.screens, showing.element});
    }
}

void LayoutOverlayMode::choose(const std::string& character, const Showing& showing) const
{
    if (const auto found = showing.labelToFrame.find(upperCased(character)); found != showing.labelToFrame.end()) {
        environment.handleAction(Action::moveClientWindow, {found->second, showing.screens, showing.element});
        reportGoneWindow(showing.element);
    }
    environment.handleAction(Action::cancel, {});
}

// After the writes: a window that closes just before the letter is known to be gone from their refusal only.
void LayoutOverlayMode::reportGoneWindow(const std::shared_ptr<WindowElementModel>& element) const
{
    environment.platform.mainQueue.async([element, &log = environment.platform.log] {
        if (element->isGone()) {
            log.line("Window is gone; nothing was placed");
        }
    });
}

void LayoutOverlayMode::placeWindow(const WindowModel& frame, const ScreensModel& screens,
                                    WindowElementModel& element) const
{
    const auto& screen = screens.currentScreen();
    const auto screenFrame = screen ? screen->frame : ScreenRect();
    const auto visibleFrame = screen ? screen->visibleFrame : ScreenRect();
    const auto allScreens = environment.platform.screens.screens();
    const auto mainFrame = allScreens.empty() ? ScreenRect() : allScreens.front().frame;
    const auto placement = placeWindowInFrame(frame, screenFrame, visibleFrame, mainFrame);
    const auto& rect = placement.rect;

    auto& log = environment.platform.log;
    log.line("screenFrame: " + logText(screenFrame));
    log.line("visibleFrame: " + logText(visibleFrame));
    log.line("mainFrame: " + logText(mainFrame));
    log.line("windowModel: " + windowModelText(frame));
    log.line("diffX: " + logText(placement.diffX));
    log.line("diffY: " + logText(placement.diffY));
    log.line("menuBarHeight: " + logText(placement.menuBarHeight));
    log.line("x: " + logText(rect.x) + ", y: " + logText(rect.y) + ", w: " + logText(rect.width) +
             ", h: " + logText(rect.height));

    // Twice: an application that holds the new position against its old size, or the new size against its old position,
    // arrives at the second time.
    element.setWindowRect(rect);
    element.setWindowRect(rect);
}

} // namespace quorvel
