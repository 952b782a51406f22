# Functions and lists for installing missing Debian packages. To be sourced.

# Packages to build the programs.
build_packages=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev libsystemd-dev libgmime-3.0-dev libglib2.0-dev
    libcairo2-dev libeigen3-dev libpipewire-0.3-dev libsndfile1-dev libssl-dev nlohmann-json3-dev
)
# Packages to build and run the pane.
run_packages=("${build_packages[@]}" dbus-daemon fonts-inter psmisc qt6-wayland xdg-utils)
# Packages to build the package for Debian: those of debian/control and the tools.
deb_packages=("${build_packages[@]}" build-essential debhelper dpkg-dev git)
# Additional packages for the tests.
test_packages=(
    ccache clang clang-format clang-tidy libclang-rt-dev libgtest-dev libgmock-dev libplist-dev
    locales python3 xvfb xdotool x11-xserver-utils weston
    fonts-dejavu-core fonts-wqy-microhei
    at-spi2-core gir1.2-atspi-2.0 python3-gi python3-pyatspi
    libgnustep-base-dev libblocksruntime-dev libpng-dev
    pipewire pipewire-bin pipewire-pulse wireplumber libpipewire-0.3-modules pulseaudio-utils espeak-ng
)
# Additional packages to check the package for Debian and what it installs.
installation_test_packages=(
    appstream bash-completion binutils dbus-user-session desktop-file-utils fish lintian man-db systemd zsh
)
# Additional packages for the benchmarks.
bench_packages=(
    libbenchmark-dev libplist-dev python3 xvfb
    pipewire pipewire-bin pipewire-pulse wireplumber libpipewire-0.3-modules
)
# Packages to build the device's bundle and its package. The compiler, the linker, the tools and the standard library
# are from the same release of LLVM, the default of the Debian release.
ios_packages=(cmake ninja-build clang lld llvm libc++-dev dpkg git python3)

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# install_packages NAME…: installs the missing ones of these packages, as root or with sudo.
install_packages() {
    local missing=() name
    for name; do
        is_installed "$name" || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Missing packages: ${missing[*]}. Install them as root (apt-get install ${missing[*]}) and try again." >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET: configures if necessary, and builds.
build() {
    echo "Building $1"
    # After a change to CMakePresets.json, too: CMake itself keeps the old values.
    [ "build/$1/build.ninja" -nt CMakePresets.json ] || cmake --preset "$1" >/dev/null
    cmake --build --preset "$1"
}
