#include "settings/MoveResizeSettings.h"

#include "settings/PositiveSettings.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"

namespace quorvel {

MoveResizeSettings moveResizeSettings(const Settings& settings)
{
    return {
        .moveStep = positiveReal(settings, settingsKeys::mrMoveStep),
        .snapEnabled = settings.boundBoolean(settingsKeys::mrSnapEnabled),
        .snapThreshold = positiveReal(settings, settingsKeys::mrSnapThreshold),
        .snapResistance = positiveInteger(settings, settingsKeys::mrSnapResistance),
    };
}

} // namespace quorvel
