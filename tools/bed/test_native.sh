# Ring native: the portable code under sanitizers, the checkers, and the fuzzers beside them.
# shellcheck shell=bash

ring_native() {
    local program checker
    fuzz_begin
    for program in "$VELLORA_ROOT"/build/native/tests/*_tests; do
        [ -x "$program" ] || continue
        gtest_suite native "$program" env \
            ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1}" \
            UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}" "$program"
    done
    while IFS= read -r checker; do
        [ -z "$checker" ] || run_checker "$checker"
    done < <(checkers)
    fuzz_end
}

# checkers - tools/check_*.py: each one looks at one property of the whole.
checkers() {
    local checker
    for checker in "$VELLORA_ROOT"/tools/check_*.py; do
        if [ -f "$checker" ] && [[ ${checker##*/} == *${TEST_FILTER//\*/}* ]]; then printf '%s\n' "$checker"; fi
    done
}

run_checker() {
    local checker=$1 name started=$SECONDS log code=0
    name=$(basename -- "$checker" .py)
    log=$SEAT/results/native/$name.log
    mkdir -p -- "${log%/*}"
    (
        cd -- "$VELLORA_ROOT"
        export VELLORA_BUILD_X86=$VELLORA_ROOT/build/x86 VELLORA_BUILD_X64=$VELLORA_ROOT/build/x64 \
            VELLORA_BUILD_NATIVE=$VELLORA_ROOT/build/native VELLORA_DIST=$VELLORA_ROOT/dist
        timeout -k 5 "$TEST_SECONDS" python3 "$checker"
    ) >"$log" 2>&1 </dev/null || code=$?
    if [ "$code" -eq 0 ]; then
        suite_line native "$name" 1 0 0 $((SECONDS - started))
    else
        suite_line native "$name" 0 1 0 $((SECONDS - started))
        show_tail "$log" 30
    fi
}
