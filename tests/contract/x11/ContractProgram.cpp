#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xcb_icccm.h>

#include "support/XReply.h"

// An application whose windows a test opens and closes: contract_x11_program NAME. Commands come as lines on descriptor
// 3, each answered by a line: "open TITLE" by the new window's number, "close NUMBER" by "closed".
namespace {

constexpr int commandDescriptor = 3;

class Program {
public:
    explicit Program(std::string name) : name(std::move(name)), link(xcb_connect(nullptr, nullptr)) {}
    ~Program() { xcb_disconnect(link); }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Until the test or the server goes away.
    void run()
    {
        std::array<pollfd, 2> sources{pollfd{commandDescriptor, POLLIN, 0},
                                      pollfd{xcb_get_file_descriptor(link), POLLIN, 0}};
        while (xcb_connection_has_error(link) == 0) {
            while (const quorvel::xtest::XReply<xcb_generic_event_t> event{xcb_poll_for_event(link)}) {
            }
            poll(sources.data(), sources.size(), -1);
            if (sources[0].revents != 0 && !readCommands()) {
                return;
            }
        }
    }

private:
    bool readCommands()
    {
        std::array<char, 4096> buffer{};
        const auto count = read(commandDescriptor, buffer.data(), buffer.size());
        if (count <= 0) {
            return false;
        }
        unread.append(buffer.data(), static_cast<std::size_t>(count));
        for (auto end = unread.find('\n'); end != std::string::npos; end = unread.find('\n')) {
            const auto answer = carryOut(unread.substr(0, end)) + "\n";
            unread.erase(0, end + 1);
            if (write(commandDescriptor, answer.data(), answer.size()) < 0) {
                return false;
            }
        }
        return true;
    }

    std::string carryOut(const std::string& command)
    {
        const auto space = command.find(' ');
        const auto argument = command.substr(space + 1);
        if (command.substr(0, space) == "open") {
            return std::to_string(open(argument));
        }
        xcb_destroy_window(link, static_cast<xcb_window_t>(std::stoul(argument)));
        sync();
        return "closed";
    }

    xcb_window_t open(const std::string& title)
    {
        const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(link)).data;
        const xcb_window_t window = xcb_generate_id(link);
        xcb_create_window(link, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 300, 200, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        xcb_change_property(link, XCB_PROP_MODE_REPLACE, window, atom("_NET_WM_NAME"), atom("UTF8_STRING"), 8,
                            static_cast<std::uint32_t>(title.size()), title.data());
        const std::string classText = name + '\0' + name + '\0';
        xcb_icccm_set_wm_class(link, window, static_cast<std::uint32_t>(classText.size()), classText.data());
        xcb_icccm_wm_hints_t hints{};
        xcb_icccm_wm_hints_set_input(&hints, 1);
        xcb_icccm_wm_hints_set_normal(&hints);
        xcb_icccm_set_wm_hints(link, window, &hints);
        xcb_map_window(link, window);
        sync();
        return window;
    }

    xcb_atom_t atom(std::string_view text)
    {
        const auto cookie = xcb_intern_atom(link, 0, static_cast<std::uint16_t>(text.size()), text.data());
        const quorvel::xtest::XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(link, cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    void sync()
    {
        const quorvel::xtest::XReply<xcb_get_input_focus_reply_t> done(
            xcb_get_input_focus_reply(link, xcb_get_input_focus(link), nullptr));
    }

    std::string name;
    xcb_connection_t* link;
    std::string unread;
};

} // namespace

int main(int argc, char** argv)
{
    Program program(argc > 1 ? argv[1] : "Program");
    program.run();
    return EXIT_SUCCESS;
}
