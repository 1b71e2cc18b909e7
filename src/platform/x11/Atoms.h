#pragma once

#include <xcb/xcb.h>

namespace quorvel::x11 {

// The atoms that the adapters use, interned together in one round trip.
struct Atoms {
    xcb_atom_t utf8String = XCB_ATOM_NONE;
    xcb_atom_t wmProtocols = XCB_ATOM_NONE;
    xcb_atom_t wmState = XCB_ATOM_NONE;
    xcb_atom_t wmChangeState = XCB_ATOM_NONE;
    xcb_atom_t manager = XCB_ATOM_NONE;

    xcb_atom_t netSupported = XCB_ATOM_NONE;
    xcb_atom_t netSupportingWmCheck = XCB_ATOM_NONE;
    xcb_atom_t netClientList = XCB_ATOM_NONE;
    xcb_atom_t netClientListStacking = XCB_ATOM_NONE;
    xcb_atom_t netActiveWindow = XCB_ATOM_NONE;
    xcb_atom_t netCurrentDesktop = XCB_ATOM_NONE;
    xcb_atom_t netNumberOfDesktops = XCB_ATOM_NONE;
    xcb_atom_t netWorkarea = XCB_ATOM_NONE;
    xcb_atom_t netMoveresizeWindow = XCB_ATOM_NONE;
    xcb_atom_t netFrameExtents = XCB_ATOM_NONE;
    xcb_atom_t gtkFrameExtents = XCB_ATOM_NONE;

    xcb_atom_t netWmName = XCB_ATOM_NONE;
    xcb_atom_t netWmPid = XCB_ATOM_NONE;
    xcb_atom_t netWmDesktop = XCB_ATOM_NONE;
    xcb_atom_t netWmStrut = XCB_ATOM_NONE;
    xcb_atom_t netWmStrutPartial = XCB_ATOM_NONE;
    xcb_atom_t netWmState = XCB_ATOM_NONE;
    xcb_atom_t netWmStateHidden = XCB_ATOM_NONE;
    xcb_atom_t netWmStateFullscreen = XCB_ATOM_NONE;
    xcb_atom_t netWmStateMaximizedHorz = XCB_ATOM_NONE;
    xcb_atom_t netWmStateMaximizedVert = XCB_ATOM_NONE;

    xcb_atom_t netWmWindowType = XCB_ATOM_NONE;
    xcb_atom_t netWmWindowTypeNormal = XCB_ATOM_NONE;
    xcb_atom_t netWmWindowTypeDialog = XCB_ATOM_NONE;
    xcb_atom_t netWmWindowTypeUtility = XCB_ATOM_NONE;
    xcb_atom_t netWmWindowTypeToolbar = XCB_ATOM_NONE;
    xcb_atom_t netWmWindowTypeMenu = XCB_ATOM_NONE;
    xcb_atom_t netWmWindowTypeSplash = XCB_ATOM_NONE;
    xcb_atom_t netWmWindowTypeDock = XCB_ATOM_NONE;
    xcb_atom_t netWmWindowTypeDesktop = XCB_ATOM_NONE;
    xcb_atom_t netWmWindowTypeNotification = XCB_ATOM_NONE;
};

// Waits one round trip; atoms that could not be interned are XCB_ATOM_NONE.
Atoms internAtoms(xcb_connection_t* connection);

} // namespace quorvel::x11
