#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "preferences/LayoutsPreferencesViewController.h"
#include "tests/unit/layouts/CatalogueFixture.h"

namespace quorvel {

using Texts = std::vector<std::string>;
using Digits = std::map<std::string, std::string>;

// The pane over the catalogue of seven layouts; nothing is selected at first.
class LayoutsPaneTest : public testing::Test {
protected:
    explicit LayoutsPaneTest(std::string_view catalogue = sevenLayouts)
    {
        desktop.bundle.addResource("layouts", "json", std::string(catalogue));
        pane.reload();
    }

    void select(const Texts& ids)
    {
        settings.setStringArray("selectedLayoutIDs", ids);
        pane.reload();
    }

    void setDigits(const Digits& digits) { settings.setStringDictionary("layoutShortcuts", digits); }

    // "# header" or the layout's id, row by row.
    Texts available() const
    {
        Texts result;
        for (const auto& row : pane.content().available) {
            const auto* const header = std::get_if<LayoutSectionHeader>(&row.content);
            result.push_back(header != nullptr ? "# " + header->title : std::get<LayoutCell>(row.content).layoutID);
        }
        return result;
    }

    Texts selected() const
    {
        Texts result;
        for (const auto& row : pane.content().selected) {
            result.push_back(row.cell.layoutID);
        }
        return result;
    }

    Texts shownDigits() const
    {
        Texts result;
        for (const auto& row : pane.content().selected) {
            result.push_back(row.digit);
        }
        return result;
    }

    Texts storedSelection() const { return settings.stringArray("selectedLayoutIDs").value_or(Texts{"nothing"}); }
    Digits storedDigits() const { return settings.stringDictionary("layoutShortcuts").value_or(Digits{}); }

    SimulatedDesktop desktop;
    Platform platform = desktop.platform();
    Settings settings{desktop.userDefaults};
    LayoutsPreferencesViewController pane{platform};
};

} // namespace quorvel
