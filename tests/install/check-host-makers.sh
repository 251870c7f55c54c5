#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check-host-makers.sh SOURCE FOLDER QT STATISTICS: builds and installs the plug-in, ON
# with its statistics or OFF without, as part of another project, then hosts against it,
# in FOLDER.
set -euo pipefail
source=$1 folder=$2 qt=$3 statistics=$4
here=$(cd "$(dirname "$0")" && pwd)
prefix=$folder/prefix
rm -rf "$prefix"
export LD_LIBRARY_PATH=

cmake -G Ninja -S "$here/host-with-targets" -B "$folder/plugin" \
    -D NETINFORECORD_SOURCE="$source" -D QT_VERSION_MAJOR="$qt" \
    -D NETINFORECORD_WIRE_STATISTICS="$statistics" \
    -D CMAKE_BUILD_TYPE=Release -D CMAKE_INSTALL_LIBDIR=lib >"$folder.log"
cmake --build "$folder/plugin"
cmake --install "$folder/plugin" --prefix "$prefix" >>"$folder.log"
plugin=$prefix/lib/netinforecord/libNetInfoRecordUIPlugin.so

echo "A host that forgot its libraries is told which."
"$folder/plugin/forgetful-host" "$plugin" | grep libcore.so

shows_rows() {
    cmake -D HOST="$1" -D PLUGIN="$plugin" -P "$source/examples/minimal-host/check-rows.cmake"
}

for compiler in g++ clang++; do
    command -v "$compiler" >/dev/null || continue
    echo "A host by $compiler, with find_package."
    cmake -G Ninja -S "$source/examples/minimal-host" -B "$folder/$compiler" \
        -D CMAKE_CXX_COMPILER="$compiler" -D CMAKE_PREFIX_PATH="$prefix" >>"$folder.log"
    cmake --build "$folder/$compiler"
    shows_rows "$folder/$compiler/minimal-host"
done

echo "A host with pkg-config."
export PKG_CONFIG_PATH=$prefix/lib/pkgconfig
by_hand=$folder/by-hand
mkdir -p "$by_hand"
read -ra flags < <(pkg-config --cflags --libs netinforecord)
for library in core sdk; do
    g++ -std=c++17 -fPIC -shared "$source/examples/minimal-host/lib$library.cpp" "${flags[@]}" \
        -o "$by_hand/lib$library.so"
done
g++ -std=c++17 -fPIC "$source/examples/minimal-host/main.cpp" "${flags[@]}" \
    -Wl,--no-as-needed -L"$by_hand" -lcore -lsdk -Wl,-rpath,"$by_hand" -o "$by_hand/host"
plugin=$(pkg-config --variable=pluginfile netinforecord)
shows_rows "$by_hand/host"
