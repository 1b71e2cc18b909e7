# shellcheck shell=bash
# What each purpose needs, by system. require() installs what is missing and is quick when nothing is.

debianPackages() {
    case $1 in
    core)
        echo g++ cmake ninja-build pkg-config ccache git
        echo libfmt-dev nlohmann-json3-dev libutf8proc-dev libexpat1-dev libgtest-dev libgmock-dev
        ;;
    x11)
        echo qt6-base-dev qt6-svg-dev libglib2.0-dev libcairo2-dev libpango1.0-dev libxkbcommon-dev libxkbcommon-x11-dev
        echo libplist-dev libicu-dev libsoup-3.0-dev glib-networking
        echo libxcb1-dev libxcb-randr0-dev libxcb-res0-dev libxcb-shape0-dev libxcb-xfixes0-dev libxcb-xinput-dev
        echo libxcb-render0-dev libxcb-render-util0-dev libxcb-xkb-dev libxcb-keysyms1-dev libxcb-icccm4-dev
        # the tests that are built beside them
        echo libxcb-damage0-dev libxcb-xtest0-dev
        ;;
    app) echo librsvg2-bin cmark-gfm ;; # the icons are drawn as SVG, the user guide is written in Markdown
    tests)
        echo xvfb xserver-xorg-core xserver-xorg-video-dummy x11-xkb-utils x11-xserver-utils xkb-data dbus-daemon dbus openssl
        echo fonts-dejavu-core fonts-inter
        echo openbox metacity xfwm4 icewm fluxbox i3-wm kwin-x11 breeze
        echo picom xterm mousepad trayer adwaita-icon-theme
        echo libc6-dbg # known leaks are told by the names of functions, some of which only this has
        ;;
    fuzz) echo clang-19 libclang-rt-19-dev ;;
    macos)
        echo clang-19 libclang-rt-19-dev libgnustep-gui-dev gnustep-back0.29-cairo libblocksruntime-dev
        echo fonts-dejavu-core
        echo llvm python3 python3-yaml # for the check against Apple's headers
        ;;
    package) echo debhelper dpkg-dev fakeroot xz-utils lintian appstream desktop-file-utils debootstrap ;;
    bench)
        echo libbenchmark-dev xvfb openbox i3-wm picom xterm rofi sxhkd wmctrl xdotool fonts-dejavu-core fonts-inter
        ;;
    lint)
        echo clang-format-19 clang-tidy-19 shellcheck python3 python3-yaml git
        ;;
    esac
}

brewPackages() {
    case $1 in
    core) echo cmake ninja pkgconf ccache fmt nlohmann-json googletest ;;
    app) echo librsvg cmark-gfm ;;
    lint) echo llvm@19 shellcheck ;;
    esac
}

asRoot() {
    if [[ $(id -u) -eq 0 ]]; then
        "$@"
    else
        sudo "$@"
    fi
}

requireDebian() {
    local wanted missing
    wanted=$(for purpose in "$@"; do debianPackages "$purpose"; done | tr ' ' '\n' | sort -u)
    missing=$(comm -23 <(echo "$wanted") \
        <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' | sed -n 's/^installed //p' | sort -u))
    [[ -n $missing ]] || return 0
    echo "installing: ${missing//$'\n'/ }"
    # shellcheck disable=SC2086 # one word a package
    { asRoot apt-get update -qq && asRoot env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends $missing; } >/dev/null
}

requireBrew() {
    local wanted missing
    wanted=$(for purpose in "$@"; do brewPackages "$purpose"; done | tr ' ' '\n' | sort -u)
    missing=$(comm -23 <(echo "$wanted") <(brew list --formula -1 | sort -u))
    [[ -n $missing ]] || return 0
    # shellcheck disable=SC2086 # one word a package
    brew install $missing
}

# require PURPOSE...
require() {
    if [[ $(uname) == Darwin ]]; then
        requireBrew "$@"
    elif command -v dpkg-query >/dev/null; then
        requireDebian "$@"
    fi # elsewhere the packages are the user's business; CMake names what it misses
}
