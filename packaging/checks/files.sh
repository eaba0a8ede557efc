#!/usr/bin/env bash
# files.sh ROOT: what the package in ROOT holds: nothing for developers, modes by the rule, every file
# that a desktop looks for, and no programs that look for libraries anywhere but in their own folder.
set -euo pipefail
root=$1
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
    "$share/man/man1/vy-pixelworks.1.gz" "$share/doc/vy-pixelworks/changelog.Debian.gz"
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
# Both are there once their sources are.
for source in man/pixelworks-cli.1.in pixelworks-cli.bash; do
    [ -e "$project/packaging/linux/$source" ] || continue
    case $source in
        man/*) wanted+=("$share/man/man1/pixelworks-cli.1.gz") ;;
        *) wanted+=("$share/bash-completion/completions/pixelworks-cli") ;;
    esac
done
for path in "${wanted[@]}"; do
    [ -s "$path" ] || fail "${path#"$root"} is missing"
done
# The bus starts what the service file names; the menu entry's id is the name on the bus.
service=$share/dbus-1/services/$id.service
started=$(sed -n 's/^Exec=//p' "$service")
[ -x "$root$started" ] || fail "the service starts $started, which is not there"
grep -qx "Name=$id" "$service" || fail "the service has another name than $id"

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
done
[ -z "$(dpkg-deb --ctrl-tarfile "$root"/../*.deb | tar t | grep -vxE '\./(|control|md5sums)')" ] ||
    fail "the package has scripts or triggers of its own"
exit "$bad"
