# Making the test bed beside the compiler.
# shellcheck shell=bash

BACKGROUND=

# start_bed ARCH... and wait_bed - what is missing is made in between.
start_bed() {
    if bed_ready "$@"; then return 0; fi
    need_bed "$@" </dev/null &
    BACKGROUND=$!
}

wait_bed() {
    local job=$BACKGROUND
    [ -n "$job" ] || return 0
    if kill -0 "$job" 2>/dev/null && ! compact; then say 'Waiting for the test bed ...'; fi
    wait "$job" || die 'there is no test bed to run programs in.'
    BACKGROUND=
}

bed_ready() {
    local arch root
    for arch in "$@"; do
        [ -d "$(template_folder "$arch")" ] || return 1
        while IFS= read -r root; do
            [ -d "$root" ] || return 1
        done < <(roots_of "$arch")
    done
}

stop_background() {
    [ -z "$BACKGROUND" ] || end_tree "$BACKGROUND"
    BACKGROUND=
}

# end_tree PROCESS - the process and all it started.
end_tree() {
    local child
    # shellcheck disable=SC2013
    for child in $(cat "/proc/$1/task/"*/children 2>/dev/null); do end_tree "$child"; done
    kill -TERM "$1" 2>/dev/null || true
}
