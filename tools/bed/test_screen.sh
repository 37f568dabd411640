# Ring screen: what a user sees and does, with real mouse and keys.
# shellcheck shell=bash

SCREEN_SECONDS=1200

ring_screen() {
    local arch=$1 started=$SECONDS code=0 results=$SEAT/results/$1/screen.json
    local suite passed failed skipped seconds
    [ -d "$VELLORA_ROOT/tests/screen" ] || return 0
    local -x VELLORA_ARTIFACTS=${VELLORA_ARTIFACTS:-}
    screen_artifacts "$arch"
    mkdir -p -- "${results%/*}"
    rm -f -- "$results"
    VELLORA_OCX=$(library_path "$arch")
    export VELLORA_OCX
    (cd -- "$VELLORA_ROOT" && timeout -k 5 "$SCREEN_SECONDS" \
        python3 tools/bed/screen_run.py tests/screen "$results" "$TEST_FILTER") </dev/null || code=$?
    if [ ! -s "$results" ]; then
        suite_line "$arch" screen 0 1 0 $((SECONDS - started))
        printf '    the screen tests ended early with code %d\n' "$code"
        return 0
    fi
    while read -r suite passed failed skipped seconds; do
        suite_line "$arch" "$suite" "$passed" "$failed" "$skipped" "$seconds"
    done < <(python3 "$VELLORA_ROOT/tools/bed/screen_run.py" --lines "$results")
}

# Pictures of an earlier run would be taken for this one's.
screen_artifacts() {
    if [ -z "${VELLORA_ARTIFACTS:-}" ]; then
        VELLORA_ARTIFACTS=$VELLORA_ROOT/build/artifacts/$1
        [ "$VELLORA_DPI" = 96 ] || VELLORA_ARTIFACTS+=-$VELLORA_DPI
        remove_tree "$VELLORA_ARTIFACTS"
    fi
    mkdir -p -- "$VELLORA_ARTIFACTS"
}
