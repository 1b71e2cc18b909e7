#include "system/GlobalEventBlocker.h"

#include <utility>

#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/Screens.h"
#include "platform/Workspace.h"
#include "system/KeyCapturePanel.h"

namespace quorvel {

GlobalEventBlocker::GlobalEventBlocker(const Platform& platform)
    : platform(platform), keys(platform.mainQueue, [this](const CapturedKey& key) { handle(key); })
{}

GlobalEventBlocker::~GlobalEventBlocker() = default;

void GlobalEventBlocker::start()
{
    if (eventTap) {
        return;
    }
    // The tap goes with this object, so its callback needs no guard on the way of every key.
    eventTap = platform.eventTaps.createTap({.eventMask = keyDownEventMask},
                                            [this](const TapEvent& event) { return decide(event); });
    if (!eventTap) {
        platform.log.line("Failed to create event tap (Accessibility permission likely missing). Key-capture panel "
                          "will be used as fallback.");
        return;
    }
    hasRunLoopSource = eventTap->createRunLoopSource();
    if (!hasRunLoopSource) {
        platform.log.line("Failed to create run loop source");
        return;
    }
    eventTap->addSourceToRunLoop();
    eventTap->setEnabled(true);
    announceBlockedKeys();
}

void GlobalEventBlocker::stop()
{
    if (eventTap) {
        eventTap->setEnabled(false);
    }
    if (hasRunLoopSource) {
        eventTap->removeSourceFromRunLoop();
    }
    eventTap.reset();
    hasRunLoopSource = false;
    isTapRefusedKeys = false;
    hideKeyCapturePanel();
}

bool GlobalEventBlocker::hasEventTap() const
{
    return eventTap && !isTapRefusedKeys;
}

const KeyCodeSet& GlobalEventBlocker::blockedKeyCodes() const
{
    return keyCodes;
}

void GlobalEventBlocker::setBlockedKeyCodes(KeyCodeSet newKeyCodes)
{
    if (newKeyCodes == keyCodes) {
        return;
    }
    keyCodes = std::move(newKeyCodes);
    announceBlockedKeys();
}

void GlobalEventBlocker::blockAllKeys()
{
    constexpr KeyCode keyCodeCount = 256;
    auto all = keyCodes;
    for (KeyCode keyCode = 0; keyCode < keyCodeCount; ++keyCode) {
        all.insert(keyCode);
    }
    setBlockedKeyCodes(std::move(all));
    if (!hasEventTap()) {
        showKeyCapturePanel();
    }
}

void GlobalEventBlocker::setOnBlockKey(CapturedKeyHandler handler)
{
    onBlockKey = std::move(handler);
    if (onBlockKey && !keyCodes.empty() && !hasEventTap()) {
        showKeyCapturePanel();
    }
}

void GlobalEventBlocker::showKeyCapturePanel()
{
    if (keyCapturePanel && keyCapturePanel->isKey()) {
        return;
    }
    if (!keyCapturePanel) {
        const auto mainScreen = platform.screens.mainScreen();
        const auto contentRect = mainScreen ? mainScreen->frame : ScreenRect{0.0, 0.0, 100.0, 100.0};
        keyCapturePanel =
            std::make_unique<KeyCapturePanel>(platform, contentRect, weakly.guard([this](const CapturedKey& key) {
                if (keyCodes.contains(key.keyCode)) {
                    keys.deliver(key);
                }
            }));
    }
    const auto frontmost = platform.workspace.frontmostApplication();
    if (!frontmost) {
        previousApp.reset();
    } else if (frontmost->process != platform.workspace.ownProcess()) {
        previousApp = frontmost->process;
    }
    takeFocus();
}

void GlobalEventBlocker::keepKeysFrom(ProcessId activated)
{
    if (keyCapturePanel && keyCapturePanel->isVisible()) {
        setPreviousApp(activated);
        takeFocus();
    }
}

void GlobalEventBlocker::takeFocus()
{
    keyCapturePanel->orderFrontRegardless();
    platform.workspace.activateSelf();
    keyCapturePanel->makeKey();
}

void GlobalEventBlocker::setPreviousApp(ProcessId process)
{
    if (keyCapturePanel && keyCapturePanel->isVisible()) {
        previousApp = process;
    }
}

void GlobalEventBlocker::clearBlockedKeys()
{
    setBlockedKeyCodes({});
    hideKeyCapturePanel();
}

TapDecision GlobalEventBlocker::decide(const TapEvent& event)
{
    switch (event.type()) {
    case TapEventType::disabledByTimeout:
    case TapEventType::disabledByUserInput:
        eventTap->setEnabled(true);
        return TapDecision::pass;
    case TapEventType::keyDown:
        break;
    case TapEventType::keyUp:
    case TapEventType::flagsChanged:
    case TapEventType::other:
        return TapDecision::pass;
    }
    const auto keyCode = event.keyCode();
    if (!keyCodes.contains(keyCode)) {
        return TapDecision::pass;
    }
    auto key = event.keyEvent().transform(capturedKeyFrom).value_or(CapturedKey{});
    key.keyCode = keyCode;
    // Later, so that the handler's work never delays the decision: the system turns slow taps off.
    keys.deliverLater(std::move(key));
    return TapDecision::drop;
}

void GlobalEventBlocker::handle(const CapturedKey& key) const
{
    // A copy: the handler may well set another one.
    if (const auto handler = onBlockKey) {
        handler(key);
    }
}

void GlobalEventBlocker::announceBlockedKeys()
{
    isTapRefusedKeys = hasRunLoopSource && !eventTap->setKeysOfInterest(keyCodes);
}

void GlobalEventBlocker::hideKeyCapturePanel()
{
    if (!keyCapturePanel || !keyCapturePanel->isVisible()) {
        return;
    }
    keyCapturePanel->orderOut();
    if (previousApp && platform.workspace.runningApplication(*previousApp)) {
        platform.workspace.activate(*previousApp);
    }
    previousApp.reset();
}

} // namespace quorvel
