#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layouts/LayoutsManager.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "tests/unit/layouts/CatalogueFixture.h"

namespace quorvel {

using Digits = std::map<std::string, std::string>;

class LayoutsManagerFixture : public testing::Test {
protected:
    void load(std::string_view json)
    {
        desktop.bundle.addResource("layouts", "json", std::string(json));
        manager.loadLayouts();
    }

    void select(const std::vector<std::string>& ids) { settings.setStringArray("selectedLayoutIDs", ids); }
    void setDigits(const Digits& digits) { settings.setStringDictionary("layoutShortcuts", digits); }

    void stepTo(std::ptrdiff_t index)
    {
        while (manager.selectedLayoutIndex() != index) {
            manager.selectNextLayout();
        }
    }

    std::vector<std::string> ids() const
    {
        std::vector<std::string> result;
        std::ranges::transform(manager.layouts(), std::back_inserter(result), &LayoutModel::id);
        return result;
    }

    std::vector<std::string> logLines() const { return desktop.log.lines(); }

    SimulatedDesktop desktop;
    Settings settings{desktop.userDefaults};
    LayoutsManager manager{desktop.bundle, settings, desktop.log};
};

} // namespace quorvel
