# Ring com: test programs, scripts and samples against the registered library.
# shellcheck shell=bash

SCRIPT_END="# end of script"

ring_com() {
    local arch=$1 program script
    VELLORA_OCX=$(library_path "$arch")
    export VELLORA_OCX
    # Windows stand where they were put, without a window manager's own ideas.
    manage_windows "$arch" N
    for program in "$VELLORA_ROOT/build/$arch"/tests/*_tests.exe; do
        [ -f "$program" ] || continue
        # shellcheck disable=SC2046
        gtest_suite "$arch" "$program" "$VELLORA_ROOT/vellora" wine $(wide "$arch") "$program"
    done
    for script in "$VELLORA_ROOT"/tests/com/*.vbs "$VELLORA_ROOT"/build/documents/*.vbs; do
        if [ -f "$script" ] && [[ ${script##*/} == *${TEST_FILTER//\*/}* ]]; then
            script_suite "$arch" "$script"
        fi
    done
    ring_samples "$arch"
    ring_package "$arch"
    manage_windows "$arch" Y
}

# scripts_of_documents - what docs/ says, as scripts that try it.
scripts_of_documents() {
    python3 "$VELLORA_ROOT/tools/reference.py" --scripts "$VELLORA_ROOT/build/documents"
}

# manage_windows ARCH Y|N - whether the window manager gets to see windows.
manage_windows() {
    # shellcheck disable=SC2046
    "$VELLORA_ROOT/vellora" wine $(wide "$1") reg.exe add 'HKCU\Software\Wine\X11 Driver' \
        /v Managed /d "$2" /f >/dev/null 2>&1 </dev/null
}

wide() { [ "$1" = x86 ] || echo --64; }

# script_suite ARCH SCRIPT - an error in a script ends it silently and with code
# 0, so what runs is a copy that begins with the checks and says when its end was
# reached.
script_suite() {
    local arch=$1 name=${2##*/} copy
    copy=$SEAT/results/$arch/$name
    mkdir -p -- "${copy%/*}"
    {
        cat -- "$VELLORA_ROOT/tests/com/support/checks.vbs" "$2" | tr -d '\r'
        printf '\nWScript.Echo "%s"\n' "$SCRIPT_END"
    } | sed 's/$/\r/' >"$copy"
    line_suite "$arch" "$name" cscript.exe //nologo "$(windows_path "$copy")"
}

# line_suite ARCH NAME PROGRAM... - counts the lines "ok NAME" and "not ok NAME:
# why" that a Windows program prints.
line_suite() {
    local arch=$1 name=$2 started=$SECONDS code=0 log passed failed
    shift 2
    log=$SEAT/results/$arch/$name.log
    mkdir -p -- "${log%/*}"
    # shellcheck disable=SC2046
    timeout -k 5 "$TEST_SECONDS" "$VELLORA_ROOT/vellora" wine $(wide "$arch") "$@" >"$log" 2>&1 </dev/null || code=$?
    passed=$(grep -c '^ok ' "$log" || true)
    failed=$(grep -c '^not ok ' "$log" || true)
    if lines_complete "$log" "$code" $((passed + failed)) "$failed"; then
        suite_line "$arch" "$name" "$passed" "$failed" 0 $((SECONDS - started))
        { grep '^not ok ' "$log" || true; } | tr -d '\r' | sed 's/^/    /'
    else
        suite_line "$arch" "$name" "$passed" $((failed + 1)) 0 $((SECONDS - started))
        if [ $((passed + failed)) -gt 0 ] || [ "$code" -ne 0 ]; then
            show_exit "$code"
        else
            echo '    it printed no line "ok NAME" or "not ok NAME: why"'
        fi
        show_tail "$log" 20
    fi
    [ "$code" -lt 124 ] || renew_server "$arch"
}

# lines_complete LOG CODE LINES FAILED - whether it tested all it wanted to and
# came to its end; a last line "1..N" says how many tests that are.
lines_complete() {
    local planned
    planned=$(tr -d '\r' <"$1" | sed -n 's/^1\.\.\([0-9]*\)$/\1/p')
    [ "$3" -gt 0 ] && [ "${planned:-$3}" -eq "$3" ] && grep -qE "^($SCRIPT_END|1\.\.[0-9]+)" "$1" &&
        { [ "$2" -eq 0 ] || [ "$4" -gt 0 ]; }
}
