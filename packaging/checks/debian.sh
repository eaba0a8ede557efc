#!/usr/bin/env bash
# debian.sh ROOT PACKAGE: installs PACKAGE by apt in the Debian at ROOT, where all that it depends on is
# installed, has users run it, removes it and looks for what is left. As root, in a mount namespace.
set -euo pipefail
root=$1
package=$2
checks=$(realpath "$(dirname "$0")")
source "$checks/../../scripts/packages.sh"

mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
name=$(dpkg-deb -f "$package" Package)
id=$(dpkg-deb -c "$package" | sed -nE 's,.*/applications/(.*)\.desktop$,\1,p')

# All files with their sizes, all folders and all packages. Left out is what changes with any package:
# the notes of dpkg and apt (but what dpkg knows of each package), logs, caches of apt.
state() {
    local left_out=() path
    for path in proc dev sys run tmp home root var/log var/cache/apt var/lib/apt \
        var/lib/dpkg/{status,status-old,available,lock,lock-frontend,triggers,updates}; do
        left_out+=(-path "./$path" -o)
    done
    (cd "$root" && find . \( "${left_out[@]}" -false \) -prune -o \
        \( -type d -printf '%p/\n' -o -printf '%p %s\n' \)) | sort
    chroot "$root" dpkg-query -W -f='package ${Package} ${Status}\n'
}
apt_in_root() {
    chroot "$root" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 apt-get -q -y "$@" >"$root/tmp/apt.log" 2>&1 || {
        cat "$root/tmp/apt.log"
        return 1
    }
}
known() { # whether the caches of the desktop know the program and its files
    grep -q "$id" "$root/usr/share/applications/mimeinfo.cache" &&
        grep -q x-vantry-iconset "$root/usr/share/mime/magic"
}

cp "$package" "$root/tmp/package.deb"
# The caches exist before, as on any desktop.
chroot "$root" update-desktop-database
state >"$root/tmp/before"

say "Installing by apt"
# Nothing else may be needed: what the package names is there, and no list of packages is.
apt_in_root install --no-install-recommends /tmp/package.deb
[ "$(chroot "$root" dpkg-query -W -f='${Status}' "$name")" = "install ok installed" ]
# It tells of files that differ by its words alone.
differing=$(chroot "$root" dpkg --verify "$name")
[ -z "$differing" ] || { say "Installed files differ from the package's: $differing"; exit 1; }
known || { say "The desktop's caches do not know the program."; exit 1; }

"$checks/use.sh" "$root"

# What a user has made is the user's; the rest goes.
say "Removing"
apt_in_root remove "$name"
! known || { say "The desktop's caches still know the program."; exit 1; }
chroot "$root" dpkg --purge "$name" # apt does not know a package of which no settings are left
state >"$root/tmp/after"
diff "$root/tmp/before" "$root/tmp/after" || { say "Something was left behind."; exit 1; }
