# SPDX-License-Identifier: MIT
# Shared by ./run and ./test: what Debian has to give, and how to build.

build_packages=(
    cmake ninja-build g++
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev
    libsqlitecpp-dev libsqlite3-dev libutfcpp-dev libcli11-dev nlohmann-json3-dev
    libmnl-dev pkg-config
)
run_packages=(fonts-dejavu-core)
test_packages=(
    qtbase5-dev qttools5-dev qttools5-dev-tools
    clang libclang-rt-dev clang-format clang-tidy
    libbenchmark-dev
    sqlite3 man-db desktop-file-utils appstream iproute2
)

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
        cmake --build --preset "$preset"; } >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        say "Building build/$preset failed; the whole output is in $log."
        exit 1
    fi
}
