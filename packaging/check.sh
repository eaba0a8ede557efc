#!/usr/bin/env bash
# Tries the package in build/ out, in a Debian of its own that apt fills with what the package depends
# on; this machine's packages stay as they are. There two ordinary users and root run both programs;
# then the package is removed, and nothing of it may be left. Where no Debian can be made, the programs
# run over this machine's libraries, in a mount namespace, and the parts about apt are left out.
#
#     check.sh PACKAGE [--long]     --long: with what takes long
#
# Called by ./package --check. Wants root; without it asks sudo.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

package=$1
long=
[ "${2:-}" != --long ] || long=yes

install_packages "${root_packages[@]}" "${screen_packages[@]}"
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)

passed=0
failed=0
left_out=
part() { # WORDS COMMAND...
    local words=$1 start=$SECONDS
    shift
    say "$words"
    if "$@"; then
        passed=$((passed + 1))
        say "$words: passed, $((SECONDS - start)) s"
    else
        failed=$((failed + 1))
        say "$words: FAILED, $((SECONDS - start)) s"
    fi
}

folder=$(mktemp -d)
trap '"${as_root[@]}" rm -rf "$folder"' EXIT
chmod 755 "$folder"

# The packages that the package names, without their versions: apt judges those as it installs.
depends() { # FIELD
    dpkg-deb -f "$package" "$1" | sed -E 's/\([^)]*\)//g; s/\|[^,]*//g; s/[ ,]+/ /g'
}
make_debian() {
    "${as_root[@]}" mmdebstrap --quiet --variant=apt \
        --include="$(depends Depends) $(depends Recommends)" \
        --include="desktop-file-utils shared-mime-info hicolor-icon-theme" \
        bookworm "$folder/root"
}
in_namespace() { # SCRIPT ARGUMENT...
    "${as_root[@]}" unshare --mount --propagation private "$@"
}

say "Making a Debian with what the package depends on"
start=$SECONDS
if make_debian; then
    say "It took $((SECONDS - start)) s"
    part "Installing, using and removing in a Debian of its own" \
        in_namespace packaging/checks/debian.sh "$folder/root" "$package"
else
    say "There is no such Debian here: the programs run over this machine's libraries."
    left_out=", 1 left out: there was no Debian to install into"
    part "Using the unpacked package" \
        in_namespace packaging/checks/overlay.sh "$folder/unpacked" "$package"
fi

if [ -n "$long" ]; then
    part "Running what was compiled for Windows" \
        scripts/check-windows.sh build/release/program/pixelworks-cli
    part "Building the benchmarks" cmake --build --preset release --target benchmarks
    part "Building the same once more" packaging/checks/rebuild.sh "$package"
fi

echo "$passed parts passed, $failed failed$left_out"
[ "$failed" -eq 0 ]
