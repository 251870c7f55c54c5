# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034
# Shared by ./run and ./test: what Debian has to give, and how to build.

build_packages=(
    cmake ninja-build g++
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev
    libsqlitecpp-dev libsqlite3-dev libutfcpp-dev libcli11-dev nlohmann-json3-dev
    libmnl-dev libsystemd-dev libarchive-dev zlib1g-dev pkg-config mandoc
)
run_packages=(fonts-dejavu-core)
# What every step of ./test needs, and what single steps need besides.
test_packages=(lld dbus-daemon sqlite3 man-db desktop-file-utils appstream iproute2 modemmanager python3-dbusmock xvfb x11-utils systemd libglib2.0-bin postgresql python3-prometheus-client xz-utils zstd bzip2 tzdata fonts-droid-fallback)
# The sanitizers ask llvm for the names in their reports, and in what they pass over.
clang_packages=(clang libclang-rt-dev llvm)
style_packages=(clang-format codespell doxygen reuse shellcheck)
package_packages=(build-essential debhelper dpkg-dev lintian mmdebstrap uidmap)
qt5_packages=(qtbase5-dev qttools5-dev qttools5-dev-tools libbenchmark-dev)

say() {
    printf '%s\n' "$*" >&2
}

# install_packages NAME...: asks apt for those that are missing, saying so.
install_packages() {
    local missing=() name
    for name in "$@"; do
        dpkg-query --show --showformat='${db:Status-Status}' "$name" 2>/dev/null |
            grep -qx installed || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing with apt: ${missing[*]}"
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            say "sudo is not there. As root, run: apt-get install ${missing[*]}"
            exit 1
        }
        root=(sudo)
    fi
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# build PRESET: configures once, then builds what has changed. What the tools
# print is shown only when they fail.
build() {
    local preset=$1 log="build/$1.log"
    mkdir -p build
    say "Building build/$preset ..."
    if ! { { [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"; } &&
        cmake --build --preset "$preset"; } 2>&1 | tee "$log" | show_progress; then
        tail -n 60 "$log" >&2
        say "Building build/$preset failed; the whole output is in $log."
        exit 1
    fi
}

# Of what a build prints, tells how far it is: in one line of a terminal, else at
# every tenth of the way.
show_progress() {
    local line tenth told=0
    while IFS= read -r line; do
        [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
        if [ -t 2 ]; then
            printf '\r  %s of %s ' "${BASH_REMATCH[@]:1}" >&2
            continue
        fi
        tenth=$((10 * BASH_REMATCH[1] / BASH_REMATCH[2]))
        [ "$tenth" -eq "$told" ] || say "  ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]}"
        told=$tenth
    done
    [ ! -t 2 ] || printf '\r' >&2
}
