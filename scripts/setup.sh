# Finds out what the machine lacks and installs it. Sourced by ./demo and ./check.
#
#   setup_need WHAT...     installs what is missing of those groups; leaves the script with a list of what is
#                          needed where it cannot
#   setup_want WHAT...     the same, but answers 1 where it cannot, and goes on
#
# The groups: build (compile and link), look (run a window or a picture), proofs (tests and checks), windows
# (cross compiler and Wine), measures (benchmarks), peers (toolkits they are compared with).

setup_packages() {
    case $1 in
    build) echo "g++ cmake ninja-build pkg-config libsdl2-dev libfreetype-dev libfontconfig-dev libraqm-dev libstb-dev libx11-dev" ;;
    look) echo "libsdl2-2.0-0 fonts-liberation fonts-noto-core fonts-droid-fallback" ;;
    proofs) echo "git clang clang-format libgtest-dev googletest xvfb xdotool python3" ;;
    windows) echo "g++-mingw-w64-x86-64-posix wine wine64" ;;
    measures) echo "libbenchmark-dev" ;;
    peers) echo "xvfb libfltk1.3-dev qt6-base-dev" ;;
    esac
}

# One line for each group: what tells, without a package manager, that it is there.
setup_present() {
    case $1 in
    build) command -v g++ cmake ninja pkg-config >/dev/null && pkg-config --exists sdl2 freetype2 fontconfig raqm ;;
    look) true ;;
    proofs) command -v clang++ clang-format Xvfb xdotool python3 >/dev/null && [ -d /usr/src/googletest ] ;;
    windows) command -v x86_64-w64-mingw32-g++-posix wine >/dev/null ;;
    measures) pkg-config --exists benchmark ;;
    peers) command -v Xvfb fltk-config qmake6 >/dev/null ;;
    esac
}

setup_missing() {
    local package
    for package in $(for group in "$@"; do setup_packages "$group"; done); do
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || echo "$package"
    done
}

setup_as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Neither root nor sudo: cannot run: $*" >&2
        return 1
    fi
}

setup_install() {
    local missing
    missing=$(setup_missing "$@" | tr '\n' ' ')
    [ -n "${missing// /}" ] || return 0
    echo "Installing: $missing"
    setup_as_root apt-get update -qq &&
        setup_as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

setup_list() {
    local group
    echo "What is needed, under the names that Debian 12 gives it:" >&2
    for group in "$@"; do echo "  $group: $(setup_packages "$group")" >&2; done
}

setup_want() {
    local group
    if command -v apt-get dpkg-query >/dev/null; then
        setup_install "$@" && return 0
        echo "Could not install everything." >&2
    fi
    for group in "$@"; do
        setup_present "$group" && continue
        command -v apt-get >/dev/null || echo "This system has no apt, so nothing was installed." >&2
        setup_list "$@"
        return 1
    done
}

setup_need() { setup_want "$@" || exit 1; }
