# A seat is a set of prefixes for one run: tests, the demonstration and the
# benchmark each get fresh ones, so that runs never meet and what one registers
# is gone with it.
# shellcheck shell=bash

RUN_LOCK=
RUN_KEPT=

# begin_run - takes a new seat; it is given back when the script ends.
begin_run() {
    make_cache
    mkdir -p -- "$CACHE/seat"
    remove_left_seats
    RUN_LOCK=$(mktemp "$CACHE/seat/.lock-XXXXXX")
    exec 8>"$RUN_LOCK"
    flock 8
    SEAT=$CACHE/seat/run-${RUN_LOCK##*-}
    export VELLORA_SEAT=$SEAT
    mkdir -- "$SEAT"
    trap end_run EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
}

end_run() {
    local code=$?
    trap '' INT TERM HUP
    stop_background
    keep_results
    if [ -z "$RUN_KEPT" ]; then
        # Programs that lose their display would say so.
        release_seat "$SEAT"
        display_stop
        rm -f -- "$RUN_LOCK"
    fi
    exit "$code"
}

# The whole output of the last run's tests, for whoever wants more than its end.
keep_results() {
    [ -d "$SEAT/results" ] || return 0
    remove_tree "$VELLORA_ROOT/build/results"
    cp -r -- "$SEAT/results" "$VELLORA_ROOT/build/results" || true
}

release_seat() {
    local prefix arch GENERATION
    for prefix in "$1"/x*-* "$1"/package/x*-*; do
        [ -d "$prefix" ] || continue
        arch=${prefix##*/}
        # shellcheck disable=SC2034
        GENERATION=$(generation_of "$prefix")
        stop_server "${arch%%-*}" "$prefix"
    done
    remove_tree "$1"
}

# Seats whose run was killed, for a lock that can be taken belongs to nobody,
# and those of checkouts that are gone.
remove_left_seats() {
    local seat lock
    for seat in "$CACHE"/seat/own-*; do
        if [ -e "$seat/.checkout" ] && [ ! -d "$(cat -- "$seat/.checkout")" ]; then release_seat "$seat"; fi
    done
    for seat in "$CACHE"/seat/run-*; do
        [ -d "$seat" ] || continue
        lock=$CACHE/seat/.lock-${seat##*-}
        if [ ! -e "$lock" ] || flock -n "$lock" true; then
            release_seat "$seat"
            rm -f -- "$lock"
        fi
    done
}

# take_place ARCH - a running prefix with the library of dist registered.
take_place() {
    local arch=$1 log=$SEAT/register-$1.log
    unset VELLORA_REGISTER
    need_server "$arch"
    register_library "$arch" >"$log" 2>&1 </dev/null || {
        say "Registering dist/$arch/VelloraCTL.ocx failed:"
        tail -n 12 -- "$log" >&2
        return 1
    }
    # Prefixes of other resolutions that the run starts register it too.
    export VELLORA_REGISTER=1
}

register_library() {
    bed_run "$1" regsvr32 /s "$(library_path "$1")" 7>&- 8>&-
}

# library_path ARCH, windows_path FILE - paths as Windows programs know them.
library_path() { windows_path "$VELLORA_ROOT/dist/$1/VelloraCTL.ocx"; }
windows_path() { printf 'Z:%s' "${1//\//\\}"; }
