#pragma once

#include <functional>
#include <span>
#include <unordered_map>
#include <vector>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "platform/x11/Reply.h"

namespace quorvel::x11 {

class Connection;

// Which windows lie between client windows and the root: the window manager's frames. As long as none of them changes
// a client stays where it is and as visible as it is; what changes one of them concerns all clients in it.
class WindowAncestry {
public:
    using Listener = std::function<void(xcb_window_t client)>;

    // From the main loop the listener hears of every client whose lineage is known when a window of that lineage was
    // placed, mapped, unmapped, given another parent or destroyed.
    WindowAncestry(Connection& connection, Listener listener);

    // Asks for the lineages that are not known; a round trip for each level. From then on the server tells of changes:
    // what is read of the clients afterwards holds until the listener hears of them.
    void learn(std::span<const xcb_window_t> clients);

    // False for clients that were not learned, and from the moment when they vanished or got another parent.
    bool isKnown(xcb_window_t client) const { return lineages.contains(client); }

    // The ancestor that is a child of the root: the client if it is one, and if its lineage is not known.
    xcb_window_t topLevel(xcb_window_t client) const;

private:
    struct Lineage {
        std::vector<xcb_window_t> windows; // the client first, a child of the root last
        std::vector<Subscription> selections;
    };

    // On the way from a client up to the root.
    struct Climb {
        xcb_window_t client;
        Lineage lineage;
        PendingReply<xcb_query_tree_reply> next;
    };

    enum class Progress { goesOn, ends };
    enum class Kinship { kept, lost };

    void stepTo(Climb& climb, xcb_window_t window);
    Progress ascend(Climb& climb);
    void remember(xcb_window_t client, Lineage lineage);
    void forget(xcb_window_t client);
    void note(xcb_window_t window, Kinship kinship);

    Connection& connection;
    Listener listener;
    std::unordered_map<xcb_window_t, Lineage> lineages;
    std::unordered_map<xcb_window_t, std::vector<xcb_window_t>> clientsByWindow; // of all lineages
    std::vector<Subscription> changes;
};

} // namespace quorvel::x11
