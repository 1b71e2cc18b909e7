#include "platform/x11/keys/KeyTable.h"

namespace quorvel::x11 {

namespace {

// clang-format off
constexpr KeyPosition positions[] = {
    // The row of digits
    {0x32, "TLDE"}, {0x12, "AE01"}, {0x13, "AE02"}, {0x14, "AE03"}, {0x15, "AE04"}, {0x17, "AE05"}, {0x16, "AE06"},
    {0x1A, "AE07"}, {0x1C, "AE08"}, {0x19, "AE09"}, {0x1D, "AE10"}, {0x1B, "AE11"}, {0x18, "AE12"},
    {0x5D, "AE13"}, // yen, JIS
    {0x33, "BKSP"},

    // The upper row of letters
    {0x30, "TAB"},
    {0x0C, "AD01"}, {0x0D, "AD02"}, {0x0E, "AD03"}, {0x0F, "AD04"}, {0x11, "AD05"}, {0x10, "AD06"},
    {0x20, "AD07"}, {0x22, "AD08"}, {0x1F, "AD09"}, {0x23, "AD10"}, {0x21, "AD11"}, {0x1E, "AD12"},
    {0x2A, "BKSL"}, {0x24, "RTRN"},

    // The home row
    {0x39, "CAPS"},
    {0x00, "AC01"}, {0x01, "AC02"}, {0x02, "AC03"}, {0x03, "AC04"}, {0x05, "AC05"}, {0x04, "AC06"},
    {0x26, "AC07"}, {0x28, "AC08"}, {0x25, "AC09"}, {0x29, "AC10"}, {0x27, "AC11"},

    // The lower row of letters
    {0x38, "LFSH"},
    {0x0A, "LSGT"}, // the extra key of ISO keyboards
    {0x06, "AB01"}, {0x07, "AB02"}, {0x08, "AB03"}, {0x09, "AB04"}, {0x0B, "AB05"}, {0x2D, "AB06"},
    {0x2E, "AB07"}, {0x2B, "AB08"}, {0x2F, "AB09"}, {0x2C, "AB10"},
    {0x5E, "AB11"}, // underscore, JIS
    {0x3C, "RTSH"},

    // The bottom row
    {0x3B, "LCTL"}, {0x37, "LWIN"}, {0x3A, "LALT"}, {0x31, "SPCE"},
    {0x3D, "RALT"}, {0x36, "RWIN"}, {0x6E, "COMP"}, {0x3E, "RCTL"},
    {0x66, "HJCV"}, {0x66, "MUHE"}, // eisu, JIS
    {0x68, "HNGL"}, {0x68, "HENK"}, // kana, JIS

    // The row of function keys
    {0x35, "ESC"},
    {0x7A, "FK01"}, {0x78, "FK02"}, {0x63, "FK03"}, {0x76, "FK04"}, {0x60, "FK05"}, {0x61, "FK06"}, {0x62, "FK07"},
    {0x64, "FK08"}, {0x65, "FK09"}, {0x6D, "FK10"}, {0x67, "FK11"}, {0x6F, "FK12"},
    {0x69, "FK13"}, {0x69, "PRSC"}, {0x6B, "FK14"}, {0x6B, "SCLK"}, {0x71, "FK15"}, {0x71, "PAUS"},
    {0x6A, "FK16"}, {0x40, "FK17"}, {0x4F, "FK18"}, {0x50, "FK19"}, {0x5A, "FK20"},

    // The keys for moving about
    {0x72, "INS"}, {0x72, "HELP"}, {0x73, "HOME"}, {0x74, "PGUP"},
    {0x75, "DELE"}, {0x77, "END"}, {0x79, "PGDN"},
    {0x7B, "LEFT"}, {0x7C, "RGHT"}, {0x7D, "DOWN"}, {0x7E, "UP"},

    // The keypad
    {0x47, "NMLK"}, {0x51, "KPEQ"}, {0x4B, "KPDV"}, {0x43, "KPMU"},
    {0x59, "KP7"}, {0x5B, "KP8"}, {0x5C, "KP9"}, {0x4E, "KPSU"},
    {0x56, "KP4"}, {0x57, "KP5"}, {0x58, "KP6"}, {0x45, "KPAD"},
    {0x53, "KP1"}, {0x54, "KP2"}, {0x55, "KP3"}, {0x4C, "KPEN"},
    {0x52, "KP0"}, {0x41, "KPDL"},
    {0x5F, "JPCM"}, {0x5F, "I129"}, // comma, JIS and others
};
// clang-format on

} // namespace

std::span<const KeyPosition> keyPositions()
{
    return positions;
}

} // namespace quorvel::x11
