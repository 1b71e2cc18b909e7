#pragma once

#include <string>
#include <vector>

#include "base/Color.h"
#include "layouts/FittedDrawing.h"
#include "layouts/MinimizedWindowEntry.h"
#include "layouts/ViewEnvironment.h"

namespace quorvel {

// A list of windows with the letters that choose them: the minimized ones, or all of them.
//
//   ╭──────────────────────────────────────╮
//   │ Minimized Windows                    │
//   │ ╭───╮                                │
//   │ │ C │ Mail      Inbox                │
//   │ ╰───╯                                │
//   │ ╭───╮                                │
//   │ │ D │ Terminal  ~/projects/quorvel … │
//   │ ╰───╯                                │
//   ╰──────────────────────────────────────╯
//
// A list that is too long for the room it has goes on in further columns.
struct MinimizedWindowsListView {
    std::vector<MinimizedWindowEntry> entries;
    std::string title;
    Color bgColor;
    Color borderColor;
    Color titleColor;
    Color labelColor;
    Color labelBorderColor;
    Color appNameColor;
    Color windowTitleColor;

    // At most `room` large. The shadow around it reaches past its edges.
    FittedDrawing body(const ViewEnvironment& environment, const Size& room) const;
};

} // namespace quorvel
