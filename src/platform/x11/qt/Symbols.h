#pragma once

#include <QColor>
#include <QIcon>
#include <optional>
#include <string_view>

namespace quorvel::x11 {

// The symbol of that name as an icon: drawn crisply at every size, in the colour given, else in that of the text on
// buttons, whatever palette holds when it is drawn. Null where there is no such symbol.
QIcon symbolIcon(std::string_view name, std::optional<QColor> color = {});

} // namespace quorvel::x11
