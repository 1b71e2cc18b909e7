#include "support/TestWindow.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>
#include <unistd.h>
#include <xcb/xcb_icccm.h>

namespace quorvel::xtest {
namespace {

constexpr std::uint32_t iconicState = 3;
constexpr std::uint32_t decorationsFlag = 2; // of _MOTIF_WM_HINTS

} // namespace

TestWindow::TestWindow(const XServer& server, const Options& options) : connection(std::make_unique<XClient>(server))
{
    auto* link = connection->connection();
    window = xcb_generate_id(link);
    const std::array<std::uint32_t, 4> values{options.color, 0, options.overrideRedirect ? 1U : 0U,
                                              XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                                  XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(link, XCB_COPY_FROM_PARENT, window, connection->root(), static_cast<std::int16_t>(options.rect.x),
                      static_cast<std::int16_t>(options.rect.y), static_cast<std::uint16_t>(options.rect.width),
                      static_cast<std::uint16_t>(options.rect.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      connection->screen().root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK,
                      values.data());
    describe(options);
    connection->observeEvents([this](const xcb_generic_event_t& event) {
        const auto type = static_cast<std::uint8_t>(event.response_type & 0x7F);
        if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
            const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(event);
            received.push_back({type == XCB_KEY_PRESS, key.detail, key.state});
        }
    });
}

TestWindow::~TestWindow() = default;

void TestWindow::describe(const Options& options)
{
    setTitle(options.title);
    std::string classText = options.instance;
    classText.push_back('\0');
    classText += options.className;
    classText.push_back('\0');
    auto* link = connection->connection();
    xcb_icccm_set_wm_class(link, window, static_cast<std::uint32_t>(classText.size()), classText.data());
    connection->setProperty(window, "_NET_WM_PID", XCB_ATOM_CARDINAL,
                            {static_cast<std::uint32_t>(options.process.value_or(getpid()))});
    if (!options.type.empty()) {
        connection->setProperty(window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {connection->atom(options.type)});
    }
    if (options.transientFor) {
        connection->setProperty(window, "WM_TRANSIENT_FOR", XCB_ATOM_WINDOW, {*options.transientFor});
    }
    if (!options.states.empty()) {
        std::vector<std::uint32_t> atoms;
        std::ranges::transform(options.states, std::back_inserter(atoms),
                               [this](const std::string& state) { return connection->atom(state); });
        connection->setProperty(window, "_NET_WM_STATE", XCB_ATOM_ATOM, atoms);
    }
    if (!options.decorated) {
        connection->setProperty(window, "_MOTIF_WM_HINTS", connection->atom("_MOTIF_WM_HINTS"),
                                {decorationsFlag, 0, 0, 0, 0});
    }

    xcb_size_hints_t hints{};
    xcb_icccm_size_hints_set_position(&hints, 1, options.rect.x, options.rect.y);
    xcb_icccm_size_hints_set_size(&hints, 1, options.rect.width, options.rect.height);
    if (options.sizeLimits.x > 0) {
        xcb_icccm_size_hints_set_min_size(&hints, options.sizeLimits.x, options.sizeLimits.y);
    }
    if (options.sizeLimits.width > 0) {
        xcb_icccm_size_hints_set_max_size(&hints, options.sizeLimits.width, options.sizeLimits.height);
    }
    if (options.widthIncrement > 0) {
        xcb_icccm_size_hints_set_resize_inc(&hints, options.widthIncrement, options.heightIncrement);
    }
    xcb_icccm_set_wm_normal_hints(link, window, &hints);

    xcb_icccm_wm_hints_t wmHints{};
    xcb_icccm_wm_hints_set_input(&wmHints, 1);
    xcb_icccm_wm_hints_set_normal(&wmHints);
    xcb_icccm_set_wm_hints(link, window, &wmHints);
    connection->sync();
}

void TestWindow::map()
{
    xcb_map_window(connection->connection(), window);
    connection->waitFor("a test window to be visible", [this] { return connection->isViewable(window); });
}

void TestWindow::unmap()
{
    xcb_unmap_window(connection->connection(), window);
    connection->waitFor("a test window to be hidden", [this] { return !connection->isViewable(window); });
}

void TestWindow::iconify()
{
    connection->sendToWindowManager(window, "WM_CHANGE_STATE", {iconicState, 0, 0, 0, 0});
    connection->waitFor("a test window to be iconified", [this] {
        const auto state = connection->property(window, "WM_STATE");
        return !state.empty() && state.front() == iconicState;
    });
}

void TestWindow::vanish()
{
    connection.reset();
}

void TestWindow::setTitle(const std::string& title)
{
    connection->setTextProperty(window, "_NET_WM_NAME", title);
    xcb_icccm_set_wm_name(connection->connection(), window, XCB_ATOM_STRING, 8,
                          static_cast<std::uint32_t>(title.size()), title.data());
    connection->sync();
}

void TestWindow::setState(const std::string& state, bool present)
{
    constexpr std::uint32_t sourceApplication = 1;
    connection->sendToWindowManager(window, "_NET_WM_STATE",
                                    {present ? 1U : 0U, connection->atom(state), 0, sourceApplication, 0});
    connection->waitFor(fmt::format("state {} of a test window", state),
                        [&] { return connection->hasState(window, state) == present; });
}

void TestWindow::moveItself(int x, int y)
{
    const std::array<std::uint32_t, 2> values{static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y)};
    xcb_configure_window(connection->connection(), window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values.data());
    connection->sync();
}

void TestWindow::resizeItself(int width, int height)
{
    const std::array<std::uint32_t, 2> values{static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)};
    xcb_configure_window(connection->connection(), window, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         values.data());
    connection->sync();
}

const std::vector<TestWindow::Key>& TestWindow::keys()
{
    connection->sync();
    connection->handleEvents();
    return received;
}

void TestWindow::waitForPress(std::uint8_t code)
{
    connection->waitFor(fmt::format("key code {} to reach a test window", code), [&] {
        return std::ranges::any_of(received, [&](const Key& key) { return key.pressed && key.code == code; });
    });
}

} // namespace quorvel::xtest
