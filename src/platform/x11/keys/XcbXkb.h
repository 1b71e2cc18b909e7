#pragma once

// The header of the keyboard extension names a field "explicit".
#define explicit explicitComponents // NOLINT
#include <xcb/xkb.h>
#undef explicit
