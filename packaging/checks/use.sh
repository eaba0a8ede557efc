#!/usr/bin/env bash
# use.sh ROOT: has two ordinary users and root run both programs that are installed in ROOT. Each works
# in a folder of its own; none of the users can write to the installation. As root, in a mount
# namespace.
set -euo pipefail
root=$1
umask 022
project=$(realpath "$(dirname "$0")/../..")
source "$project/scripts/packages.sh"

homes=$(chroot "$root" mktemp -d /tmp/vy-pixelworks-homes.XXXXXX) # in ROOT
trap 'rm -rf "${root:?}${homes:?}"' EXIT
chmod 755 "$root$homes"

fail() { # WORDS...
    say "$*"
    exit 1
}

# as_user ID COMMAND...: in ROOT, as the user of that number, with a home and nothing else.
as_user() {
    local id=$1
    shift
    exec chroot "$root" setpriv --reuid "$id" --regid "$id" --clear-groups \
        env -i HOME="$homes/$id" XDG_RUNTIME_DIR="$homes/$id/run" PATH=/usr/bin:/bin LANG=C.UTF-8 "$@"
}
# The home is open to all, as on many machines: what keeps others out is what the program makes.
add_user() { # ID
    mkdir -p "$root$homes/$1/run"
    cp "$project/data/samples/first-set.prc" "$root$homes/$1/set.prc"
    chown -R "$1:$1" "$root$homes/$1"
    chmod 755 "$root$homes/$1"
    chmod 700 "$root$homes/$1/run"
}
own_folder() { # ID
    echo "$root$homes/$1/.local/share/vy-pixelworks"
}

wait_until() { # COMMAND...
    for _ in $(seq 300); do
        ! "$@" || return 0
        sleep 0.1
    done
    return 1
}
seeded() { # ID: the catalogs are there, and the working folder of the running copy
    [ -s "$(own_folder "$1")/AppList.dat" ] && [ -d "$(own_folder "$1")/temp" ]
}

# The program runs without a screen until its folder is filled, and is ended then.
run_program() { # ID
    (as_user "$1" QT_QPA_PLATFORM=offscreen vy-pixelworks) &
    local pid=$!
    wait_until seeded "$1" || { kill "$pid" || true; fail "The program of user $1 did not fill its folder."; }
    sleep 0.5
    kill -0 "$pid" || fail "The program of user $1 ended by itself."
    kill -TERM "$pid"
    wait "$pid" || true
}

# On a screen, past its greeting and to its end by the close button.
run_on_screen() { # ID
    local wrapper
    wrapper=$(mktemp)
    {
        echo '#!/usr/bin/env bash'
        declare -f as_user
        printf 'root=%q\nhomes=%q\nas_user %q DISPLAY="$DISPLAY" vy-pixelworks\n' "$root" "$homes" "$1"
    } >"$wrapper"
    chmod +x "$wrapper"
    local status=0
    "$project/scripts/run-on-virtual-screen.sh" "$wrapper" "$project/build/package-screenshot.png" || status=$?
    rm -f "$wrapper"
    [ "$status" -eq 0 ] || fail "The program of user $1 did not run on a screen."
}

run_tool() { # ID
    local said
    said=$(as_user "$1" pixelworks-cli dump "$homes/$1/set.prc" --app-folder /usr/share/vy-pixelworks \
        --work "$homes/$1/work")
    grep -q '"icons"' <<<"$said" || fail "The tool of user $1 dumps nothing."
    said=$(as_user "$1" pixelworks-cli validate "$homes/$1/set.prc") &&
        fail "The tool of user $1 finds nothing in the sample."
    grep -q orphan <<<"$said" || fail "The tool of user $1 does not find the sample's orphan."
}

for id in 61001 61002 0; do
    say "User $id"
    add_user "$id"
    if [ "$id" -ne 0 ]; then
        for path in /usr/share/vy-pixelworks /usr/share/vy-pixelworks/AppList.dat /usr/bin/vy-pixelworks; do
            ! (as_user "$id" test -w "$path") || fail "User $id can write to $path."
        done
    fi
    run_program "$id"
    run_tool "$id"
    while IFS= read -r -d '' path; do
        fail "$path is not user $id's own."
    done < <(find "$root$homes/$id" -not -uid "$id" -print0)
done

say "Two users"
for id in 61001 61002; do
    run_on_screen "$id"
    [ -s "$(own_folder "$id")/VYPX.ini" ] || fail "User $id has no settings."
done
settings=$homes/61001/.local/share/vy-pixelworks/VYPX.ini # in ROOT
catalog=${settings%/*}/AppList.dat
(as_user 61001 touch "${settings%/*}/probe") || fail "User 61001 can't write into the own folder."
for path in "${settings%/*}" "$settings" "$catalog"; do
    ! (as_user 61002 test -w "$path") || fail "User 61002 can write to $path."
done

# What the one changes outlives the next run of both, and the other does not see it.
difference() { # between the settings of the two, without the line numbers
    diff "$(own_folder 61001)/VYPX.ini" "$(own_folder 61002)/VYPX.ini" | tr -d '\r' | grep '^[<>]' || true
}
[ -z "$(difference)" ] || fail "The users' settings differ after the same run: $(difference)"
(as_user 61001 sed -i 's/^Version String=3\.20/Version String=6.1/' "$settings")
(as_user 61001 sed -i '$a [User 61001]\nType=appl\nCreator={U001}' "$catalog")
for id in 61001 61002; do
    run_on_screen "$id"
done
[ "$(difference)" = $'< Version String=6.1\n> Version String=3.20' ] ||
    fail "The users' settings differ by something else than what user 61001 set: $(difference)"
grep -q 'User 61001' "$root$catalog" || fail "A start took back what user 61001 had changed."
[ -s "$(own_folder 61002)/AppList.dat" ] || fail "User 61002 has no catalog."
! grep -q 'User 61001' "$(own_folder 61002)/AppList.dat" || fail "The users share a catalog."
