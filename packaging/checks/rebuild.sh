#!/usr/bin/env bash
# rebuild.sh PACKAGE: builds and packs once more from nothing, in build/again. The package has to hold the
# same but for the help file, which holds the time of its making, and the number by which a debugger
# knows a build, which goes by the folder.
set -euo pipefail
package=$(realpath "$1")
cd "$(dirname "$0")/../.."
source scripts/packages.sh

again=build/again
folder=$(mktemp -d)
trap 'rm -rf "$folder" "$again"' EXIT
rm -rf "$again"
cmake --preset release -B "$again" -DVYPX_CCACHE=OFF -DVYPX_TESTS=OFF -DVYPX_BENCHMARKS=OFF >"$folder/log" 2>&1 || {
    cat "$folder/log"
    exit 1
}
cmake --build "$again" --target vy-pixelworks pixelworks-cli program_folder
dpkg-deb -x "$package" "$folder/first"
repacked=$(packaging/pack.sh "$again" "$folder")
dpkg-deb -x "$repacked" "$folder/second"
for root in "$folder"/{first,second}; do
    rm "$root"/usr/share/vy-pixelworks/VYPX.chm
    find "$root" \( -path '*/bin/*' -o -name '*.so' \) -type f \
        -exec objcopy --remove-section .note.gnu.build-id {} \;
done
diff -r "$folder/first" "$folder/second"
