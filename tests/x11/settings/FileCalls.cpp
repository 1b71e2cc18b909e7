#include "x11/settings/FileCalls.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include <dlfcn.h>
#include <unistd.h>

namespace quorvel::x11 {
namespace {

struct State {
    bool isRecording = false;
    std::vector<std::string> calls;
    std::optional<std::size_t> fatalCall;
    double writtenFraction = 0.0;
};

State& state()
{
    static State state;
    return state;
}

void die()
{
    ::kill(::getpid(), SIGKILL);
}

// Whether this is the call in which to die.
bool isFatal(const char* call)
{
    if (!state().isRecording) {
        return false;
    }
    state().calls.emplace_back(call);
    return state().fatalCall == state().calls.size() - 1;
}

template <class Function>
Function* original(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

namespace fileCalls {

void record()
{
    state() = {.isRecording = true, .calls = {}, .fatalCall = std::nullopt};
}

const std::vector<std::string>& recorded()
{
    return state().calls;
}

void dieAt(std::size_t call, double writtenFraction)
{
    record();
    state().fatalCall = call;
    state().writtenFraction = writtenFraction;
}

} // namespace fileCalls
} // namespace quorvel::x11

using quorvel::x11::die;
using quorvel::x11::isFatal;
using quorvel::x11::original;

extern "C" int mkostemp(char* name, int flags)
{
    if (isFatal("mkostemp")) {
        die();
    }
    return original<int(char*, int)>("mkostemp")(name, flags);
}

extern "C" ssize_t write(int file, const void* bytes, size_t size)
{
    const auto writeBytes = original<ssize_t(int, const void*, size_t)>("write");
    if (isFatal("write")) {
        const double part = static_cast<double>(size) * quorvel::x11::state().writtenFraction;
        writeBytes(file, bytes, static_cast<size_t>(part));
        die();
    }
    return writeBytes(file, bytes, size);
}

// Not carried out: a process that dies loses nothing that the kernel has, and the disk is slow.
extern "C" int fsync(int)
{
    if (isFatal("fsync")) {
        die();
    }
    return 0;
}

extern "C" int rename(const char* from, const char* to) noexcept
{
    if (isFatal("rename")) {
        die();
    }
    return original<int(const char*, const char*)>("rename")(from, to);
}
