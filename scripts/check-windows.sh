#!/usr/bin/env bash
# Builds all below the windows for Windows by mingw-w64, with its tests (build/windows), and has wine
# run these and the command-line tool, whose output must be that of the tool of this system. Then looks
# at the resources of the programs and at what an installation consists of. Installs what is missing
# (Debian 12).
#
# check-windows.sh [TOOL]: TOOL is pixelworks-cli of this system; without it, it is built (build/release).
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

tool=${1:-}
build=build/windows
program=$build/program
jobs=$(nproc)
failed=0
fail() {
    say "$*"
    failed=$((failed + 1))
}

install_packages "${build_packages[@]}" "${windows_packages[@]}"

build() { # PRESET TARGET...
    say "Building for Windows (build/$1)"
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1" --target "${@:2}"
}
build windows all windows_tests
build windows32 vypx-instaide
if [ -z "$tool" ]; then
    cmake --preset release >/dev/null
    cmake --build --preset release --target pixelworks-cli
    tool=build/release/program/pixelworks-cli
fi

# A Windows of our own, without a desktop. What a run leaves in it goes with the build folder.
export WINEPREFIX=$PWD/$build/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY
if [ ! -e "$WINEPREFIX/system.reg" ]; then
    timeout 120 wine wineboot -i >/dev/null 2>&1 || true
    timeout 60 wineserver -w
fi
rm -rf "$WINEPREFIX"/drive_c/users/*/Temp/vypx-test-* # of a run that was killed
# One server for all that follows, or each of them starts its own.
wineserver -p600 || true
trap 'wineserver -k || true' EXIT

say "Testing under wine ($program/windows_tests.exe)"
logs=$build/wine-logs
rm -rf "$logs"
mkdir -p "$logs"
shards=()
for ((i = 0; i < jobs; ++i)); do
    GTEST_TOTAL_SHARDS=$jobs GTEST_SHARD_INDEX=$i timeout -k 10 300 \
        wine "$program/windows_tests.exe" --gtest_brief=0 --gtest_color=no >"$logs/$i.log" 2>&1 &
    shards+=($!)
done
for shard in "${shards[@]}"; do
    wait "$shard" || fail "A part of the tests ended with an error."
done
sum() { # WHAT: over all shards, of lines like "[  PASSED  ] 12 tests."
    sed -nE "s/^\[ *$1 *\] ([0-9]+) tests?[., ].*/\1/p" "$logs"/*.log | awk '{ n += $1 } END { print n + 0 }'
}
for log in "$logs"/*.log; do
    # Each shard ends with its sums; one that was killed or crashed does not.
    if ! grep -q '^\[  PASSED  \]' "$log"; then
        fail "A part of the tests did not come to its end:"
        tail -n 15 "$log"
    fi
    grep -aE '^\[  FAILED  \] .*\(|: Failure' -A 8 "$log" || true
done
broken=$(sum FAILED)
echo "Under wine: $(sum PASSED) passed, $(sum SKIPPED) skipped, $broken failed"
[ "$broken" -eq 0 ] || fail "Tests failed under wine."
if [ "$(sum PASSED)" -lt 1000 ]; then
    fail "Tests are missing."
fi

say "The tool under wine against that of this system"
work=$build/wine-tool
rm -rf "$work"
mkdir -p "$work/here" "$work/there" "$work/für alle"
cp tests/data/iconsets/catalogs/*.dat "$work/für alle"
compared=0
worked=0
compare() { # NAME COMMAND ARGUMENT...: output, exit code and what is written are the same
    local name=$1 command=$2 here there
    shift 2
    "$tool" "$command" "${@//@/here}" --app-folder "$work/für alle" \
        >"$work/here/$name.out" 2>"$work/here/$name.err" && here=0 || here=$?
    timeout 60 wine "$program/pixelworks-cli.exe" "$command" "${@//@/there}" --app-folder "$work/für alle" \
        >"$work/there/$name.out" 2>"$work/there/$name.err" && there=0 || there=$?
    [ "$here" -eq "$there" ] || fail "$name: exit code $there, and $here on this system"
    compared=$((compared + 1))
    [ "$there" -ne 0 ] || worked=$((worked + 1))
}
for file in tests/data/iconsets/*.prc data/samples/*.prc; do
    name=$(basename "$file" .prc)
    compare "dump-$name" dump "$file" --work "$work/@/$name"
    compare "convert-$name" convert "$file" "$work/@/$name.prc" --work "$work/@/$name-convert" \
        --depth 8-Bit --packbits
    compare "template-$name" convert "$file" "$work/@/$name ü.vpt" --work "$work/@/$name-template" \
        --export-template
done
# Databases have the times of their making at offset 36, 12 bytes of them.
find "$work/here" "$work/there" -name '*.prc' -o -name '*.vpt' | while read -r file; do
    head -c 12 /dev/zero | dd of="$file" bs=1 seek=36 conv=notrunc status=none
done
if ! diff -r "$work/here" "$work/there"; then
    fail "The tool writes something else under wine."
fi
echo "$compared runs of the tool compared, $worked of them with exit code 0"
[ "$worked" -ge 6 ] || fail "The tool does nothing under wine."

say "Resources and installation"
rm -rf "$build/installed"
cmake --install "$build" --prefix "$build/installed" >/dev/null
python3 packaging/windows/check.py "$build/installed" build/windows32/program || fail "See above."
timeout 60 wine "$build/installed/pixelworks-cli.exe" --help >/dev/null || fail "The installed tool does not run."

[ "$failed" -eq 0 ]
