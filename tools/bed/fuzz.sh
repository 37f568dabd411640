# Fuzzing of saved settings and forms, natively and under sanitizers.
# shellcheck shell=bash

FUZZ_TARGETS='stream bag form'
# Of each target in the native ring of the tests, where all run side by side.
FUZZ_TEST_SECONDS=30

cmd_fuzz() {
    local seconds=${1:-300}
    case $seconds in ''|*[!0-9]*) die "fuzz takes a number of seconds, not '$seconds'." ;; esac
    # shellcheck disable=SC2086
    need_packages $PACKAGES_NATIVE
    build native
    local target seed=$RANDOM failed=0 pids=()
    for target in $FUZZ_TARGETS; do
        fuzz_target "$target" "$seconds" --seed "$seed" --keep "$(fuzz_finds "$target")" &
        pids+=($!)
    done
    for target in "${pids[@]}"; do wait "$target" || failed=1; done
    return "$failed"
}

# What long runs found goes on from there in the next one.
fuzz_finds() { printf '%s' "$VELLORA_ROOT/build/fuzz/$1"; }

# fuzz_target TARGET SECONDS [OPTIONS] - starts from the corpus in the repository.
fuzz_target() {
    local target=$1 seconds=$2
    shift 2
    lower_priority "$VELLORA_ROOT/build/native/fuzz/settings_fuzzer" "$target" --seconds "$seconds" \
        --corpus "$VELLORA_ROOT/fuzz/corpus/$target" --corpus "$(fuzz_finds "$target")" \
        --failures "$VELLORA_ROOT/build/fuzz/failures" "$@"
}

# fuzz_begin, fuzz_end - the ring's share, beside its other tests. Always the same seed.
fuzz_begin() {
    local target
    mkdir -p -- "$SEAT/results/native"
    FUZZ_RUNS=()
    for target in $FUZZ_TARGETS; do
        [[ fuzz_$target == *${TEST_FILTER//\*/}* ]] || continue
        timeout -k 5 "$TEST_SECONDS" \
            "$VELLORA_ROOT/build/native/fuzz/settings_fuzzer" "$target" --seconds "$FUZZ_TEST_SECONDS" \
            --corpus "$VELLORA_ROOT/fuzz/corpus/$target" --failures "$VELLORA_ROOT/build/fuzz/failures" \
            >"$SEAT/results/native/fuzz_$target.log" 2>&1 </dev/null &
        FUZZ_RUNS+=("$target:$!")
    done
}

fuzz_end() {
    local run target
    for run in "${FUZZ_RUNS[@]}"; do
        target=${run%:*}
        if wait "${run#*:}"; then
            suite_line native "fuzz_$target" 1 0 0 "$FUZZ_TEST_SECONDS"
        else
            suite_line native "fuzz_$target" 0 1 0 "$FUZZ_TEST_SECONDS"
            show_tail "$SEAT/results/native/fuzz_$target.log" 40
        fi
    done
}
