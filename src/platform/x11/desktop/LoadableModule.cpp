#include "platform/x11/desktop/LoadableModule.h"

#include <system_error>

#include <dlfcn.h>
#include <fmt/format.h>

#include "platform/x11/desktop/BuildFacts.h"

namespace quorvel::x11 {

std::filesystem::path moduleFile(std::string_view name)
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return program.parent_path() / buildFacts::programsToModules / name;
}

std::expected<void*, std::string> moduleFunction(const std::filesystem::path& file, const char* name)
{
    void* const module = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (module == nullptr) {
        return std::unexpected(std::string(dlerror()));
    }
    void* const function = dlsym(module, name);
    if (function == nullptr) {
        return std::unexpected(fmt::format("{} is not a module of this program", file.string()));
    }
    return function;
}

} // namespace quorvel::x11
