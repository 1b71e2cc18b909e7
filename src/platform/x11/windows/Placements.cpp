#include "platform/x11/windows/Placements.h"

#include <chrono>
#include <utility>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/Precedence.h"
#include "platform/x11/windows/ClientWindows.h"
#include "platform/x11/windows/WindowManagerBarrier.h"

namespace quorvel::x11 {

namespace {

using namespace std::chrono_literals;

// Of changes to a frame others mostly follow at once.
constexpr auto coalescingTime = 16ms;

// A window that has not moved for so long has come to rest.
constexpr auto quietTime = 60ms;

// After so long a window is left alone, for a person may be moving it meanwhile.
constexpr auto longestTime = 1s;

constexpr std::uint32_t watchedEvents = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

} // namespace

Placements::Placements(Connection& connection, MainQueue& mainQueue, Precedence& precedence, ClientWindows& windows,
                       WindowManager& windowManager, WindowManagerBarrier& barrier)
    : connection(connection),
      mainQueue(mainQueue),
      precedence(precedence),
      windows(windows),
      windowManager(windowManager),
      barrier(barrier)
{
    const auto noteChange = [this](const auto& event) { noteEvent(event.window); };
    subscriptions.push_back(connection.addHandler<xcb_configure_notify_event_t>(XCB_CONFIGURE_NOTIFY, noteChange));
    subscriptions.push_back(connection.addHandler<xcb_reparent_notify_event_t>(XCB_REPARENT_NOTIFY, noteChange));
    subscriptions.push_back(connection.addHandler<xcb_property_notify_event_t>(
        XCB_PROPERTY_NOTIFY, [this](const auto& event) { handlePropertyChange(event); }));
    subscriptions.push_back(connection.addHandler<xcb_destroy_notify_event_t>(
        XCB_DESTROY_NOTIFY, [this](const auto& event) { running.erase(event.window); }));
}

void Placements::setOrigin(xcb_window_t window, const WindowSnapshot& snapshot, RootPoint origin)
{
    written(window, snapshot).target.origin = origin;
}

void Placements::setSize(xcb_window_t window, const WindowSnapshot& snapshot, Size size)
{
    written(window, snapshot).target.size = size;
}

Placements::Written& Placements::written(xcb_window_t window, const WindowSnapshot& snapshot)
{
    if (writes.empty()) {
        mainQueue.async(weakGuard.guard([this] { flush(); }));
    }
    const auto [entry, isFirst] = writes.try_emplace(window);
    if (isFirst) {
        entry->second.snapshot = snapshot;
        entry->second.precedence = precedence.claim();
    }
    outerMayChange(window);
    return entry->second;
}

RootRect Placements::outer(xcb_window_t window, const WindowSnapshot& snapshot) const
{
    auto rect = snapshot.outer();
    if (const auto entry = running.find(window); entry != running.end() && entry->second.isOpen()) {
        rect = entry->second.placement.appliedTo(rect);
    }
    if (const auto entry = writes.find(window); entry != writes.end()) {
        rect = wholePixels(entry->second.target).appliedTo(rect);
    }
    return rect;
}

void Placements::flush()
{
    for (auto& [window, entry] : std::exchange(writes, {})) {
        start(window, entry);
    }
}

void Placements::start(xcb_window_t window, Written& written)
{
    const auto target = wholePixels(written.target);
    const auto previous = running.find(window);
    const auto& snapshot = written.snapshot;
    const bool isUnderWay = previous != running.end() && previous->second.placement.hasTarget(target);
    // What has been refused is asked for anew, so that whoever wrote it hears of the refusal again.
    if (isUnderWay && (previous->second.isOpen() || previous->second.placement.isFulfilledBy(snapshot))) {
        return;
    }
    const auto number = ++lastNumber;
    Running next{Placement(target, knownAnchor()), connection.selectEvents(window, watchedEvents),
                 std::move(written.precedence), number};
    auto& entry = running.insert_or_assign(window, std::move(next)).first->second;
    perform(window, entry, entry.placement.begin(snapshot));
    mainQueue.after(longestTime, weakGuard.guard([this, window, number] {
        const auto expired = running.find(window);
        if (expired == running.end() || expired->second.number != number) {
            return;
        }
        if (!expired->second.isAnswered) {
            barrier.noteVainWait();
        }
        end(expired);
    }));
}

void Placements::handlePropertyChange(const xcb_property_notify_event_t& event)
{
    const auto& atoms = connection.atoms();
    if (event.atom == atoms.netWmState) {
        noteEvent(event.window);
        reconsider(event.window);
    } else if (event.atom == atoms.netFrameExtents || event.atom == atoms.gtkFrameExtents) {
        noteEvent(event.window);
        reconsiderSoon(event.window);
    }
}

// Where the window manager does not say when it has dealt with a request, a change of the window must do as a sign.
void Placements::noteEvent(xcb_window_t window)
{
    const auto entry = running.find(window);
    if (entry == running.end()) {
        return;
    }
    if (!barrier.isSupported()) {
        noteAnswer(window, entry->second);
    }
    noteActivity(window);
}

void Placements::awaitAnswer(xcb_window_t window, Running& entry)
{
    entry.isAnswered = false;
    entry.request = ++lastNumber;
    if (!barrier.isSupported()) {
        return;
    }
    barrier.whenReached(weakGuard.guard([this, window, request = entry.request] {
        const auto asking = running.find(window);
        if (asking != running.end() && asking->second.request == request) {
            noteAnswer(window, asking->second);
            noteActivity(window);
        }
    }));
}

void Placements::noteAnswer(xcb_window_t window, Running& entry)
{
    entry.isAnswered = true;
    entry.precedence.reset();
    outerMayChange(window);
}

void Placements::end(std::map<xcb_window_t, Running>::iterator entry)
{
    const auto window = entry->first;
    running.erase(entry);
    outerMayChange(window);
}

void Placements::noteActivity(xcb_window_t window)
{
    const auto entry = running.find(window);
    if (entry == running.end()) {
        return;
    }
    const auto activity = entry->second.activity = ++lastNumber;
    mainQueue.after(quietTime, weakGuard.guard([this, window, activity] { settle(window, activity); }));
}

void Placements::reconsiderSoon(xcb_window_t window)
{
    const auto entry = running.find(window);
    if (entry == running.end() || std::exchange(entry->second.isReconsiderationDue, true)) {
        return;
    }
    mainQueue.after(coalescingTime, weakGuard.guard([this, window] { reconsider(window); }));
}

void Placements::reconsider(xcb_window_t window)
{
    const auto entry = running.find(window);
    const auto* const snapshot = entry != running.end() ? windows.find(window) : nullptr;
    if (snapshot == nullptr) {
        return;
    }
    entry->second.isReconsiderationDue = false;
    const auto step = entry->second.placement.reconsider(*snapshot);
    if (!step.isEmpty()) {
        perform(window, entry->second, step);
    }
}

void Placements::settle(xcb_window_t window, std::uint64_t activity)
{
    const auto entry = running.find(window);
    if (entry == running.end() || entry->second.activity != activity) {
        return;
    }
    const auto* const snapshot = windows.find(window);
    if (snapshot == nullptr) {
        end(entry);
        return;
    }
    auto& placement = entry->second.placement;
    // What a busy window manager makes of the request is still to come, and a window that was moved may yet be resized.
    const bool isDealtWith = entry->second.isAnswered || (!barrier.isSupported() && placement.isFulfilledBy(*snapshot));
    if (!isDealtWith) {
        noteActivity(window);
        return;
    }
    const bool wasHeard = entry->second.asked == windowManager.identity();
    const auto step = wasHeard ? placement.settle(*snapshot) : placement.repeat(*snapshot);
    if (placement.hasProvedClientAnchor()) {
        clientAnchoringManager = windowManager.identity();
    }
    if (step.isEmpty()) {
        end(entry);
        return;
    }
    perform(window, entry->second, step);
}

void Placements::perform(xcb_window_t window, Running& entry, const Placement::Step& step)
{
    entry.asked = windowManager.identity();
    if (step.leavesState) {
        windowManager.leaveMaximizedAndFullscreen(window);
    }
    if (step.geometry) {
        windowManager.moveAndResize(window, *step.geometry);
    }
    awaitAnswer(window, entry);
    noteActivity(window);
}

Anchor Placements::knownAnchor()
{
    const auto manager = windowManager.identity();
    return manager != 0 && manager == clientAnchoringManager ? Anchor::client : Anchor::frame;
}

} // namespace quorvel::x11
