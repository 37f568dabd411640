# The pictures in the documents, taken of the real control on a display of their own.
# shellcheck shell=bash

cmd_pictures() {
    # shellcheck disable=SC2046,SC2086
    need_packages $PACKAGES_MINGW $(bed_packages x86) $PACKAGES_SCREEN
    begin_run
    start_bed x86
    build x86 || exit 1
    wait_bed
    display_start
    VELLORA_OCX=$(library_path x86)
    export VELLORA_OCX VELLORA_ARCH=x86 VELLORA_ARTIFACTS=$VELLORA_ROOT/build/artifacts/pictures
    local code=0
    python3 "$VELLORA_ROOT/tools/pictures/take.py" "$@" 7>&- 8>&- || code=$?
    exit "$code"
}
