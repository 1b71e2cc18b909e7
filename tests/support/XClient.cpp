#include "support/XClient.h"

#include <algorithm>
#include <cstring>
#include <span>

#include <fmt/format.h>
#include <xcb/damage.h>
#include <xcb/res.h>
#include <xcb/xfixes.h>

#include "support/Patience.h"

namespace quorvel::xtest {
namespace {

constexpr std::uint32_t watchMask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY |
                                    XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_FOCUS_CHANGE |
                                    XCB_EVENT_MASK_VISIBILITY_CHANGE;
constexpr std::uint32_t longestProperty = 1 << 16; // in units of four bytes

FrameExtents extentsFrom(const std::vector<std::uint32_t>& values)
{
    if (values.size() < 4) {
        return {};
    }
    return {static_cast<int>(values[0]), static_cast<int>(values[1]), static_cast<int>(values[2]),
            static_cast<int>(values[3])};
}

} // namespace

XClient::XClient(const XServer& server)
{
    int number = 0;
    link.reset(xcb_connect(server.display().c_str(), &number));
    if (xcb_connection_has_error(link.get()) != 0) {
        throw HarnessError(fmt::format("cannot connect to display {}", server.display()));
    }
    screenInfo = xcb_setup_roots_iterator(xcb_get_setup(link.get())).data;
    const XReply<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(link.get(), xcb_xfixes_query_version(link.get(), 5, 0), nullptr));
    watch(root());
}

XClient::~XClient() = default;

xcb_atom_t XClient::atom(const std::string& name)
{
    if (const auto known = atoms.find(name); known != atoms.end()) {
        return known->second;
    }
    const auto cookie = xcb_intern_atom(link.get(), 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(link.get(), cookie, nullptr));
    if (!reply) {
        throw HarnessError("the X server is gone");
    }
    return atoms[name] = reply->atom;
}

std::string XClient::atomName(xcb_atom_t atom)
{
    const XReply<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(link.get(), xcb_get_atom_name(link.get(), atom), nullptr));
    if (!reply) {
        return {};
    }
    return {xcb_get_atom_name_name(reply.get()), static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get()))};
}

void XClient::waitFor(const std::string& what, const std::function<bool()>& predicate)
{
    const Deadline deadline;
    for (;;) {
        handleEvents();
        if (predicate()) {
            return;
        }
        // The predicate's round trips may have brought events along, which the descriptor no longer announces.
        if (handleEvents()) {
            continue;
        }
        xcb_flush(link.get());
        waitUntilReadable(xcb_get_file_descriptor(link.get()), deadline, what);
        if (xcb_connection_has_error(link.get()) != 0) {
            throw HarnessError(fmt::format("the X server went away during the wait for {}", what));
        }
    }
}

bool XClient::handleEvents()
{
    bool any = false;
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(link.get())}) {
        any = true;
        handle(*event);
    }
    return any;
}

void XClient::handle(const xcb_generic_event_t& event)
{
    if (event.response_type == 0) {
        const auto& error = reinterpret_cast<const xcb_generic_error_t&>(event);
        throw HarnessError(fmt::format("X error {} for request {}.{}, resource {:#x}", error.error_code,
                                       error.major_code, error.minor_code, error.resource_id));
    }
    const auto type = static_cast<std::uint8_t>(event.response_type & 0x7F);
    if (type == XCB_CREATE_NOTIFY) {
        watch(reinterpret_cast<const xcb_create_notify_event_t&>(event).window);
    } else if (damageEvent != 0 && type == damageEvent) {
        xcb_damage_subtract(link.get(), reinterpret_cast<const xcb_damage_notify_event_t&>(event).damage, XCB_NONE,
                            XCB_NONE);
        xcb_flush(link.get());
    }
    if (eventObserver) {
        eventObserver(event);
    }
}

void XClient::watch(xcb_window_t window)
{
    const XReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(link.get(), xcb_get_window_attributes(link.get(), window), nullptr));
    if (!attributes) {
        return; // gone again by now, which is no failure; hence the checked request below, too
    }
    const std::uint32_t mask = watchMask | attributes->your_event_mask;
    const auto cookie = xcb_change_window_attributes_checked(link.get(), window, XCB_CW_EVENT_MASK, &mask);
    const XReply<xcb_generic_error_t> error(xcb_request_check(link.get(), cookie));
    for (const xcb_window_t child : children(window)) {
        watch(child);
    }
}

