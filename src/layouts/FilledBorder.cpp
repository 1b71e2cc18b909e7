#include "layouts/FilledBorder.h"

#include <algorithm>
#include <optional>

namespace quorvel {

void FilledBorder::appendTo(DrawList& list) const
{
    list.commands.emplace_back(RoundedRectCommand{
        .rect = rect,
        .cornerRadius = cornerRadius,
        .cornerStyle = cornerStyle,
        .backing = backing,
        .fill = fill,
        .stroke = std::nullopt,
        .shadow = std::nullopt,
    });
    if (!(border.width > 0.0)) {
        return;
    }
    const double inset = border.width / 2.0;
    list.commands.emplace_back(RoundedRectCommand{
        .rect = rect.insetBy(inset, inset),
        .cornerRadius = std::max(cornerRadius - inset, 0.0), // so that the outer edge has the fill's corners
        .cornerStyle = cornerStyle,
        .backing = Backing::open,
        .fill = std::nullopt,
        .stroke = border,
        .shadow = std::nullopt,
    });
}

} // namespace quorvel
