#!/usr/bin/env bash
# files.sh ROOT: what the package in ROOT holds: nothing for developers, modes by the rule, every file
# that a desktop looks for, a thumbnailer that makes pictures, and hardened programs that look for
# libraries nowhere but in their own folder.
set -euo pipefail
root=$(realpath "$1")
project=$(realpath "$(dirname "$0")/../..")
bad=0
fail() { # WORDS...
    echo "$*"
    bad=1
}
# The texts of the licences that cmake/Product.cmake names.
while read -r licence; do
    [ -s "$project/LICENSES/$licence.txt" ] || fail "LICENSES/$licence.txt is missing"
    grep -q "^License: $licence\$" "$root/usr/share/doc/vy-pixelworks/copyright" ||
        fail "the copyright file has no text of $licence"
done < <(sed -nE 's/^set\(VYPX_(PROJECT|METADATA)_LICENCE (.*)\)$/\2/p' "$project/cmake/Product.cmake")

id=$(sed -nE 's/^set\(VYPX_APPLICATION_ID (.*)\)$/\1/p' "$project/cmake/Product.cmake")
share=$root/usr/share
wanted=("$share/applications/$id.desktop" "$share/metainfo/$id.metainfo.xml"
    "$share/mime/packages/$id.xml" "$share/dbus-1/services/$id.service"
    "$share/thumbnailers/vy-pixelworks.thumbnailer"
    "$share/man/man1/vy-pixelworks.1.gz" "$share/man/man1/pixelworks-cli.1.gz"
    "$share/bash-completion/completions/pixelworks-cli" "$share/doc/vy-pixelworks/changelog.Debian.gz"
    "$share/vy-pixelworks/AppList.dat" "$share/vy-pixelworks/VYPX.chm"
    "$share/vy-pixelworks/samples/first-set.prc"
    "$share/icons/hicolor/scalable/apps/$id.svg")
for kind in "apps/$id" mimetypes/application-x-vantry-iconset{,-template}; do
    wanted+=("$share/icons/hicolor/scalable/$kind.svg")
    for size in 16 32 48 64 128 256; do
        icon=$share/icons/hicolor/${size}x$size/$kind.png
        wanted+=("$icon")
        grep -q "PNG image data, $size x $size," <<<"$(file "$icon")" || fail "$icon is no picture of that size"
    done
done
for path in "${wanted[@]}"; do
    [ -s "$path" ] || fail "${path#"$root"} is missing"
done
# The bus starts what the service file names; the menu entry's id is the name on the bus.
service=$share/dbus-1/services/$id.service
started=$(sed -n 's/^Exec=//p' "$service")
[ -x "$root$started" ] || fail "the service starts $started, which is not there"
grep -qx "Name=$id" "$service" || fail "the service has another name than $id"

# A file manager fills the thumbnailer's line like this; names may hold blanks, and need no ending.
pictures=$(mktemp -d)
trap 'rm -rf "$pictures"' EXIT
cp "$share/vy-pixelworks/samples/first-set.prc" "$pictures/a set.prc"
read -ra line < <(sed -n 's/^Exec=//p' "$share/thumbnailers/vy-pixelworks.thumbnailer")
line=("${line[@]//%s/128}")
line=("${line[@]//%i/"$pictures/a set.prc"}")
line=("${line[@]//%o/"$pictures/a picture"}")
env -i PATH="$root/usr/bin" "${line[@]}" || fail "the thumbnailer's line fails: ${line[*]}"
grep -qE ': PNG image data, (128 x [0-9]+|[0-9]+ x 128),' <<<"$(file "$pictures/a picture")" ||
    fail "the thumbnailer makes no picture of 128 pixels"

while read -r path; do
    fail "$path does not belong into a package"
done < <(find "$root" \( -name '*.h' -o -name '*.a' -o -name '*.cmake' -o -name '*.py' -o -iname '*test*' \
    -o -name drawings \) -printf '/%P\n')
while read -r mode path; do
    case "$mode $path" in
        755\ usr/bin/*) ;;
        644\ usr/bin/*) fail "/$path can't be run" ;;
        644\ *) ;;
        *) fail "/$path has the mode $mode" ;;
    esac
done < <(find "$root" -type f -printf '%m %P\n')
while read -r path; do
    fail "/$path is a folder of another mode than 755"
done < <(find "$root" -mindepth 1 -type d ! -perm 755 -printf '%P\n')

for program in vy-pixelworks pixelworks-cli; do
    # It has to run out of the place that it was unpacked to.
    grep -q "libVYPX.so => $root/" <<<"$(ldd "$root/usr/bin/$program")" ||
        fail "$program does not find the module of its package"
    grep -qE 'RU?N?PATH +\$ORIGIN/\.\./lib[^:]*/vy-pixelworks$' <<<"$(objdump -p "$root/usr/bin/$program")" ||
        fail "$program looks for its module elsewhere, too"
    elf=$(readelf --file-header --program-headers --dynamic --wide "$root/usr/bin/$program")
    for sign in 'Type: +DYN ' 'FLAGS_1\) .*\<PIE\>' 'FLAGS_1\) .*\<NOW\>' 'GNU_RELRO '; do
        grep -qE "$sign" <<<"$elf" || fail "$program is not hardened: no '$sign'"
    done
done
held=$(dpkg-deb --ctrl-tarfile "$root"/../*.deb | tar t)
! grep -qvxE '\./(|control|md5sums)' <<<"$held" ||
    fail "the package has scripts or triggers of its own"
exit "$bad"