void XClient::watchPainting()
{
    if (damageEvent != 0) {
        return;
    }
    const XReply<xcb_damage_query_version_reply_t> version(
        xcb_damage_query_version_reply(link.get(), xcb_damage_query_version(link.get(), 1, 1), nullptr));
    const auto* extension = xcb_get_extension_data(link.get(), &xcb_damage_id);
    damageEvent = static_cast<std::uint8_t>(extension->first_event + XCB_DAMAGE_NOTIFY);
    xcb_damage_create(link.get(), xcb_generate_id(link.get()), root(), XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_flush(link.get());
}

void XClient::watchSelection(const std::string& selection)
{
    xcb_xfixes_select_selection_input(link.get(), root(), atom(selection),
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    xcb_flush(link.get());
}

xcb_window_t XClient::selectionOwner(const std::string& selection)
{
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(link.get(), xcb_get_selection_owner(link.get(), atom(selection)), nullptr));
    return reply ? reply->owner : XCB_NONE;
}

XReply<xcb_get_property_reply_t> XClient::rawProperty(xcb_window_t window, const std::string& name)
{
    const auto cookie =
        xcb_get_property(link.get(), 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, longestProperty);
    XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(link.get(), cookie, nullptr));
    return reply && reply->type != XCB_NONE ? std::move(reply) : nullptr;
}

std::vector<std::uint32_t> XClient::property(xcb_window_t window, const std::string& name)
{
    const auto reply = rawProperty(window, name);
    if (!reply || reply->format != 32) {
        return {};
    }
    const std::span values(static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get())), reply->value_len);
    return {values.begin(), values.end()};
}

std::string XClient::textProperty(xcb_window_t window, const std::string& name)
{
    const auto reply = rawProperty(window, name);
    if (!reply || reply->format != 8) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len};
}

bool XClient::hasProperty(xcb_window_t window, const std::string& name)
{
    return rawProperty(window, name) != nullptr;
}

void XClient::setProperty(xcb_window_t window, const std::string& name, xcb_atom_t type,
                          const std::vector<std::uint32_t>& values)
{
    xcb_change_property(link.get(), XCB_PROP_MODE_REPLACE, window, atom(name), type, 32,
                        static_cast<std::uint32_t>(values.size()), values.data());
    xcb_flush(link.get());
}

void XClient::setTextProperty(xcb_window_t window, const std::string& name, const std::string& text)
{
    xcb_change_property(link.get(), XCB_PROP_MODE_REPLACE, window, atom(name), atom("UTF8_STRING"), 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
    xcb_flush(link.get());
}

void XClient::sendToWindowManager(xcb_window_t window, const std::string& type,
                                  const std::array<std::uint32_t, 5>& data)
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(type);
    std::ranges::copy(data, std::begin(message.data.data32));
    xcb_send_event(link.get(), 0, root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(link.get());
}

std::vector<xcb_window_t> XClient::children(xcb_window_t window)
{
    const XReply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(link.get(), xcb_query_tree(link.get(), window), nullptr));
    if (!reply) {
        return {};
    }
    const std::span windows(xcb_query_tree_children(reply.get()), reply->children_len);
    return {windows.begin(), windows.end()};
}

std::optional<xcb_window_t> XClient::parent(xcb_window_t window)
{
    const XReply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(link.get(), xcb_query_tree(link.get(), window), nullptr));
    return reply ? std::optional(reply->parent) : std::nullopt;
}

bool XClient::exists(xcb_window_t window)
{
    return parent(window).has_value();
}

bool XClient::isViewable(xcb_window_t window)
{
    return answerOf(xcb_get_window_attributes(link.get(), window));
}

bool XClient::answerOf(xcb_get_window_attributes_cookie_t cookie)
{
    const XReply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(link.get(), cookie, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool XClient::overridesRedirect(xcb_window_t window)
{
    const XReply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(link.get(), xcb_get_window_attributes(link.get(), window), nullptr));
    return reply && reply->override_redirect != 0;
}

std::optional<PixelRect> XClient::clientRect(xcb_window_t window)
{
    const auto geometryCookie = xcb_get_geometry(link.get(), window);
    const auto positionCookie = xcb_translate_coordinates(link.get(), window, root(), 0, 0);
    const XReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(link.get(), geometryCookie, nullptr));
    const XReply<xcb_translate_coordinates_reply_t> position(
        xcb_translate_coordinates_reply(link.get(), positionCookie, nullptr));
    if (!geometry || !position) {
        return std::nullopt;
    }
    return PixelRect{position->dst_x, position->dst_y, geometry->width, geometry->height};
}

xcb_window_t XClient::topLevelOf(xcb_window_t window)
{
    for (;;) {
        const auto above = parent(window);
        if (!above || *above == root() || *above == XCB_NONE) {
            return window;
        }
        window = *above;
    }
}

