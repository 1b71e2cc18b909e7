#include "platform/x11/RequestErrors.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <fmt/format.h>

namespace quorvel::x11 {

namespace {

// In the order of their numbers: errors from 1, requests from 1.
constexpr std::array<std::string_view, 17> errorNames = {
    "BadRequest",  "BadValue",    "BadWindow",   "BadPixmap", "BadAtom",           "BadCursor",
    "BadFont",     "BadMatch",    "BadDrawable", "BadAccess", "BadAlloc",          "BadColormap",
    "BadGContext", "BadIDChoice", "BadName",     "BadLength", "BadImplementation",
};

constexpr std::array<std::string_view, 119> requestNames = {
    "CreateWindow",
    "ChangeWindowAttributes",
    "GetWindowAttributes",
    "DestroyWindow",
    "DestroySubwindows",
    "ChangeSaveSet",
    "ReparentWindow",
    "MapWindow",
    "MapSubwindows",
    "UnmapWindow",
    "UnmapSubwindows",
    "ConfigureWindow",
    "CirculateWindow",
    "GetGeometry",
    "QueryTree",
    "InternAtom",
    "GetAtomName",
    "ChangeProperty",
    "DeleteProperty",
    "GetProperty",
    "ListProperties",
    "SetSelectionOwner",
    "GetSelectionOwner",
    "ConvertSelection",
    "SendEvent",
    "GrabPointer",
    "UngrabPointer",
    "GrabButton",
    "UngrabButton",
    "ChangeActivePointerGrab",
    "GrabKeyboard",
    "UngrabKeyboard",
    "GrabKey",
    "UngrabKey",
    "AllowEvents",
    "GrabServer",
    "UngrabServer",
    "QueryPointer",
    "GetMotionEvents",
    "TranslateCoordinates",
    "WarpPointer",
    "SetInputFocus",
    "GetInputFocus",
    "QueryKeymap",
    "OpenFont",
    "CloseFont",
    "QueryFont",
    "QueryTextExtents",
    "ListFonts",
    "ListFontsWithInfo",
    "SetFontPath",
    "GetFontPath",
    "CreatePixmap",
    "FreePixmap",
    "CreateGC",
    "ChangeGC",
    "CopyGC",
    "SetDashes",
    "SetClipRectangles",
    "FreeGC",
    "ClearArea",
    "CopyArea",
    "CopyPlane",
    "PolyPoint",
    "PolyLine",
    "PolySegment",
    "PolyRectangle",
    "PolyArc",
    "FillPoly",
    "PolyFillRectangle",
    "PolyFillArc",
    "PutImage",
    "GetImage",
    "PolyText8",
    "PolyText16",
    "ImageText8",
    "ImageText16",
    "CreateColormap",
    "FreeColormap",
    "CopyColormapAndFree",
    "InstallColormap",
    "UninstallColormap",
    "ListInstalledColormaps",
    "AllocColor",
    "AllocNamedColor",
    "AllocColorCells",
    "AllocColorPlanes",
    "FreeColors",
    "StoreColors",
    "StoreNamedColor",
    "QueryColors",
    "LookupColor",
    "CreateCursor",
    "CreateGlyphCursor",
    "FreeCursor",
    "RecolorCursor",
    "QueryBestSize",
    "QueryExtension",
    "ListExtensions",
    "ChangeKeyboardMapping",
    "GetKeyboardMapping",
    "ChangeKeyboardControl",
    "GetKeyboardControl",
    "Bell",
    "ChangePointerControl",
    "GetPointerControl",
    "SetScreenSaver",
    "GetScreenSaver",
    "ChangeHosts",
    "ListHosts",
    "SetAccessControl",
    "SetCloseDownMode",
    "KillClient",
    "RotateProperties",
    "ForceScreenSaver",
    "SetPointerMapping",
    "GetPointerMapping",
    "SetModifierMapping",
    "GetModifierMapping",
};

std::string errorName(std::uint8_t code)
{
    return code >= 1 && code <= errorNames.size() ? std::string(errorNames[code - 1U]) : fmt::format("error {}", code);
}

std::string requestName(const xcb_generic_error_t& error, const std::vector<ExtensionName>& extensions)
{
    if (error.major_code >= 1 && error.major_code <= requestNames.size()) {
        return std::string(requestNames[error.major_code - 1U]);
    }
    const auto extension = std::ranges::find(extensions, error.major_code, &ExtensionName::majorOpcode);
    const auto name = extension != extensions.end() ? extension->name : fmt::format("extension {}", error.major_code);
    return fmt::format("{} request {}", name, error.minor_code);
}

} // namespace

bool isExpected(const xcb_generic_error_t& error)
{
    switch (error.error_code) {
    case XCB_WINDOW:
    case XCB_DRAWABLE:
    case XCB_MATCH:
        return true;
    default:
        return false;
    }
}

std::string describe(const xcb_generic_error_t& error, const std::vector<ExtensionName>& extensions)
{
    return fmt::format("X11: {} failed: {} (resource 0x{:x})", requestName(error, extensions),
                       errorName(error.error_code), error.resource_id);
}

} // namespace quorvel::x11
