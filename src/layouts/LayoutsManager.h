#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "layouts/LayoutFramesProviding.h"
#include "layouts/LayoutShortcutEntry.h"
#include "layouts/LayoutSummary.h"
#include "layouts/LayoutsModel.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"

namespace quorvel {

class Bundle;
class Log;

// The catalogue of layouts, the user's selection from it and the layout being shown. The catalogue is loaded once; the
// selection and the digits live in the settings and are read anew for every question.
class LayoutsManager final : public LayoutFramesProviding {
public:
    static constexpr std::string_view selectedDefaultsKey = settingsKeys::selectedLayoutIDs;

    // More frames than there are letters cannot be told apart.
    static constexpr std::size_t largestFrameCount = 26;

    LayoutsManager(const Bundle& bundle, Settings settings, Log& log);

    // Reads the catalogue from the resource "layouts.json". A missing resource is passed over in silence; an unreadable
    // one is logged; both keep what was loaded before. A layout with too many frames is left out and named in the log.
    void loadLayouts();

    // Offers six layouts and their digits to a user who has selected none yet; once in the life of the settings.
    void seedDefaultLayoutsIfNeeded();

    // The selected layouts, in the user's order; the whole catalogue while nothing is selected. Ids that the catalogue
    // lacks are skipped. An id that occurs twice in the catalogue is a fatal error.
    std::vector<LayoutModel> layouts() const;

    // The layout at the selected index; nothing while the index lies outside of layouts().
    std::optional<LayoutModel> selectedLayout() const;

    // Every layout of the catalogue, in the order of its file.
    std::vector<LayoutSummary> allLayoutSummaries() const;

    // An index into layouts(). It is not moved when the selection shrinks, so it may lie outside until the next step.
    std::ptrdiff_t selectedLayoutIndex() const { return index; }

    // One step on or back, around the end.
    void selectNextLayout();
    void selectPreviousLayout();

    // Makes a layout of the selection the current one; false if it is not selected.
    bool selectLayoutWithID(std::string_view id);

    std::optional<std::string> layoutIDForDigit(std::string_view digit) const;

    // The selected layouts that have a digit, by digit.
    std::vector<LayoutShortcutEntry> legendEntries() const;

    std::vector<UnitRect> normalizedFramesForLayoutID(std::string_view id) const override;

private:
    void selectLayoutAtOffset(std::ptrdiff_t offset);

    const Bundle& bundle;
    Settings settings;
    Log& log;
    std::optional<LayoutsModel> layoutsModel;
    std::ptrdiff_t index = 0;
};

} // namespace quorvel
