#include "platform/x11/keys/KeyboardGrab.h"

#include <array>
#include <chrono>
#include <thread>
#include <utility>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/keys/Keyboard.h"

namespace quorvel::x11 {

namespace {

using namespace std::chrono_literals;

// A program that ends its own grab in this moment is waited for; a menu that stays open is not.
constexpr std::array retryPauses = {500us, 1000us, 1500us};

constexpr auto lostReleaseInterval = 500ms;

} // namespace

KeyboardGrab::KeyboardGrab(Connection& connection, const Keyboard& keyboard, KeyEvents& events, MainQueue& mainQueue)
    : connection(connection), keyboard(keyboard), events(events), mainQueue(mainQueue)
{
    events.setFollower([this](const KeyStroke& stroke, StrokeOutcome outcome) { follow(stroke, outcome); });
}

KeyboardGrab::~KeyboardGrab()
{
    events.setFollower(nullptr);
    releaseAtOnce();
}

bool KeyboardGrab::take()
{
    isReleaseDue = false;
    const bool isStopped = std::exchange(isStrokeUndecided, false);
    if (phase == Phase::free && !grab()) {
        return false;
    }
    if (isStopped || phase == Phase::free) {
        allowNextStroke();
    }
    phase = Phase::taken;
    return true;
}

bool KeyboardGrab::grab()
{
    auto status = grabStatus(events.latestTime());
    if (status == XCB_GRAB_STATUS_INVALID_TIME) {
        status = grabStatus(XCB_CURRENT_TIME);
    }
    for (const auto pause : retryPauses) {
        if (status != XCB_GRAB_STATUS_ALREADY_GRABBED && status != XCB_GRAB_STATUS_FROZEN) {
            break;
        }
        std::this_thread::sleep_for(pause);
        status = grabStatus(XCB_CURRENT_TIME);
    }
    return status == XCB_GRAB_STATUS_SUCCESS;
}

std::uint8_t KeyboardGrab::grabStatus(xcb_timestamp_t time)
{
    const auto cookie =
        xcb_grab_keyboard(connection.xcb(), 0, connection.root(), time, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC);
    grabRequest = cookie.sequence;
    PendingReply<xcb_grab_keyboard_reply> pending(connection.xcb(), cookie);
    const auto reply = pending.take();
    return reply ? reply->status : std::uint8_t{XCB_GRAB_STATUS_NOT_VIEWABLE};
}

void KeyboardGrab::releaseSoon()
{
    if (phase != Phase::taken || std::exchange(isReleaseDue, true)) {
        return;
    }
    // What the last key caused is asked of others in the next turn; the keyboard must not make that wait for the
    // server.
    mainQueue.async(weakGuard.guard([this] {
        mainQueue.async(weakGuard.guard([this] {
            if (std::exchange(isReleaseDue, false)) {
                release();
            }
        }));
    }));
}

void KeyboardGrab::release()
{
    isReleaseDue = false;
    if (phase != Phase::taken) {
        return;
    }
    if (isStrokeUndecided) {
        handOn();
    } else if (events.heldKeys().empty()) {
        releaseAtOnce();
    } else {
        phase = Phase::leaving;
        lookForLostReleases();
    }
}

void KeyboardGrab::releaseAtOnce()
{
    isReleaseDue = false;
    isStrokeUndecided = false;
    if (std::exchange(phase, Phase::free) != Phase::free) {
        events.forgetHeldKeys();
        xcb_ungrab_keyboard(connection.xcb(), XCB_CURRENT_TIME);
        connection.sync();
    }
}

void KeyboardGrab::follow(const KeyStroke& stroke, StrokeOutcome outcome)
{
    if (phase == Phase::leaving && events.heldKeys().empty()) {
        releaseAtOnce();
        return;
    }
    if (phase != Phase::free && isFromBeforeGrab(stroke)) {
        return; // the keyboard did not stop after it
    }
    const bool isForApplication = stroke.kind == KeyStroke::Kind::press && outcome == StrokeOutcome::untaken &&
                                  !keyboard.mapping().isModifier(stroke.keycode);
    if (isForApplication && phase != Phase::taken) {
        handOn();
    } else if (isForApplication && isReleaseDue) {
        isStrokeUndecided = true;
    } else {
        allowNextStroke();
    }
}

// Events bear the number of the latest request that the server had carried out.
bool KeyboardGrab::isFromBeforeGrab(const KeyStroke& stroke) const
{
    return static_cast<std::int32_t>(stroke.request - grabRequest) < 0;
}

// Has the server send the latest stroke to the focused window, as if the grab had ended just before it.
void KeyboardGrab::handOn()
{
    phase = Phase::free;
    isStrokeUndecided = false;
    events.forgetHeldKeys();
    xcb_allow_events(connection.xcb(), XCB_ALLOW_REPLAY_KEYBOARD, XCB_CURRENT_TIME);
    connection.flush();
}

void KeyboardGrab::allowNextStroke()
{
    xcb_allow_events(connection.xcb(), XCB_ALLOW_SYNC_KEYBOARD, XCB_CURRENT_TIME);
    connection.flush();
}

// A keyboard that is pulled out, or a switch to another console, can swallow a release.
void KeyboardGrab::lookForLostReleases()
{
    if (std::exchange(isLooking, true)) {
        return;
    }
    mainQueue.after(lostReleaseInterval, weakGuard.guard([this] {
        isLooking = false;
        if (phase != Phase::leaving) {
            return;
        }
        forgetReleasedKeys();
        if (events.heldKeys().empty()) {
            releaseAtOnce();
        } else {
            lookForLostReleases();
        }
    }));
}

void KeyboardGrab::forgetReleasedKeys()
{
    PendingReply<xcb_query_keymap_reply> pending(connection.xcb(), xcb_query_keymap(connection.xcb()));
    const auto reply = pending.take();
    for (const auto keycode : events.heldKeys()) {
        const bool isDown = reply && (reply->keys[keycode / 8] & (1U << (keycode % 8))) != 0;
        if (!isDown) {
            events.forget(keycode);
        }
    }
}

} // namespace quorvel::x11
