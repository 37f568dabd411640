# Things every other part uses: messages, folders, small helpers.
# shellcheck shell=bash

CACHE=${VELLORA_CACHE:-${XDG_CACHE_HOME:-${HOME:-/root}/.cache}/vellora}
case $CACHE in /*) ;; *) CACHE=$PWD/$CACHE ;; esac
export VELLORA_CACHE=$CACHE

# Wine gets a temporary folder of its own; this is the user's.
# shellcheck disable=SC2034
USER_TMPDIR=${TMPDIR:-/tmp}

# Locks have file descriptors with fixed numbers, so that they can be closed for
# background processes: 6 = start of a wineserver, 7 = build folder, 8 = seat of
# a run, 9 = test bed.

say() { printf '%s\n' "$*" >&2; }

die() {
    say "vellora: $*"
    exit 1
}

have() { command -v -- "$1" >/dev/null 2>&1; }

compact() { [ -n "${CI:-}" ]; }

# lower_priority COMMAND... - long work leaves room for the user's own.
lower_priority() { nice -n 5 -- "$@"; }

# fingerprint TEXT... - a short name for a recipe.
fingerprint() {
    local sum
    sum=$(printf '%s\n' "$@" | sha256sum)
    printf '%s' "${sum:0:12}"
}

# A value of /etc/os-release.
os_release() {
    # shellcheck source=/dev/null
    (. /etc/os-release && eval "printf '%s' \"\${$1:-}\"")
}

# need_room FOLDER MEGABYTES WHAT - ends here when the disk is too full.
need_room() {
    local folder=$1 needed=$2 what=$3 free
    free=$(df -Pm -- "$folder" | awk 'NR == 2 { print $4 }')
    [ "$free" -ge "$needed" ] || die \
        "$what needs $needed MB in $folder, which has $free MB; make room, or choose another place: VELLORA_CACHE=/another/folder ./vellora ..."
}

# make_cache - the folder for everything that is made once.
make_cache() {
    mkdir -p -- "$CACHE" 2>/dev/null || true
    [ -w "$CACHE" ] || die \
        "the cache folder $CACHE cannot be written; choose another one: VELLORA_CACHE=/another/folder ./vellora ..."
}

# remove_tree FOLDER... - never crosses into something mounted inside.
remove_tree() {
    local folder
    for folder in "$@"; do
        [ -e "$folder" ] || continue
        rm -rf --one-file-system -- "$folder" 2>/dev/null || {
            chmod -R u+rwX -- "$folder" 2>/dev/null || true
            rm -rf --one-file-system -- "$folder" || true
        }
    done
}

# quietly LOG WHAT COMMAND... - output goes to LOG, shown only on failure.
quietly() {
    local log=$1 what=$2
    shift 2
    "$@" >"$log" 2>&1 </dev/null && return 0
    say "$what failed; the end of $log:"
    tail -n 25 -- "$log" >&2
    return 1
}
