# The test command: builds, takes a seat, runs the rings, counts.
# shellcheck shell=bash

TEST_RINGS=()
TEST_ARCHES=()
TEST_FILTER=
TEST_SECONDS=600
PASSED=0
FAILED=0
SKIPPED=0

cmd_test() {
    read_test_options "$@"
    # shellcheck disable=SC2046
    need_packages $(test_packages)
    begin_run
    if ring_needs_bed; then start_bed "${TEST_ARCHES[@]}"; fi
    if ! build_for_tests; then
        count 0 1 0
        close_tests
    fi
    wait_bed
    run_rings
    [ -z "$RUN_KEPT" ] || tell_kept
    close_tests
}

read_test_options() {
    while [ $# -gt 0 ]; do
        case $1 in
            --ring|--arch|--filter|--generation) [ $# -gt 1 ] || die "$1 needs a value." ;;
        esac
        case $1 in
            --ring)
                case $2 in native|com|screen) TEST_RINGS+=("$2") ;; *) die "--ring is native, com or screen, not '$2'." ;; esac
                shift ;;
            --arch)
                case $2 in x86|x64) TEST_ARCHES+=("$2") ;; all) TEST_ARCHES=(x86 x64) ;;
                    *) die "--arch is x86, x64 or all, not '$2'." ;; esac
                shift ;;
            --filter) TEST_FILTER=$2; shift ;;
            --generation) choose_generation "$2"; shift ;;
            --keep) RUN_KEPT=yes ;;
            *) die "test does not know '$1'; see ./vellora help" ;;
        esac
        shift
    done
    [ ${#TEST_RINGS[@]} -gt 0 ] || TEST_RINGS=(native com screen)
    [ ${#TEST_ARCHES[@]} -gt 0 ] || TEST_ARCHES=(x86 x64)
}

with_ring() { [[ " ${TEST_RINGS[*]} " == *" $1 "* ]]; }
with_arch() { [[ " ${TEST_ARCHES[*]} " == *" $1 "* ]]; }
ring_needs_bed() { with_ring com || with_ring screen; }

# The checkers look at the libraries too, so the native ring needs them built.
needs_libraries() { ring_needs_bed || [ -n "$(checkers)" ]; }

test_packages() {
    if with_ring native; then echo "$PACKAGES_NATIVE"; fi
    if needs_libraries; then echo "$PACKAGES_MINGW"; fi
    if ring_needs_bed; then
        echo "$PACKAGES_SCREEN" "$PACKAGES_DATA"
        bed_packages "${TEST_ARCHES[@]}"
    fi
}

build_for_tests() {
    local arch
    if needs_libraries; then
        for arch in "${TEST_ARCHES[@]}"; do build "$arch" || return 1; done
    fi
    ! with_ring native || build native
}

run_rings() {
    local arch
    data_folders
    if with_ring native; then run_ring native native; fi
    ring_needs_bed || return 0
    ! with_ring com || scripts_of_documents || count 0 1 0
    ! with_ring com || package_begin
    if [ ${#TEST_ARCHES[@]} -eq 1 ] || [ -n "$RUN_KEPT" ]; then
        for arch in "${TEST_ARCHES[@]}"; do run_arch "$arch" com screen; done
        return 0
    fi
    ! with_ring com || run_side_by_side
    # A mouse and its windows want the machine to themselves.
    ! with_ring screen || for arch in "${TEST_ARCHES[@]}"; do run_arch "$arch" screen; done
}

# run_side_by_side - ring com of each kind of library, on a display and a Wine of its own, at the same time: it waits
# more than it works. What they print comes one after the other.
run_side_by_side() {
    local arch jobs=() index=0
    for arch in "${TEST_ARCHES[@]}"; do
        run_arch_apart "$arch" >"$SEAT/$arch.out" 2>&1 7>&- &
        jobs+=($!)
    done
    for arch in "${TEST_ARCHES[@]}"; do
        wait "${jobs[index]}" || true
        cat -- "$SEAT/$arch.out"
        # Without its sums a run did not come to its end.
        # shellcheck disable=SC2046
        count $(cat -- "$SEAT/$arch.sums" 2>/dev/null || echo 0 1 0)
        index=$((index + 1))
    done
}

run_arch_apart() {
    PASSED=0 FAILED=0 SKIPPED=0
    run_arch "$1" com
    echo "$PASSED $FAILED $SKIPPED" >"$SEAT/$1.sums"
}

# run_arch ARCH RING... - those of the rings that are wanted, with one kind of library.
run_arch() {
    local arch=$1 ring
    shift
    display_start
    if take_place "$arch"; then
        for ring in "$@"; do
            ! with_ring "$ring" || run_ring "$ring" "$arch"
        done
    else
        count 0 1 0
    fi
    [ -n "$RUN_KEPT" ] || leave_place "$arch"
}

# Places of the time zones and of the character data for whoever tests them.
data_folders() {
    export VELLORA_ZONEINFO=/usr/share/zoneinfo VELLORA_UNICODE=/usr/share/unicode
}

leave_place() {
    local prefix
    for prefix in "$SEAT/$1"-*; do stop_server "$1" "$prefix"; done
    display_stop
}

# run_ring RING ARCH - a ring without a single test is a mistake, unless
# the filter left none.
run_ring() {
    local before=$((PASSED + FAILED + SKIPPED)) failed=$FAILED started=$SECONDS
    export VELLORA_ARCH=$2
    "ring_$1" "$2"
    if [ $((PASSED + FAILED + SKIPPED)) -eq "$before" ] && [ -z "$TEST_FILTER" ]; then
        printf 'Ring %s (%s) ran no test.\n' "$1" "$2"
        count 0 1 0
    elif compact; then
        printf 'Ring %s (%s): %d tests, %d failed (%d s)\n' "$1" "$2" \
            $((PASSED + FAILED + SKIPPED - before)) $((FAILED - failed)) $((SECONDS - started))
    fi
}

count() { PASSED=$((PASSED + $1)) FAILED=$((FAILED + $2)) SKIPPED=$((SKIPPED + $3)); }

# suite_line ARCH NAME PASSED FAILED SKIPPED SECONDS - prints and counts.
suite_line() {
    local skipped=''
    count "$3" "$4" "$5"
    [ "$5" -eq 0 ] || skipped=", $5 skipped"
    # Silent are good suites in compact output and those the filter emptied.
    if [ "$4" -eq 0 ] && { compact || [ $(($3 + $5)) -eq 0 ]; }; then return 0; fi
    printf '%-6s %-32s %5d passed, %d failed%s (%d s)\n' "$1" "$2" "$3" "$4" "$skipped" "$6"
}

# show_tail FILE LINES - the end of what a failed suite printed; of a crash the
# backtrace is enough.
show_tail() {
    tr -d '\r' <"$1" |
        { grep -vE '^(0x[0-9a-f]+:  |Stack dump:|Register dump:| *[A-Za-z0-9]+:[0-9a-f]{4,} )' || true; } |
        tail -n "$2" | sed 's/^/    | /'
}

# gtest_suite ARCH PROGRAM COMMAND... - runs a GoogleTest program and counts.
gtest_suite() {
    local arch=$1 program=$2 started=$SECONDS code=0 name results log
    shift 2
    name=$(basename -- "$program" .exe)
    results=$SEAT/results/$arch/$name.json
    log=${results%.json}.log
    mkdir -p -- "${results%/*}"
    rm -f -- "$results"
    local output=$results
    [ "$arch" = native ] || output=$(windows_path "$results")
    timeout -k 5 "$TEST_SECONDS" "$@" "--gtest_output=json:$output" --gtest_color=no \
        ${TEST_FILTER:+"--gtest_filter=$(gtest_filter)"} >"$log" 2>&1 </dev/null || code=$?
    local counts failures
    failures=$(mktemp "${TMPDIR:-/tmp}/vellora-failures.XXXXXX")
    counts=$(python3 "$VELLORA_ROOT/tools/bed/gtest_counts.py" "$results" "$code" 2>"$failures") || counts='0 1 0'
    # shellcheck disable=SC2086
    suite_line "$arch" "$name" $counts $((SECONDS - started))
    sed 's/^/    /' "$failures"
    if [ ! -s "$results" ]; then
        show_exit "$code"
        show_tail "$log" 40
    fi
    rm -f -- "$failures"
    [ "$code" -lt 124 ] || [ "$arch" = native ] || renew_server "$arch"
}

gtest_filter() {
    case $TEST_FILTER in *'*'*|*-*|*:*) printf '%s' "$TEST_FILTER" ;; *) printf '*%s*' "$TEST_FILTER" ;; esac
}

show_exit() {
    case $1 in
        124|137) printf '    stopped: it ran for more than %d s\n' "$TEST_SECONDS" ;;
        *) printf '    ended early with code %d; the end of its output:\n' "$1" ;;
    esac
}

# What a program that had to be stopped may have left running goes with it.
renew_server() {
    stop_server "$1" "$(prefix_of "$1")"
    need_server "$1"
}

tell_kept() {
    say "Kept for a look: VELLORA_SEAT=$SEAT DISPLAY=${DISPLAY:-} ./vellora wine --generation $GENERATION PROGRAM"
    say 'It goes when that display has ended and another run starts.'
}

close_tests() {
    local skipped=''
    [ "$SKIPPED" -eq 0 ] || skipped=", $SKIPPED skipped"
    if [ $((PASSED + FAILED)) -eq 0 ]; then
        say 'No test was run.'
        [ "$SKIPPED" -gt 0 ] || FAILED=1
    fi
    printf '%d passed, %d failed%s\n' "$PASSED" "$FAILED" "$skipped"
    exit $((FAILED > 0))
}
