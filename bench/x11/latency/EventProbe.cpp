#include "latency/EventProbe.h"

#include <algorithm>
#include <ranges>
#include <thread>

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xfixes.h>
#include <xcb/xtest.h>

#include "support/Patience.h"

namespace quorvel::bench {

using xtest::PixelRect;
using xtest::XReply;

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 10s;     // of a measurement; what takes longer counts as missed
constexpr auto longPatience = 60s; // of what has to happen before there can be a measurement
constexpr auto quiet = 60ms;       // without painting in the new windows, they are painted
constexpr auto holdTime = 20ms;    // how long a finger stays on a key
constexpr auto modifierLead = 3ms; // between the modifiers and the key

bool overlaps(const PixelRect& a, const xcb_rectangle_t& b)
{
    return b.x < a.x + a.width && a.x < b.x + b.width && b.y < a.y + a.height && a.y < b.y + b.height;
}

} // namespace

EventProbe::EventProbe(const xtest::XServer& server) : xcb(xcb_connect(server.display().c_str(), nullptr))
{
    if (xcb_connection_has_error(xcb) != 0) {
        throw xtest::HarnessError("cannot connect to " + server.display());
    }
    screen = xcb_setup_roots_iterator(xcb_get_setup(xcb)).data;
    const XReply<xcb_xfixes_query_version_reply_t> fixes(
        xcb_xfixes_query_version_reply(xcb, xcb_xfixes_query_version(xcb, 5, 0), nullptr));
    const XReply<xcb_damage_query_version_reply_t> damage(
        xcb_damage_query_version_reply(xcb, xcb_damage_query_version(xcb, 1, 1), nullptr));
    const auto* extension = xcb_get_extension_data(xcb, &xcb_damage_id);
    if (!damage || extension == nullptr) {
        throw xtest::HarnessError("the X server lacks the DAMAGE extension");
    }
    damageEvent = extension->first_event;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(xcb, root(), XCB_CW_EVENT_MASK, &mask);
    xcb_damage_create(xcb, xcb_generate_id(xcb), root(), XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    topLevels.read(xcb, root());
}

EventProbe::~EventProbe()
{
    xcb_disconnect(xcb);
}

std::optional<Milliseconds> EventProbe::pressUntilPainted(const Chord& chord, std::size_t windowCount)
{
    rest();
    std::vector<xcb_window_t> shown;
    std::optional<Clock::time_point> lastPainting;
    const auto begin = press(chord);
    const auto observe = [&](const xcb_generic_event_t& event, Clock::time_point now) {
        if ((event.response_type & 0x7F) == XCB_MAP_NOTIFY) {
            const auto window = reinterpret_cast<const xcb_map_notify_event_t&>(event).window;
            if (TopLevels::isLargeEnoughToSee(frameOf(window))) {
                shown.push_back(window);
                lastPainting = now;
            }
        } else if ((event.response_type & 0x7F) == damageEvent) {
            const auto& area = reinterpret_cast<const xcb_damage_notify_event_t&>(event).area;
            if (std::ranges::any_of(shown, [&](auto window) { return overlaps(frameOf(window), area); })) {
                lastPainting = now;
            }
        }
    };
    bool released = false;
    const bool painted = readEvents(
        begin + patience,
        [&] {
            const auto now = Clock::now();
            if (!released && now - begin > holdTime) {
                release(chord);
                released = true;
            }
            return released && shown.size() >= windowCount && lastPainting && now - *lastPainting > quiet;
        },
        observe);
    if (!released) {
        release(chord);
    }
    return painted ? std::optional(Milliseconds(*lastPainting - begin)) : std::nullopt;
}

std::optional<Milliseconds> EventProbe::pressUntilPlaced(const Chord& chord, xcb_window_t topLevel,
                                                         const PixelRect& frame)
{
    rest();
    std::optional<Clock::time_point> reached;
    const auto begin = press(chord);
    readEvents(
        begin + patience, [&] { return reached.has_value(); },
        [&](const xcb_generic_event_t&, Clock::time_point now) {
            if (!reached && frameOf(topLevel) == frame) {
                reached = now;
            }
        });
    release(chord);
    return reached ? std::optional(Milliseconds(*reached - begin)) : std::nullopt;
}

std::optional<Milliseconds> EventProbe::pressUntilOtherActive(const Chord& chord)
{
    rest();
    const auto before = activeWindow();
    const auto activeWindowAtom = atom("_NET_ACTIVE_WINDOW");
    std::optional<Clock::time_point> changed;
    const auto begin = press(chord);
    readEvents(
        begin + patience, [&] { return changed.has_value(); },
        [&](const xcb_generic_event_t& event, Clock::time_point now) {
            const bool isProperty = (event.response_type & 0x7F) == XCB_PROPERTY_NOTIFY;
            if (isProperty && reinterpret_cast<const xcb_property_notify_event_t&>(event).atom == activeWindowAtom &&
                !changed) {
                const auto active = activeWindow();
                if (active != before && active != XCB_NONE) {
                    changed = now;
                }
            }
        });
    release(chord);
    rest();
    return changed ? std::optional(Milliseconds(*changed - begin)) : std::nullopt;
}

bool EventProbe::pressUntilVisible(const Chord& chord, std::size_t windowCount)
{
    press(chord);
    release(chord);
    const bool done = readEvents(
        Clock::now() + longPatience, [&] { return visibleCount() <= windowCount; }, [](const auto&, auto) {});
    rest();
    return done;
}

xcb_window_t EventProbe::topLevelOf(xcb_window_t window) const
{
    for (;;) {
        const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(xcb, xcb_query_tree(xcb, window), nullptr));
        if (!tree) {
            throw xtest::HarnessError("the measured window vanished");
        }
        if (tree->parent == tree->root || tree->parent == XCB_NONE) {
            return window;
        }
        window = tree->parent;
    }
}

