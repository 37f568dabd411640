# The demonstration and the benchmark.
# shellcheck shell=bash

cmd_demo() {
    if [ "${1:-}" = container ]; then
        shift
        demo_container "$@"
    fi
    say "To try the control out by yourself: './vellora demo container' opens a form designer."
    prepare_x86
    if [ ${#DISPLAY_PROCESSES[@]} -eq 0 ]; then
        local code=0
        say 'The demonstration is on your screen; it ends when you close its window.'
        bed_run x86 "$VELLORA_ROOT/build/x86/samples/demo/demo.exe" "$@" 7>&- 8>&- || code=$?
        exit "$code"
    fi
    say 'There is no display to show it on; playing it by itself ...'
    play_demo "$@"
}

CONTAINER_NEEDS='the test container is for a person to work with. It needs a display: start it on a desktop, or over ssh -X.'

# demo_container [FORM] - the test container, for as long as its window is open.
demo_container() {
    [ -n "${DISPLAY:-}" ] || die "$CONTAINER_NEEDS"
    prepare_x86
    [ ${#DISPLAY_PROCESSES[@]} -eq 0 ] || die "$CONTAINER_NEEDS"
    local code=0
    say 'The test container is on your screen; it ends when you close its window.'
    bed_run x86 "$VELLORA_ROOT/build/x86/samples/container/container.exe" "$@" 7>&- 8>&- || code=$?
    exit "$code"
}

play_demo() {
    export VELLORA_ARCH=x86 VELLORA_ARTIFACTS=${VELLORA_ARTIFACTS:-$VELLORA_ROOT/build/artifacts/demo}
    mkdir -p -- "$VELLORA_ARTIFACTS"
    cd -- "$VELLORA_ROOT" || exit 1
    local code=0
    python3 samples/demo/play.py "$@" 7>&- 8>&- || code=$?
    say "Pictures: $VELLORA_ARTIFACTS"
    exit "$code"
}

cmd_bench() {
    prepare_x86
    local code=0
    bed_run x86 "$VELLORA_ROOT/build/x86/bench/bench.exe" "$@" 7>&- 8>&- || code=$?
    exit "$code"
}

# prepare_x86 - the library built and registered, and a display to run on.
prepare_x86() {
    # shellcheck disable=SC2046,SC2086
    need_packages $PACKAGES_MINGW $(bed_packages x86) $PACKAGES_SCREEN $PACKAGES_DATA
    begin_run
    start_bed x86
    build x86 || exit 1
    wait_bed
    data_folders
    VELLORA_OCX=$(library_path x86)
    export VELLORA_OCX
    display_usable || display_start
    take_place x86 || exit 1
}
