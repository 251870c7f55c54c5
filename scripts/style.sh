#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the format of every source file, includes, sizes, licences, spelling, shell
# scripts and the reference of the headers.
set -euo pipefail
cd "$(dirname "$0")/.."

# Each version of clang-format has its own mind about a few lines; Debian 12's counts.
formatter=14
if clang-format --version | grep -q "version $formatter\."; then
    git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror
else
    echo "The format is not checked: that takes clang-format $formatter (pre-commit brings it)." >&2
fi

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
