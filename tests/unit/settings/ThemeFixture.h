#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/PropertyValue.h"

namespace quorvel {

// A stored document with one theme of the layout overlay.
inline constexpr std::string_view nightTheme =
    R"([{"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","name":"Night",)"
    R"("overlayBorderColorHex":"#112233","overlayBackgroundColorHex":"#11223344","overlayBorderWidth":2.5,)"
    R"("overlayBorderRadius":4,"textBorderColorHex":"#FFFFFF","textBackgroundColorHex":"#00000080",)"
    R"("textBorderWidth":1,"textColorHex":"#FF0000","textSize":30,"textBorderRadius":6,"isTextBold":false,)"
    R"("labelPositionRaw":"topLeft","createdAt":757382400,"updatedAt":757382400}])";

inline constexpr std::string_view duskTheme =
    R"([{"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","name":"Dusk",)"
    R"("overlayBorderColorHex":"#112233","overlayBackgroundColorHex":"#11223344","overlayBorderWidth":2.5,)"
    R"("overlayBorderRadius":4,"textBorderColorHex":"#FFFFFF","textBackgroundColorHex":"#00000080",)"
    R"("textBorderWidth":1,"textColorHex":"#FF0000","textSize":30,"textBorderRadius":6,"isTextBold":false,)"
    R"("labelPositionRaw":"topLeft","showWindowInfo":false,"defaultDisplayModeRaw":"list",)"
    R"("createdAt":757382400,"updatedAt":757382400}])";

inline constexpr std::string_view calmTheme =
    R"([{"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","name":"Calm",)"
    R"("selectionColorHex":"#112233","selectionBorderWidth":2.5,"selectionGlow":false,)"
    R"("snapTargetColorHex":"#445566","snapTargetBorderWidth":4,"snapTargetGlow":true,"cornerRadius":10,)"
    R"("snapEnabled":false,"snapThreshold":15,"snapResistance":2,"moveStep":35,)"
    R"("createdAt":757382400,"updatedAt":757382400}])";

inline PropertyValue storedData(std::string_view text)
{
    const auto* const begin = reinterpret_cast<const std::byte*>(text.data());
    return {PropertyData(begin, begin + text.size())};
}

// The document with `replacement` in place of the first `part`.
inline std::string edited(std::string_view document, std::string_view part, std::string_view replacement)
{
    std::string result(document);
    result.replace(result.find(part), part.size(), replacement);
    return result;
}

} // namespace quorvel
