#include "main/DesktopDiagnosis.h"

#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <fmt/format.h>

#include "doctor/Diagnosis.h"
#include "doctor/DiagnosisText.h"
#include "doctor/Examination.h"
#include "doctor/StoredSettings.h"
#include "main/CommandLine.h"
#include "main/StoredSettingsReading.h"
#include "main/X11Display.h"
#include "platform/x11/GlibMainLoop.h"
#include "platform/x11/SessionType.h"
#include "platform/x11/desktop/ToolkitModule.h"
#include "platform/x11/desktop/X11Bundle.h"
#include "platform/x11/desktop/X11Permissions.h"
#include "platform/x11/keys/X11KeyboardLayout.h"
#include "platform/x11/probe/X11DesktopProbe.h"
#include "platform/x11/settings/SettingsFile.h"

namespace quorvel {

namespace {

using Desktop = std::expected<ExaminedDesktop, std::string>;

// The adapters that a diagnosis asks, over a display that the program could work on.
struct AskedDisplay {
    AskedDisplay(X11Display opened, MainQueue& mainQueue)
        : display(std::move(opened)),
          probe(*display.connection, *display.keyboard, mainQueue, x11::ToolkitModule::standardFile()),
          keyboardLayout(*display.keyboard),
          permissions(*display.connection)
    {}

    ExaminedDesktop desktop() { return {probe, keyboardLayout, permissions}; }

    X11Display display;
    x11::X11DesktopProbe probe;
    x11::X11KeyboardLayout keyboardLayout;
    x11::X11Permissions permissions;
};

} // namespace

bool diagnoseDesktop(StartMode mode)
{
    x11::GlibMainLoop loop;
    const x11::X11Bundle bundle(x11::X11Bundle::standardDirectories());
    const auto settings = readStoredSettings(x11::SettingsFile(x11::SettingsFile::defaultPath()));
    auto display = X11Display::openUnclaimed(loop);
    std::optional<AskedDisplay> asked;
    if (display) {
        asked.emplace(std::move(*display), loop);
    }
    const auto diagnosis =
        examine({x11::sessionType(), asked ? Desktop(asked->desktop()) : Desktop(std::unexpect, display.error()),
                 settings, bundle});
    fmt::print("{}", mode == StartMode::diagnoseAsJson ? diagnosisJson(diagnosis) : diagnosisText(diagnosis));
    return diagnosis.isFit();
}

} // namespace quorvel
