#!/usr/bin/env bash
# overlay.sh FOLDER PACKAGE: unpacks PACKAGE into FOLDER, lays it over this machine's /usr and has users
# run it. As root, in a mount namespace, with which all of it goes.
set -euo pipefail
folder=$1
package=$2
checks=$(realpath "$(dirname "$0")")

dpkg-deb -x "$package" "$folder"
mount -t overlay -o "lowerdir=$folder/usr:/usr" overlay /usr
"$checks/use.sh" /
