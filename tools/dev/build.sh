# shellcheck shell=bash
# Configuring and building. Presets are those of CMakePresets.json.

export CCACHE_BASEDIR=$PWD
export CCACHE_NOHASHDIR=1

configure() {
    local preset=$1
    if command -v ccache >/dev/null; then
        export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache CMAKE_OBJCXX_COMPILER_LAUNCHER=ccache
    fi
    # cmake is silent unless something is wrong
    cmake --preset "$preset" --log-level=WARNING >/dev/null
}

buildTargets() {
    local preset=$1
    shift
    cmake --build --preset "$preset" --target "$@"
}

# leaveProgram PRESET PROGRAM: build/bin has the program that was built last.
leaveProgram() {
    mkdir -p build/bin
    ln -sfn "../$1/bin/$2" "build/bin/$2"
}

buildProgram() {
    local preset=$1
    configure "$preset"
    if [[ $preset == core* ]]; then
        buildTargets "$preset" all # no program of its own: the portable part and the in-memory desktop
        return
    fi
    if isMac; then
        buildTargets "$preset" quorvel_bundle
        leaveProgram "$preset" Quorvel.app
    else
        buildTargets "$preset" quorvel
        leaveProgram "$preset" quorvel
    fi
}
