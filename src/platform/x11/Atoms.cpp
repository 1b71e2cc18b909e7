#include "platform/x11/Atoms.h"

#include <array>
#include <string_view>
#include <utility>

#include "platform/x11/Reply.h"

namespace quorvel::x11 {

namespace {

struct AtomName {
    xcb_atom_t Atoms::* member;
    std::string_view name;
};

constexpr std::array atomNames = {
    AtomName{&Atoms::utf8String, "UTF8_STRING"},
    AtomName{&Atoms::wmProtocols, "WM_PROTOCOLS"},
    AtomName{&Atoms::wmState, "WM_STATE"},
    AtomName{&Atoms::wmChangeState, "WM_CHANGE_STATE"},
    AtomName{&Atoms::manager, "MANAGER"},
    AtomName{&Atoms::netSupported, "_NET_SUPPORTED"},
    AtomName{&Atoms::netSupportingWmCheck, "_NET_SUPPORTING_WM_CHECK"},
    AtomName{&Atoms::netClientList, "_NET_CLIENT_LIST"},
    AtomName{&Atoms::netClientListStacking, "_NET_CLIENT_LIST_STACKING"},
    AtomName{&Atoms::netActiveWindow, "_NET_ACTIVE_WINDOW"},
    AtomName{&Atoms::netCurrentDesktop, "_NET_CURRENT_DESKTOP"},
    AtomName{&Atoms::netNumberOfDesktops, "_NET_NUMBER_OF_DESKTOPS"},
    AtomName{&Atoms::netWorkarea, "_NET_WORKAREA"},
    AtomName{&Atoms::netMoveresizeWindow, "_NET_MOVERESIZE_WINDOW"},
    AtomName{&Atoms::netFrameExtents, "_NET_FRAME_EXTENTS"},
    AtomName{&Atoms::gtkFrameExtents, "_GTK_FRAME_EXTENTS"},
    AtomName{&Atoms::netWmName, "_NET_WM_NAME"},
    AtomName{&Atoms::netWmPid, "_NET_WM_PID"},
    AtomName{&Atoms::netWmDesktop, "_NET_WM_DESKTOP"},
    AtomName{&Atoms::netWmStrut, "_NET_WM_STRUT"},
    AtomName{&Atoms::netWmStrutPartial, "_NET_WM_STRUT_PARTIAL"},
    AtomName{&Atoms::netWmState, "_NET_WM_STATE"},
    AtomName{&Atoms::netWmStateHidden, "_NET_WM_STATE_HIDDEN"},
    AtomName{&Atoms::netWmStateFullscreen, "_NET_WM_STATE_FULLSCREEN"},
    AtomName{&Atoms::netWmStateMaximizedHorz, "_NET_WM_STATE_MAXIMIZED_HORZ"},
    AtomName{&Atoms::netWmStateMaximizedVert, "_NET_WM_STATE_MAXIMIZED_VERT"},
    AtomName{&Atoms::netWmWindowType, "_NET_WM_WINDOW_TYPE"},
    AtomName{&Atoms::netWmWindowTypeNormal, "_NET_WM_WINDOW_TYPE_NORMAL"},
    AtomName{&Atoms::netWmWindowTypeDialog, "_NET_WM_WINDOW_TYPE_DIALOG"},
    AtomName{&Atoms::netWmWindowTypeUtility, "_NET_WM_WINDOW_TYPE_UTILITY"},
    AtomName{&Atoms::netWmWindowTypeToolbar, "_NET_WM_WINDOW_TYPE_TOOLBAR"},
    AtomName{&Atoms::netWmWindowTypeMenu, "_NET_WM_WINDOW_TYPE_MENU"},
    AtomName{&Atoms::netWmWindowTypeSplash, "_NET_WM_WINDOW_TYPE_SPLASH"},
    AtomName{&Atoms::netWmWindowTypeDock, "_NET_WM_WINDOW_TYPE_DOCK"},
    AtomName{&Atoms::netWmWindowTypeDesktop, "_NET_WM_WINDOW_TYPE_DESKTOP"},
    AtomName{&Atoms::netWmWindowTypeNotification, "_NET_WM_WINDOW_TYPE_NOTIFICATION"},
};

} // namespace

Atoms internAtoms(xcb_connection_t* connection)
{
    std::array<PendingReply<xcb_intern_atom_reply>, atomNames.size()> replies;
    for (std::size_t i = 0; i < atomNames.size(); ++i) {
        const auto name = atomNames[i].name;
        replies[i] = {connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data())};
    }
    Atoms atoms;
    for (std::size_t i = 0; i < atomNames.size(); ++i) {
        if (const auto reply = replies[i].take()) {
            atoms.*atomNames[i].member = reply->atom;
        }
    }
    return atoms;
}

} // namespace quorvel::x11
