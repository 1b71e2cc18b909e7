#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "settings/Settings.h"
#include "system/WindowElementModel.h"

namespace quorvel {

// An editor with one window in front.
class WindowElementFixture : public testing::Test {
protected:
    using Lines = std::vector<std::string>;
    using Model = std::shared_ptr<WindowElementModel>;

    Model frontmost() { return WindowElementModel::frontmostWindow(platform); }
    Model find(const AxRect& bounds) { return WindowElementModel::findWindow(platform, editor.process(), bounds); }

    Lines calls(std::string_view prefix) const { return desktop.journal.entries({prefix}); }

    bool hasElementOf(const Model& model, const SimulatedWindow& window) const
    {
        return model->axWindowElement() && model->axWindowElement()->isEqual(*desktop.element(window));
    }

    static constexpr AxRect notesFrame{100, 50, 800, 600};
    static constexpr AxRect wanted{10, 20, 300, 200};

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    Settings settings{desktop.userDefaults};
    SimulatedApplication& editor = desktop.launch("Editor");
    SimulatedWindow& notes = desktop.openWindow(editor, "Notes", notesFrame);
};

} // namespace quorvel
