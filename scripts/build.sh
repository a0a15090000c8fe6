# Shared by ./tolmark and ./test: installs what is missing and builds.
# Sourced with `root` set to the folder of the checkout.

build_dir="$root/build/release"

say() { printf '== %s\n' "$*"; }
fail() {
    printf 'Stopped: %s\n' "$*" >&2
    exit 1
}

# install PACKAGE...: installs those that are not there yet.
install() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    command -v apt-get >/dev/null || fail "this script installs Debian packages, and there is no apt-get here. Missing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "run this as root or install sudo; missing packages: ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq || fail "apt-get update failed"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >/dev/null || fail "apt-get could not install ${missing[*]}"
}

build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev libgl-dev libeigen3-dev
    libboost-dev libcli11-dev fonts-liberation)

# configure CMAKE-ARGUMENT...: sets up the build folder; the generator does the rest by itself.
configure() {
    say "configuring $build_dir"
    (cd "$root" && cmake --preset release "$@") >"$root/build/configure.log" 2>&1 || {
        tail -n 30 "$root/build/configure.log" >&2
        fail "CMake could not configure the build (all of it: build/configure.log)"
    }
}

# build TARGET...
build() {
    say "building $*"
    cmake --build "$build_dir" --target "$@" || fail "the build failed"
}
