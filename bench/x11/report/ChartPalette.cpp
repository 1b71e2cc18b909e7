#include "report/ChartPalette.h"

namespace quorvel::bench {

const ChartPalette& ChartPalette::light()
{
    static const ChartPalette palette{
        .background = Color::white(),
        .text = Color::bytes(0x1F, 0x23, 0x28),
        .mutedText = Color::bytes(0x59, 0x63, 0x6E),
        .grid = Color::bytes(0xDF, 0xE3, 0xE8),
        .quorvel = {Color::bytes(0x09, 0x5F, 0xD0), Color::bytes(0x8B, 0xBC, 0xF2)},
        .minimal = {Color::bytes(0x1A, 0x8A, 0x6A), Color::bytes(0x92, 0xD3, 0xBE)},
        .peer = {Color::bytes(0x7D, 0x86, 0x90), Color::bytes(0xC3, 0xC9, 0xD0)},
    };
    return palette;
}

const ChartPalette& ChartPalette::dark()
{
    static const ChartPalette palette{
        .background = Color::bytes(0x0D, 0x11, 0x17),
        .text = Color::bytes(0xE6, 0xED, 0xF3),
        .mutedText = Color::bytes(0x9D, 0xA7, 0xB3),
        .grid = Color::bytes(0x27, 0x2D, 0x36),
        .quorvel = {Color::bytes(0x4C, 0x9A, 0xFF), Color::bytes(0x21, 0x52, 0x96)},
        .minimal = {Color::bytes(0x3F, 0xBF, 0x97), Color::bytes(0x1D, 0x63, 0x50)},
        .peer = {Color::bytes(0x9A, 0xA4, 0xAF), Color::bytes(0x4A, 0x53, 0x5E)},
    };
    return palette;
}

const Color& ChartPalette::barOf(Role role, Compositing compositing) const
{
    const auto& bars = role == Role::quorvel ? quorvel : role == Role::minimal ? minimal : peer;
    return compositing == Compositing::on ? bars.composited : bars.plain;
}

} // namespace quorvel::bench
