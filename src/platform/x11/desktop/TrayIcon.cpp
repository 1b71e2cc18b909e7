#include "platform/x11/desktop/TrayIcon.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include <fmt/format.h>

#include "platform/x11/Connection.h"
#include "platform/x11/Properties.h"
#include "platform/x11/Selections.h"
#include "platform/x11/WindowNames.h"

namespace quorvel::x11 {

namespace {

constexpr std::uint8_t alphaDepth = 32;
constexpr int preferredSize = 22;
constexpr int greatestSize = 256; // of what is painted, however large the tray makes the window

// The property WM_NORMAL_HINTS, of which trays read the least size.
struct SizeHints {
    std::uint32_t flags = 1U << 4U; // the least size is given
    std::array<std::int32_t, 4> obsolete{};
    std::array<std::int32_t, 2> minimum{preferredSize, preferredSize};
    std::array<std::int32_t, 11> others{};
};

std::optional<std::uint8_t> depthOf(const xcb_screen_t& screen, xcb_visualid_t visual)
{
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0; xcb_depth_next(&depths)) {
        for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            if (visuals.data->visual_id == visual) {
                return depths.data->depth;
            }
        }
    }
    return std::nullopt;
}

} // namespace

TrayIcon::TrayIcon(Connection& connection, Drawing drawing, std::function<void()> onClick)
    : connection(connection),
      drawing(std::move(drawing)),
      onClick(std::move(onClick)),
      selection(connection.atom(fmt::format("_NET_SYSTEM_TRAY_S{}", connection.screenNumber())))
{
    addHandlers();
    findTray();
}

TrayIcon::~TrayIcon()
{
    undock();
}

void TrayIcon::addHandlers()
{
    // A tray that starts announces itself by a message to the root.
    handlers.push_back(connection.selectEvents(connection.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY));
    handlers.push_back(connection.addHandler<xcb_client_message_event_t>(
        XCB_CLIENT_MESSAGE, [this](const xcb_client_message_event_t& event) {
            if (event.type == connection.atoms().manager && event.data.data32[1] == selection && !isDocked()) {
                findTray();
            }
        }));
    handlers.push_back(connection.addHandler<xcb_destroy_notify_event_t>(
        XCB_DESTROY_NOTIFY, [this](const xcb_destroy_notify_event_t& event) {
            if (tray != XCB_WINDOW_NONE && event.window == tray) {
                forgetTray();
            }
        }));
    handlers.push_back(connection.addHandler<xcb_property_notify_event_t>(
        XCB_PROPERTY_NOTIFY, [this](const xcb_property_notify_event_t& event) {
            if (tray != XCB_WINDOW_NONE && event.window == tray) {
                update();
            }
        }));
    handlers.push_back(connection.addHandler<xcb_configure_notify_event_t>(
        XCB_CONFIGURE_NOTIFY, [this](const xcb_configure_notify_event_t& event) {
            if (isDocked() && event.window == window) {
                size = {std::min<int>(event.width, greatestSize), std::min<int>(event.height, greatestSize)};
                update();
            }
        }));
    handlers.push_back(connection.addHandler<xcb_expose_event_t>(XCB_EXPOSE, [this](const xcb_expose_event_t& event) {
        if (isDocked() && event.window == window && event.count == 0) {
            update();
        }
    }));
    handlers.push_back(connection.addHandler<xcb_button_press_event_t>(
        XCB_BUTTON_PRESS, [this](const xcb_button_press_event_t& event) {
            if (isDocked() && event.event == window && event.detail <= XCB_BUTTON_INDEX_3) {
                // The press has grabbed the pointer for this connection; a menu wants it for its own.
                xcb_ungrab_pointer(connection.xcb(), event.time);
                connection.flush();
                onClick();
            }
        }));
}

