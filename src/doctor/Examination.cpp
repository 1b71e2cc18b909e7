#include "doctor/Examination.h"

#include <utility>

#include <fmt/format.h>

#include "doctor/DesktopFindings.h"
#include "doctor/Diagnosis.h"
#include "doctor/HotKeyFindings.h"
#include "doctor/KeyboardFindings.h"
#include "doctor/SettingsFindings.h"
#include "doctor/SettingsSnapshot.h"
#include "doctor/StoredSettings.h"
#include "platform/Bundle.h"
#include "platform/Permissions.h"
#include "settings/Settings.h"

namespace quorvel {

namespace {

Finding permissionFinding(const Permissions& permissions, Permission permission, std::string id, std::string name)
{
    if (permissions.isGranted(permission)) {
        return {.id = std::move(id), .text = fmt::format("{} is given.", name)};
    }
    return {
        .id = std::move(id),
        .verdict = Verdict::problem,
        .text = fmt::format("{} is not given.", name),
        .advice = "The system's settings give it, or its administrator.",
    };
}

DiagnosisSection permissionsSection(const Permissions& permissions)
{
    return {"permissions",
            "Permissions",
            {permissionFinding(permissions, Permission::accessibility, "permissions.accessibility",
                               "Accessibility (to see and move windows)"),
             permissionFinding(permissions, Permission::inputMonitoring, "permissions.input-monitoring",
                               "Input Monitoring (to hear of keys and clicks)")}};
}

} // namespace

Diagnosis examine(const Surroundings& surroundings)
{
    Diagnosis diagnosis{surroundings.bundle.shortVersion(), {}};
    auto& sections = diagnosis.sections;
    SettingsSnapshot snapshot(surroundings.settings.entries);
    Settings settings(snapshot);

    if (const auto& desktop = surroundings.desktop) {
        const DesktopFacts facts = desktop->probe.facts();
        sections.push_back(sessionSection(surroundings.sessionType, facts));
        sections.push_back(windowManagerSection(facts));
        sections.push_back(monitorsSection(facts));
        sections.push_back(hotKeysSection(settings, facts, desktop->probe, desktop->keyboardLayout));
        sections.push_back(keyboardSection(settings, facts.keyboard, desktop->keyboardLayout));
        sections.push_back(partsSection(facts));
        sections.push_back(permissionsSection(desktop->permissions));
    } else {
        sections.push_back(missingSessionSection(surroundings.sessionType, desktop.error()));
    }
    sections.push_back(settingsSection(surroundings.settings, surroundings.bundle));
    return diagnosis;
}

} // namespace quorvel
