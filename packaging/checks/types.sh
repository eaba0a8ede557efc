#!/usr/bin/env bash
# types.sh ROOT TYPES_BY_QT: what GIO and Qt (by that program) take files for, with the types of this
# system alone and with those of the package in ROOT. Iconsets and templates are told by them and belong
# to the program; other files keep exactly the types that they had.
set -euo pipefail
root=$(realpath "$1")
types_by_qt=$(realpath "$2")
project=$(realpath "$(dirname "$0")/../..")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -p "$folder"/{before,after}/mime/packages "$folder"/{home,ours,others}
export XDG_DATA_HOME=$folder/home XDG_CONFIG_HOME=$folder/home XDG_CONFIG_DIRS=$folder/home
export XDG_CACHE_HOME=$folder/home GIO_USE_VFS=local LC_ALL=C.UTF-8
unset XDG_CURRENT_DESKTOP

# palm FILE TYPE CREATOR: a Palm database without records.
palm() {
    { head -c 60 /dev/zero | tr '\0' 'n'; printf '%s%s' "$2" "$3"; head -c 200 /dev/zero; } >"$1"
}
for name in set.prc set.pdb SET.PRC set; do
    cp "$project/data/samples/first-set.prc" "$folder/ours/$name"
    palm "$folder/ours/bare-$name" ICON VNTR
done
"$root/usr/bin/pixelworks-cli" convert "$folder/ours/set.prc" "$folder/ours/list.vpt" \
    --app-folder "$root/usr/share/vy-pixelworks" --work "$folder/work" --export-template
cd "$folder/others"
palm application.prc appl Calc
palm application appl Calc
palm panel.prc panl netw
palm doc.pdb TEXt REAd
palm memo.pdb DATA memo
palm book.prc BOOK MOBI
palm book.mobi BOOK MOBI
palm book BOOK MOBI
palm clipping.pqa pqa\  clpr
palm overlay.oprc ovly Calc
palm half.prc ICON VNTX
palm other.prc JCON VNTR
printf 'ICONVNTR' >start.prc
{ head -c 61 /dev/zero; printf 'ICONVNTR'; } >late.pdb
printf 'some words\n' >words.prc
: >empty.pdb
cp "$project/src/forms/art/program16.png" picture.prc
cp "$project/src/forms/art/program16.png" picture.png

# types SYSTEM: "name judge type" of all files.
types() {
    local file
    for file in "$folder"/ours/* "$folder"/others/*; do
        printf '%s gio ' "${file#"$folder/"}"
        XDG_DATA_DIRS=$folder/$1 gio info -a standard::content-type "$file" |
            sed -n 's/^ *standard::content-type: //p'
        printf '%s Qt ' "${file#"$folder/"}"
        XDG_DATA_DIRS=$folder/$1 "$types_by_qt" "$file"
    done
}
# install_types SYSTEM XML...
install_types() {
    local system=$1
    shift
    cp "$@" "$folder/$system/mime/packages/"
    XDG_DATA_DIRS=$folder/$system "$project/packaging/checks/quiet.sh" update-mime-database "$folder/$system/mime"
}
known=/usr/share/mime/packages/freedesktop.org.xml
install_types before "$known"
install_types after "$known" "$root"/usr/share/mime/packages/*.xml
types before >"$folder/types-before"
types after >"$folder/types-after"

bad=0
diff <(grep ^others/ "$folder/types-before") <(grep ^others/ "$folder/types-after") ||
    { echo "Files that are no iconsets have another type now."; bad=1; }
if grep x-vantry "$folder/types-before"; then
    echo "The types of this system know the package's: nothing is shown by this."
    bad=1
fi
# Nothing is shown by a judge that has one type for everything.
for judge in gio Qt; do
    count=$(grep "^others/.* $judge " "$folder/types-before" | cut -d ' ' -f 3 | sort -u | wc -l)
    [ "$count" -ge 5 ] || { cat "$folder/types-before"; echo "$judge tells too few types."; bad=1; }
done
while read -r name judge type; do
    case $name in
        *.vpt) wanted=application/x-vantry-iconset-template ;;
        *) wanted=application/x-vantry-iconset ;;
    esac
    [ "$type" = "$wanted" ] || { echo "$judge takes $name for $type"; bad=1; }
done < <(grep ^ours/ "$folder/types-after")

# The desktop gives these types to the program, whose menu entry counts only if it can be run.
cp -r "$root/usr/share/applications" "$folder/after/"
update-desktop-database "$folder/after/applications"
entry=$(basename "$root"/usr/share/applications/*.desktop)
for type in application/x-vantry-iconset{,-template}; do
    opened=$(PATH=$root/usr/bin:$PATH XDG_DATA_DIRS=$folder/after gio mime "$type")
    grep -q "^Default application for .*: $entry\$" <<<"$opened" ||
        { echo "$type is not opened by $entry: $opened"; bad=1; }
done
exit "$bad"