void TrayIcon::findTray()
{
    if (const auto owner = selectionOwner(connection, selection); owner != XCB_WINDOW_NONE) {
        tray = owner;
        trayEvents = connection.selectEvents(tray, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
        dock();
    }
}

void TrayIcon::forgetTray()
{
    tray = XCB_WINDOW_NONE;
    trayEvents.reset();
    undock();
    findTray(); // another one may have taken over already
}

void TrayIcon::dock()
{
    const Look look = readLook();
    depth = look.depth;
    size = {preferredSize, preferredSize};
    createWindow(look);
    requestDock();
}

void TrayIcon::undock()
{
    if (isDocked()) {
        auto* const xcb = connection.xcb();
        windowEvents.reset();
        xcb_free_gc(xcb, std::exchange(context, XCB_NONE));
        xcb_destroy_window(xcb, std::exchange(window, XCB_WINDOW_NONE));
        xcb_free_colormap(xcb, std::exchange(colormap, XCB_COLORMAP_NONE));
    }
}

// Trays with transparency name the visual that their icons must have.
TrayIcon::Look TrayIcon::readLook() const
{
    const auto& screen = connection.screen();
    const auto visual =
        cardinal(requestProperty(connection.xcb(), tray, connection.atom("_NET_SYSTEM_TRAY_VISUAL")).take().get());
    const auto visualDepth = depthOf(screen, visual);
    if (visualDepth == alphaDepth) {
        return {visual, alphaDepth};
    }
    return {screen.root_visual, screen.root_depth};
}

// The first of four colours; each has three components of 16 bits.
std::optional<Color> TrayIcon::readTextColor() const
{
    const auto components =
        cardinals(requestProperty(connection.xcb(), tray, connection.atom("_NET_SYSTEM_TRAY_COLORS")).take().get());
    if (components.size() < 3) {
        return std::nullopt;
    }
    constexpr double whole = 65535.0;
    return Color{components[0] / whole, components[1] / whole, components[2] / whole, 1.0};
}

void TrayIcon::createWindow(const Look& look)
{
    auto* const xcb = connection.xcb();
    window = xcb_generate_id(xcb);
    colormap = xcb_generate_id(xcb);
    context = xcb_generate_id(xcb);
    xcb_create_colormap(xcb, XCB_COLORMAP_ALLOC_NONE, colormap, connection.root(), look.visual);
    xcb_create_window_value_list_t values{};
    values.background_pixmap = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    values.background_pixel = 0;
    values.border_pixel = 0;
    values.colormap = colormap;
    const auto background = look.depth == alphaDepth ? XCB_CW_BACK_PIXEL : XCB_CW_BACK_PIXMAP;
    xcb_create_window_aux(xcb, look.depth, window, connection.root(), 0, 0, preferredSize, preferredSize, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, look.visual,
                          static_cast<std::uint32_t>(background) | XCB_CW_BORDER_PIXEL | XCB_CW_COLORMAP, &values);
    xcb_create_gc(xcb, context, window, 0, nullptr);

    describeWindow();
    windowEvents = connection.selectEvents(window, XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY |
                                                       XCB_EVENT_MASK_BUTTON_PRESS);
}

void TrayIcon::describeWindow()
{
    auto* const xcb = connection.xcb();
    constexpr std::array<std::uint32_t, 2> embedding = {0, 1}; // version, and the wish to be mapped
    const auto embeddingName = connection.atom("_XEMBED_INFO");
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        windowNames::instanceAndClass.size(), windowNames::instanceAndClass.data());
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, connection.atoms().netWmName, connection.atoms().utf8String,
                        8, windowNames::title.size(), windowNames::title.data());
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, embeddingName, embeddingName, 32, embedding.size(),
                        embedding.data());
    const SizeHints hints;
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, 32,
                        sizeof(hints) / sizeof(std::uint32_t), &hints);
}

void TrayIcon::requestDock() const
{
    constexpr std::uint32_t requestDockCode = 0;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = tray;
    message.type = connection.atom("_NET_SYSTEM_TRAY_OPCODE");
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = requestDockCode;
    message.data.data32[2] = window;
    xcb_send_event(connection.xcb(), 0, tray, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&message));
}

void TrayIcon::update()
{
    if (!isDocked()) {
        return;
    }
    auto picture = readBackground();
    if (!picture) {
        return; // not visible; an exposure follows when it is
    }
    drawing(*picture, readTextColor());
    xcb_put_image(connection.xcb(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, context,
                  static_cast<std::uint16_t>(picture->size.width), static_cast<std::uint16_t>(picture->size.height), 0,
                  0, 0, depth, static_cast<std::uint32_t>(picture->pixels.size() * sizeof(Pixel)),
                  reinterpret_cast<const std::uint8_t*>(picture->pixels.data()));
}

// What the tray shows behind the icon, so that the icon's edges blend with it.
std::optional<PixelImage> TrayIcon::readBackground() const
{
    auto* const xcb = connection.xcb();
    PixelImage background(size);
    if (depth == alphaDepth) {
        return background;
    }
    xcb_clear_area(xcb, 0, window, 0, 0, 0, 0);
    PendingReply<xcb_get_image_reply> pending(xcb, xcb_get_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0,
                                                                 static_cast<std::uint16_t>(size.width),
                                                                 static_cast<std::uint16_t>(size.height), ~0U));
    const auto reply = pending.take();
    const std::size_t bytes = background.pixels.size() * sizeof(Pixel);
    if (!reply || static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) != bytes) {
        return std::nullopt;
    }
    std::memcpy(background.pixels.data(), xcb_get_image_data(reply.get()), bytes);
    for (auto& pixel : background.pixels) {
        pixel |= 0xFF000000U;
    }
    return background;
}

} // namespace quorvel::x11
