# A display of our own: Xvfb on a free number, with openbox as window manager.
# shellcheck shell=bash

DISPLAY_PROCESSES=()

# display_start - sets DISPLAY. Ends with the script, even if that is killed.
display_start() {
    local number_file number='' i
    number_file=$(mktemp "${TMPDIR:-/tmp}/vellora-display.XXXXXX")
    # Without -noreset the end of the first client would throw out all others.
    start_dependent Xvfb -displayfd 3 -screen 0 1280x1024x24 -dpi 96 -nolisten tcp -noreset 3>"$number_file"
    for ((i = 0; i < 400; i++)); do
        number=$(<"$number_file")
        [ -z "$number" ] || break
        sleep 0.05
    done
    rm -f -- "$number_file"
    [ -n "$number" ] || die 'Xvfb did not start; look at what it says: Xvfb -screen 0 1280x1024x24 :99'
    export DISPLAY=:$number
    unset XAUTHORITY WAYLAND_DISPLAY
    start_dependent openbox --sm-disable --config-file "$VELLORA_ROOT/tools/bed/openbox.xml"
    for ((i = 0; i < 400; i++)); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && return 0
        sleep 0.05
    done
    die 'openbox did not start.'
}

start_dependent() {
    if [ -n "$RUN_KEPT" ]; then
        setsid "$@" >/dev/null 2>&1 </dev/null 7>&- &
    else
        setpriv --pdeathsig TERM "$@" >/dev/null 2>&1 </dev/null 7>&- 8>&- &
    fi
    DISPLAY_PROCESSES+=($!)
}

display_stop() {
    local i
    for ((i = ${#DISPLAY_PROCESSES[@]} - 1; i >= 0; i--)); do
        kill "${DISPLAY_PROCESSES[i]}" 2>/dev/null || true
        wait "${DISPLAY_PROCESSES[i]}" 2>/dev/null || true
    done
    DISPLAY_PROCESSES=()
}

display_usable() { [ -n "${DISPLAY:-}" ] && timeout 10 xdpyinfo >/dev/null 2>&1; }
