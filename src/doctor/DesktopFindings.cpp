#include "doctor/DesktopFindings.h"

#include <string>

#include <fmt/format.h>

namespace quorvel {

namespace {

struct Lack {
    WindowManagerFeature feature;
    std::string_view id;
    Verdict verdict;
    std::string_view text;
};

// What it means where a window manager lacks something.
constexpr Lack lacks[] = {
    {WindowManagerFeature::listsWindows, "window-manager.lists-windows", Verdict::problem,
     "It does not tell which windows there are (_NET_CLIENT_LIST_STACKING)."},
    {WindowManagerFeature::tellsActiveWindow, "window-manager.tells-active-window", Verdict::problem,
     "It does not tell which window is in front, nor brings one there (_NET_ACTIVE_WINDOW)."},
    {WindowManagerFeature::placesWindows, "window-manager.places-windows", Verdict::notice,
     "It does not promise to place windows (_NET_MOVERESIZE_WINDOW); some may not end where they should."},
    {WindowManagerFeature::leavesFullscreen, "window-manager.leaves-fullscreen", Verdict::notice,
     "It does not promise to undo maximizing (_NET_WM_STATE_MAXIMIZED_VERT); maximized windows may stay where they "
     "are."},
    {WindowManagerFeature::tellsFrames, "window-manager.tells-frames", Verdict::notice,
     "It does not tell how wide its frames are (_NET_FRAME_EXTENTS); Quorvel measures them."},
    {WindowManagerFeature::switchesDesktops, "window-manager.switches-desktops", Verdict::notice,
     "It has no desktops to go to (_NET_CURRENT_DESKTOP)."},
    {WindowManagerFeature::tellsHidden, "window-manager.tells-hidden", Verdict::notice,
     "It does not tell which windows are minimized (_NET_WM_STATE_HIDDEN); the list of them stays empty."},
};

Finding lacking(const Lack& lack)
{
    return {.id = std::string(lack.id), .verdict = lack.verdict, .text = std::string(lack.text)};
}

Finding managerFinding(const std::optional<WindowManagerFacts>& manager)
{
    if (!manager) {
        return {.id = "window-manager.running",
                .verdict = Verdict::problem,
                .text = "No window manager runs that could be asked to place windows.",
                .advice = "Start one that follows the EWMH, as nearly all do."};
    }
    const std::string name = manager->name.empty() ? "one without a name" : fmt::format("\"{}\"", manager->name);
    return {.id = "window-manager.running",
            .text = fmt::format("The window manager is {}.", name),
            .details = {{"name", {manager->name}}}};
}

Finding compositorFinding(bool hasCompositor)
{
    Finding finding{.id = "window-manager.compositor", .details = {{"running", {hasCompositor}}}};
    if (hasCompositor) {
        finding.text = "A compositor runs: frames can be filled and seen through.";
    } else {
        finding.verdict = Verdict::notice;
        finding.text = "No compositor runs: frames have no fill, and label boxes are opaque.";
        finding.advice = "Switch on that of the window manager, or start one such as picom.";
    }
    return finding;
}

PropertyValue rectangle(const AxRect& rect)
{
    const auto whole = [](double number) { return PropertyValue{static_cast<std::int64_t>(number)}; };
    return {PropertyDictionary{
        {"x", whole(rect.x)}, {"y", whole(rect.y)}, {"width", whole(rect.width)}, {"height", whole(rect.height)}}};
}

std::string words(const AxRect& rect)
{
    return fmt::format("{} × {} at {}, {}", rect.width, rect.height, rect.x, rect.y);
}

Finding monitorFinding(const MonitorFacts& monitor)
{
    Finding finding{.id = "monitors.monitor",
                    .details = {{"name", {monitor.name}},
                                {"area", rectangle(monitor.area)},
                                {"workArea", rectangle(monitor.workArea)}}};
    const std::string name = monitor.name.empty() ? "A monitor" : monitor.name;
    if (monitor.workArea.area() <= 0.0) {
        finding.verdict = Verdict::problem;
        finding.text = fmt::format("{}: {}; panels leave nothing of it.", name, words(monitor.area));
        finding.advice = "Let the panels reserve less.";
    } else if (monitor.workArea == monitor.area) {
        finding.text = fmt::format("{}: {}, all of it for windows.", name, words(monitor.area));
    } else {
        finding.text = fmt::format("{}: {}; panels leave {}.", name, words(monitor.area), words(monitor.workArea));
    }
    return finding;
}

Finding trayFinding(bool hasTray)
{
    if (hasTray) {
        return {.id = "parts.tray", .text = "There is a tray for Quorvel's icon and menu."};
    }
    return {.id = "parts.tray",
            .verdict = Verdict::notice,
            .text = "There is no tray, so that Quorvel's icon and its menu cannot be seen.",
            .advice = "All hot keys work without one."};
}

Finding toolkitFinding(const ModuleState& toolkit)
{
    if (toolkit.problem.empty()) {
        return {.id = "parts.toolkit", .text = "Menu, preferences and alerts can be shown."};
    }
    return {.id = "parts.toolkit",
            .verdict = Verdict::notice,
            .text = fmt::format("Menu, preferences and alerts cannot be shown: {}.", toolkit.problem),
            .advice = "Install the Qt 6 libraries for widgets and for SVG. All hot keys work without them."};
}

Finding fontsFinding(bool hasFonts)
{
    if (hasFonts) {
        return {.id = "parts.fonts", .text = "There are fonts for the labels."};
    }
    return {.id = "parts.fonts",
            .verdict = Verdict::problem,
            .text = "There are no fonts, so that labels have no letters.",
            .advice = "Install one, such as DejaVu."};
}

} // namespace

DiagnosisSection sessionSection(std::string_view sessionType, const DesktopFacts& facts)
{
    return {
        "session",
        "Session",
        {{.id = "session.display",
          .text = fmt::format("The display \"{}\" answers. The session's type is \"{}\".", facts.display, sessionType),
          .details = {{"display", {facts.display}}, {"sessionType", {std::string(sessionType)}}}},
         {.id = "session.running",
          .text = facts.isProgramRunning ? "Quorvel is running on it." : "Quorvel is not running on it.",
          .details = {{"running", {facts.isProgramRunning}}}}}};
}

DiagnosisSection missingSessionSection(std::string_view sessionType, std::string_view reason)
{
    return {"session",
            "Session",
            {{.id = "session.display",
              .verdict = Verdict::problem,
              .text = std::string(reason),
              .advice = sessionType == "wayland" ? "Choose a session of the kind X11 or Xorg where you log in."
                                                 : "Start Quorvel within an X11 session.",
              .details = {{"sessionType", {std::string(sessionType)}}}}}};
}

DiagnosisSection windowManagerSection(const DesktopFacts& facts)
{
    DiagnosisSection section{"window-manager", "Window manager and compositor", {managerFinding(facts.windowManager)}};
    if (facts.windowManager) {
        for (const auto& lack : lacks) {
            if (!facts.windowManager->has(lack.feature)) {
                section.findings.push_back(lacking(lack));
            }
        }
        if (facts.windowManager->name == "i3") {
            section.findings.push_back({.id = "window-manager.tiles",
                                        .verdict = Verdict::notice,
                                        .text = "It places floating windows only; tiled ones stay where they are."});
        }
    }
    section.findings.push_back(compositorFinding(facts.hasCompositor));
    return section;
}

DiagnosisSection monitorsSection(const DesktopFacts& facts)
{
    DiagnosisSection section{"monitors", "Monitors", {}};
    for (const auto& monitor : facts.monitors) {
        section.findings.push_back(monitorFinding(monitor));
    }
    if (facts.monitors.empty()) {
        section.findings.push_back({.id = "monitors.monitor",
                                    .verdict = Verdict::problem,
                                    .text = "There is no monitor.",
                                    .advice = "Switch one on."});
    }
    return section;
}

DiagnosisSection partsSection(const DesktopFacts& facts)
{
    return {"parts",
            "Tray, windows and fonts",
            {trayFinding(facts.hasTray), toolkitFinding(facts.toolkit), fontsFinding(facts.hasFonts)}};
}

} // namespace quorvel
