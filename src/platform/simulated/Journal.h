#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace quorvel {

// What a program asked of its simulated desktop, call by call over all ports, in order. An entry reads like the call:
// "Workspace.activate(500)", "OverlayWindow.close(3)". Work for the main queue is not recorded, except where it waits.
class Journal {
public:
    template <class... Arguments>
    void record(fmt::format_string<Arguments...> format, Arguments&&... arguments)
    {
        if (recording) {
            add(fmt::format(format, std::forward<Arguments>(arguments)...));
        }
    }

    const std::vector<std::string>& entries() const { return recorded; }

    // The entries that begin with one of the prefixes, in order.
    std::vector<std::string> entries(const std::vector<std::string_view>& prefixes) const;

    std::size_t count(std::string_view prefix) const;

    void clear() { recorded.clear(); }

    // Benchmarks measure without the recording.
    void pause() { recording = false; }
    void resume() { recording = true; }

    // Runs `action` in the midst of the next call whose entry begins with the prefix: after it is recorded, before it
    // has its effect. This is how a window closes while it is being moved.
    void duringNext(std::string prefix, std::function<void()> action);

private:
    struct Interruption {
        std::string prefix;
        std::function<void()> action;
    };

    void add(std::string entry);

    std::vector<std::string> recorded;
    std::vector<Interruption> interruptions;
    bool recording = true;
};

} // namespace quorvel