void EventProbe::rest()
{
    sync();
    auto last = Clock::now();
    readEvents(
        last + patience, [&] { return Clock::now() - last > quiet; },
        [&](const xcb_generic_event_t&, Clock::time_point now) { last = now; });
}

bool EventProbe::waitFor(const std::function<bool()>& condition)
{
    const auto deadline = Clock::now() + longPatience;
    while (!condition()) {
        if (Clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

xcb_window_t EventProbe::activeWindow() const
{
    const auto query = xcb_get_property(xcb, 0, root(), atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 0, 1);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(xcb, query, nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) != sizeof(xcb_window_t)) {
        return XCB_NONE;
    }
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
}

bool EventProbe::hasSelectionOwner(const std::string& selection) const
{
    const auto query = xcb_get_selection_owner(xcb, atom(selection));
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(xcb, query, nullptr));
    return owner && owner->owner != XCB_NONE;
}

bool EventProbe::isHotKey(xcb_keysym_t key)
{
    xcb_grab_server(xcb); // so that nobody finds the key taken by the attempt
    const XReply<xcb_generic_error_t> refusal(
        xcb_request_check(xcb, xcb_grab_key_checked(xcb, 0, root(), XCB_MOD_MASK_4, codeOf(key), XCB_GRAB_MODE_ASYNC,
                                                    XCB_GRAB_MODE_ASYNC)));
    if (!refusal) {
        xcb_ungrab_key(xcb, codeOf(key), root(), XCB_MOD_MASK_4);
    }
    xcb_ungrab_server(xcb);
    sync();
    return refusal != nullptr;
}

xcb_atom_t EventProbe::atom(const std::string& name) const
{
    const auto query = xcb_intern_atom(xcb, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(xcb, query, nullptr));
    if (!reply) {
        throw xtest::HarnessError("the X server is gone");
    }
    return reply->atom;
}

EventProbe::Clock::time_point EventProbe::press(const Chord& chord)
{
    for (const auto modifier : chord.modifiers) {
        fakeKey(XCB_KEY_PRESS, modifier);
    }
    sync();
    std::this_thread::sleep_for(modifierLead);
    const auto begin = Clock::now();
    fakeKey(XCB_KEY_PRESS, chord.key);
    xcb_flush(xcb);
    return begin;
}

void EventProbe::release(const Chord& chord)
{
    fakeKey(XCB_KEY_RELEASE, chord.key);
    for (const auto modifier : chord.modifiers | std::views::reverse) {
        fakeKey(XCB_KEY_RELEASE, modifier);
    }
    xcb_flush(xcb);
}

void EventProbe::fakeKey(std::uint8_t type, xcb_keysym_t keysym)
{
    xcb_test_fake_input(xcb, type, codeOf(keysym), XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}

std::uint8_t EventProbe::codeOf(xcb_keysym_t keysym)
{
    auto& code = keyCodes[keysym];
    if (code == 0) {
        const std::unique_ptr<xcb_key_symbols_t, decltype(&xcb_key_symbols_free)> symbols(xcb_key_symbols_alloc(xcb),
                                                                                          &xcb_key_symbols_free);
        const XReply<xcb_keycode_t> found(xcb_key_symbols_get_keycode(symbols.get(), keysym));
        if (!found) {
            throw xtest::HarnessError("no key types the wanted symbol");
        }
        code = *found;
    }
    return code;
}

void EventProbe::sync() const
{
    const XReply<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

bool EventProbe::readEvents(Clock::time_point deadline, const std::function<bool()>& done,
                            const std::function<void(const xcb_generic_event_t&, Clock::time_point)>& observe)
{
    for (;;) {
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(xcb)}) {
            topLevels.follow(*event);
            observe(*event, Clock::now());
        }
        if (done()) {
            return true;
        }
        if (Clock::now() > deadline || xcb_connection_has_error(xcb) != 0) {
            return false;
        }
        pollfd descriptor{xcb_get_file_descriptor(xcb), POLLIN, 0};
        poll(&descriptor, 1, 1);
    }
}

} // namespace quorvel::bench
