#pragma once

#include <memory>

#include <xkbcommon/xkbcommon.h>

namespace quorvel::x11 {

struct XkbUnref {
    void operator()(xkb_context* context) const { xkb_context_unref(context); }
    void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
    void operator()(xkb_state* state) const { xkb_state_unref(state); }
};

using XkbContext = std::unique_ptr<xkb_context, XkbUnref>;
using XkbKeymap = std::unique_ptr<xkb_keymap, XkbUnref>;
using XkbState = std::unique_ptr<xkb_state, XkbUnref>;

} // namespace quorvel::x11
