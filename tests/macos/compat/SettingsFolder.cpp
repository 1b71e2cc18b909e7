#include "macos/compat/SettingsFolder.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace quorvel::fakes {

SettingsFolder::SettingsFolder()
{
    std::ostringstream configuration;
    configuration << std::ifstream("/etc/GNUstep/GNUstep.conf").rdbuf();
    // It stands below the user's folder, however deep that is.
    configuration << "\nGNUSTEP_USER_DEFAULTS_DIR=../../../../../../../.." << folder.path().string() << '\n';
    setenv("GNUSTEP_CONFIG_FILE", folder.write("GNUstep.conf", configuration.str()).c_str(), 1);
}

} // namespace quorvel::fakes
