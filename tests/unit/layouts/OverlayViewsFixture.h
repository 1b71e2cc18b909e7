#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layouts/CompactLabelView.h"
#include "layouts/LayoutShortcutsLegendView.h"
#include "layouts/OverlayView.h"
#include "layouts/WindowBorderOverlay.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "settings/AppearanceSettings.h"
#include "settings/Settings.h"

// In the simulated font a character is 0.65 of the size wide where bold or semibold and 0.6 where regular, and a line
// is 1.2 of it high, both rounded up.

namespace quorvel {

inline const RoundedRectCommand& shapeAt(const DrawList& list, std::size_t index)
{
    return std::get<RoundedRectCommand>(list.commands.at(index));
}

inline const TextCommand& textAt(const DrawList& list, std::size_t index)
{
    return std::get<TextCommand>(list.commands.at(index));
}

inline ViewRect outerRect(const RoundedRectCommand& shape)
{
    const double outside = shape.stroke ? shape.stroke->width / 2.0 : 0.0;
    const auto& rect = shape.rect;
    return {rect.x - outside, rect.y - outside, rect.width + 2.0 * outside, rect.height + 2.0 * outside};
}

inline std::vector<std::string> textsOf(const DrawList& list)
{
    std::vector<std::string> texts;
    for (const auto& command : list.commands) {
        if (const auto* text = std::get_if<TextCommand>(&command)) {
            texts.push_back(text->text);
        }
    }
    return texts;
}

class OverlayViewsFixture : public testing::Test {
protected:
    DrawList overlay(OverlayView view, const Size& size = {718.0, 873.0})
    {
        view.appearance = layoutOverlayAppearance(settings);
        return view.body(size, environment, desktop.log);
    }

    DrawList overlayLabelled(std::string label)
    {
        return overlay({std::move(label), std::nullopt, std::nullopt, std::nullopt, {}});
    }

    DrawList border(const Size& size = {800.0, 600.0})
    {
        return WindowBorderOverlay{switcherAppearance(settings)}.body(size, environment);
    }

    DrawList compactLabel(std::optional<std::string> appName, std::optional<std::string> windowTitle,
                          const Size& size = {508.0, 284.0})
    {
        return CompactLabelView{"A", std::move(appName), std::move(windowTitle), switcherAppearance(settings)}.body(
            size, environment);
    }

    FittedDrawing legend(std::vector<LayoutShortcutEntry> entries)
    {
        return LayoutShortcutsLegendView{std::move(entries)}.body(environment);
    }

    SimulatedDesktop desktop;
    Settings settings{desktop.userDefaults};
    ViewEnvironment environment{desktop.textMetrics, desktop.systemColors};
};

} // namespace quorvel
