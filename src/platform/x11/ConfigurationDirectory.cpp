#include "platform/x11/ConfigurationDirectory.h"

#include <cstdlib>

#include <glib.h>

namespace quorvel::x11 {

std::filesystem::path configurationDirectory()
{
    namespace fs = std::filesystem;
    const char* const configured = std::getenv("XDG_CONFIG_HOME");
    const bool isUsable = configured != nullptr && fs::path(configured).is_absolute();
    return isUsable ? fs::path(configured) : fs::path(g_get_home_dir()) / ".config";
}

} // namespace quorvel::x11
