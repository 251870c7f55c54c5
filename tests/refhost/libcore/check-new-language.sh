#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check-new-language.sh SOURCE FOLDER QT: follows the recipe for a new language in a
# copy of the sources in FOLDER, and fails unless it gets a file with every text.
set -euo pipefail
source=$1 copy=$2/sources build=$2/build qt=$3
rm -rf "$copy"
mkdir -p "$copy"
cp -r "$source"/{CMakeLists.txt,apps,cmake,docs,formats,history,host,modem,recorder,refhost,src,usage,CHANGELOG.md,LICENSE} "$copy"

sed -i '/^set(NETINFORECORD_LANGUAGES /s/)$/ it)/' "$copy/CMakeLists.txt"
cmake -G Ninja -S "$copy" -B "$build" -D QT_VERSION_MAJOR="$qt" \
    -D NETINFORECORD_BUILD_TESTS=OFF >/dev/null
cmake --build "$build" --target update_translations

texts_in() {
    grep -c '<source>' "$copy/refhost/translations/netinforecord_$1.ts"
}
echo "German: $(texts_in de) texts, the new language: $(texts_in it)"
[ "$(texts_in it)" -eq "$(texts_in de)" ]
grep -q '<TS .*language="it' "$copy/refhost/translations/netinforecord_it.ts"
