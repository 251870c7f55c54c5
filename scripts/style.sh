#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the format of every source file, licences, spelling and shell scripts, and
# what clang-tidy finds in the sources of the product and the example.
set -euo pipefail
cd "$(dirname "$0")/.."
build=build/style

git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror

scripts/check-includes.py
scripts/check-sizes.py
scripts/check-version.sh

licences=$(reuse lint 2>&1) || {
    printf '%s\n' "$licences" >&2
    exit 1
}
git ls-files -z ':!tests/fuzz/corpus' ':!*.ts' ':!*.png' ':!*.svg' ':!*.desktop' ':!*.metainfo.xml' |
    xargs -0 codespell
git ls-files -z '*.sh' run test .ci/run packaging/build-deb | xargs -0 shellcheck --external-sources

# Reference of the headers; hosts find a description of everything they bring.
mkdir -p build
doxygen docs/Doxyfile
{
    cat docs/Doxyfile
    printf '%s\n' 'INPUT = host' 'EXTRACT_ALL = NO' 'OUTPUT_DIRECTORY = build/reference/host'
} | doxygen -

cmake --preset style >/dev/null

# A file that has not changed since it was last found clean is not asked again.
clean=$build/tidy
mkdir -p "$clean"
check() {
    local file=$1 build=$2 stamp
    stamp=$2/tidy/${file//\//_}
    if [ -f "$stamp" ] && [ -z "$(find "$file" .clang-tidy host src refhost history usage formats recorder modem apps tests examples \
        -name '*.h' -newer "$stamp" -print -quit; find "$file" .clang-tidy -newer "$stamp")" ]; then
        return 0
    fi
    clang-tidy --quiet -p "$build" "$file" 2>/dev/null && touch "$stamp"
}
export -f check
# The longest first, so that no processor waits for it at the end.
git ls-files 'src/*.cpp' 'refhost/*.cpp' 'history/*.cpp' 'usage/*.cpp' 'formats/*.cpp' 'recorder/*.cpp' 'modem/*.cpp' 'apps/*.cpp' 'examples/*.cpp' |
    xargs ls -S |
    xargs -P "$(nproc)" -I{} bash -c 'check "$@"' check {} "$build"
