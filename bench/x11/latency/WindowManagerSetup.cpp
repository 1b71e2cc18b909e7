#include "latency/WindowManagerSetup.h"

namespace quorvel::bench {

namespace {

constexpr auto openboxConfiguration = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <keyboard>
    <keybind key="W-F1"><action name="MoveResizeTo">
      <x>0</x><y>0</y><width>960</width><height>1080</height>
    </action></keybind>
    <keybind key="W-F2"><action name="MoveResizeTo">
      <x>960</x><y>0</y><width>960</width><height>1080</height>
    </action></keybind>
    <keybind key="W-F3"><action name="MoveRelative"><x>20</x><y>0</y></action></keybind>
    <keybind key="W-F4"><action name="MoveRelative"><x>-20</x><y>0</y></action></keybind>
    <keybind key="W-F5"><action name="DirectionalTargetWindow"><direction>east</direction></action></keybind>
    <keybind key="W-F6"><action name="DirectionalTargetWindow"><direction>west</direction></action></keybind>
  </keyboard>
</openbox_config>
)";

constexpr auto i3Configuration = R"(# i3 config file (v4)
font pango:monospace 8
for_window [all] floating enable
bindsym Mod4+F1 resize set 960 px 1080 px, move position 0 px 0 px
bindsym Mod4+F2 resize set 960 px 1080 px, move position 960 px 0 px
bindsym Mod4+F3 move right 20 px
bindsym Mod4+F4 move left 20 px
bindsym Mod4+F5 focus right
bindsym Mod4+F6 focus left
)";

Chord superKey(xcb_keysym_t key)
{
    return {{XKB_KEY_Super_L}, key};
}

} // namespace

const WindowManagerSetup& openboxSetup()
{
    static const WindowManagerSetup setup{"openbox", {"--sm-disable", "--config-file"}, openboxConfiguration};
    return setup;
}

const WindowManagerSetup& i3Setup()
{
    static const WindowManagerSetup setup{"i3", {"-c"}, i3Configuration};
    return setup;
}

namespace bindings {
const Chord leftHalf = superKey(XKB_KEY_F1);
const Chord rightHalf = superKey(XKB_KEY_F2);
const Chord stepRight = superKey(XKB_KEY_F3);
const Chord stepLeft = superKey(XKB_KEY_F4);
const Chord focusRight = superKey(XKB_KEY_F5);
const Chord focusLeft = superKey(XKB_KEY_F6);
} // namespace bindings

} // namespace quorvel::bench