std::optional<PixelRect> XClient::topLevelRect(xcb_window_t window)
{
    const auto cookie = xcb_get_geometry(link.get(), topLevelOf(window));
    const XReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(link.get(), cookie, nullptr));
    if (!geometry) {
        return std::nullopt;
    }
    const int borders = 2 * geometry->border_width;
    return PixelRect{geometry->x, geometry->y, geometry->width + borders, geometry->height + borders};
}

std::optional<PixelRect> XClient::outerRect(xcb_window_t window)
{
    const auto frame = frameExtents(window);
    const auto shadow = shadowExtents(window);
    if (frame == FrameExtents() && shadow == FrameExtents()) {
        return topLevelRect(window); // i3 publishes no extents; undecorated windows are their own frame
    }
    const auto client = clientRect(window);
    if (!client) {
        return std::nullopt;
    }
    return PixelRect{client->x - frame.left + shadow.left, client->y - frame.top + shadow.top,
                     client->width + frame.left + frame.right - shadow.left - shadow.right,
                     client->height + frame.top + frame.bottom - shadow.top - shadow.bottom};
}

FrameExtents XClient::frameExtents(xcb_window_t window)
{
    return extentsFrom(property(window, "_NET_FRAME_EXTENTS"));
}

FrameExtents XClient::shadowExtents(xcb_window_t window)
{
    return extentsFrom(property(window, "_GTK_FRAME_EXTENTS"));
}

std::vector<xcb_window_t> XClient::managedWindows()
{
    return property(root(), "_NET_CLIENT_LIST");
}

xcb_window_t XClient::activeWindow()
{
    const auto values = property(root(), "_NET_ACTIVE_WINDOW");
    return values.empty() ? XCB_NONE : values.front();
}

void XClient::activate(xcb_window_t window)
{
    constexpr std::uint32_t sourcePager = 2; // applications are refused by some window managers
    sendToWindowManager(window, "_NET_ACTIVE_WINDOW", {sourcePager, XCB_CURRENT_TIME, 0, 0, 0});
    waitFor("a window to be active", [&] { return activeWindow() == window; });
}

bool XClient::hasState(xcb_window_t window, const std::string& state)
{
    return std::ranges::count(property(window, "_NET_WM_STATE"), atom(state)) > 0;
}

PixelRect XClient::workArea()
{
    const auto values = property(root(), "_NET_WORKAREA");
    if (values.size() < 4) {
        throw HarnessError("the window manager tells of no work area");
    }
    return {static_cast<int>(values[0]), static_cast<int>(values[1]), static_cast<int>(values[2]),
            static_cast<int>(values[3])};
}

xcb_window_t XClient::focusedWindow()
{
    const XReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(link.get(), xcb_get_input_focus(link.get()), nullptr));
    return focus ? focus->focus : XCB_NONE;
}

pid_t XClient::processOf(xcb_window_t window)
{
    return answerOf(askForProcess(window));
}

xcb_res_query_client_ids_cookie_t XClient::askForProcess(xcb_window_t window)
{
    const xcb_res_client_id_spec_t spec{.client = window, .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    return xcb_res_query_client_ids(link.get(), 1, &spec);
}

pid_t XClient::answerOf(xcb_res_query_client_ids_cookie_t cookie)
{
    const XReply<xcb_res_query_client_ids_reply_t> reply(xcb_res_query_client_ids_reply(link.get(), cookie, nullptr));
    if (!reply) {
        return 0;
    }
    for (auto ids = xcb_res_query_client_ids_ids_iterator(reply.get()); ids.rem > 0;
         xcb_res_client_id_value_next(&ids)) {
        if ((ids.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0 && ids.data->length >= 4) {
            return static_cast<pid_t>(*xcb_res_client_id_value_value(ids.data));
        }
    }
    return 0;
}

std::vector<xcb_window_t> XClient::topLevelsOfProcess(pid_t process)
{
    // All questions are on their way before the first answer is read: there may be a thousand windows.
    auto windows = children(root());
    std::vector<xcb_get_window_attributes_cookie_t> attributes;
    std::vector<xcb_res_query_client_ids_cookie_t> processes;
    for (const xcb_window_t window : windows) {
        attributes.push_back(xcb_get_window_attributes(link.get(), window));
        processes.push_back(askForProcess(window));
    }
    std::size_t index = 0;
    std::erase_if(windows, [&](xcb_window_t /*window*/) {
        const bool isViewable = answerOf(attributes[index]);
        const bool isOfProcess = answerOf(processes[index]) == process;
        ++index;
        return !isViewable || !isOfProcess;
    });
    return windows;
}

void XClient::sync()
{
    const XReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(link.get(), xcb_get_input_focus(link.get()), nullptr));
}

} // namespace quorvel::xtest
