#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "doctor/Diagnosis.h"
#include "doctor/Examination.h"
#include "doctor/StoredSettings.h"
#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {

// A simulated desktop that lacks nothing, and its examination.
class DoctorFixture : public testing::Test {
protected:
    DoctorFixture()
    {
        desktop.bundle.addResource("layouts", "json", R"({"layouts": [
            {"id": "centered", "name": "Centered", "windows": []}, {"id": "halves", "name": "Halves", "windows": []}]})");
        stored.state = StoredSettings::State::readable;
        stored.place = "settings.plist";
    }

    void store(std::string key, PropertyValue value) { stored.entries.emplace_back(std::move(key), std::move(value)); }

    Diagnosis examined()
    {
        return examine({"x11", ExaminedDesktop{desktop.desktopProbe, desktop.keyboardLayout, desktop.permissions},
                        stored, desktop.bundle});
    }

    // Everything that was found under an id.
    static std::vector<Finding> findings(const Diagnosis& diagnosis, std::string_view id)
    {
        std::vector<Finding> result;
        for (const auto& section : diagnosis.sections) {
            for (const auto& finding : section.findings) {
                if (finding.id == id) {
                    result.push_back(finding);
                }
            }
        }
        return result;
    }

    Finding finding(std::string_view id)
    {
        const auto found = findings(examined(), id);
        EXPECT_EQ(found.size(), 1U) << id;
        return found.empty() ? Finding{} : found.front();
    }

    bool isFit() { return examined().isFit(); }

    SimulatedDesktop desktop;
    StoredSettings stored;
};

inline auto says(Verdict verdict, const testing::Matcher<std::string>& text)
{
    return testing::AllOf(testing::Field("verdict", &Finding::verdict, verdict),
                          testing::Field("text", &Finding::text, text));
}

} // namespace quorvel
