# The archive for a download, and what its scripts do on a machine.
# shellcheck shell=bash

package_wanted() { [[ $1 == *${TEST_FILTER//\*/}* ]]; }

# package_begin - makes the archive of what is tested, twice, and looks into it.
package_begin() {
    if ! package_wanted package_archive && ! package_wanted package_install; then return 0; fi
    local turn
    mkdir -p -- "$SEAT/package" "$SEAT/results"
    for turn in first second; do
        make_package "$SEAT/package/$turn.zip" --quick "${TEST_ARCHES[@]}" >"$SEAT/results/package.log" 2>&1 || {
            say 'The archive could not be made:'
            tail -n 12 -- "$SEAT/results/package.log" >&2
            count 0 1 0
            return 0
        }
    done
    VELLORA_PACKAGES=$SEAT/package VELLORA_ARCHES="${TEST_ARCHES[*]}" python_suite both package_archive
}

# ring_package ARCH - installs it in a Wine of its own, where nothing is registered.
ring_package() {
    local arch=$1 prefix
    if ! package_wanted package_install || [ ! -f "$SEAT/package/first.zip" ]; then return 0; fi
    prefix=$(SEAT=$SEAT/package prefix_of "$arch")
    (
        unset VELLORA_REGISTER
        export VELLORA_PACKAGES=$SEAT/package VELLORA_SEAT=$SEAT/package VELLORA_PREFIX=$prefix
        # Two kinds of library make theirs at the same time.
        mkdir -p -- "$VELLORA_SEAT"
        python_suite "$arch" package_install
        echo "$PASSED $FAILED $SKIPPED" >"$SEAT/package/$arch.sums"
    )
    read -r PASSED FAILED SKIPPED <"$SEAT/package/$arch.sums"
    stop_server "$arch" "$prefix"
}

# python_suite ARCH NAME - tests/NAME with / for _, in Python.
python_suite() {
    local arch=$1 name=$2 results=$SEAT/results/$1/$2.json code=0 started=$SECONDS suite passed failed skipped seconds
    mkdir -p -- "${results%/*}"
    rm -f -- "$results"
    (cd -- "$VELLORA_ROOT" && timeout -k 5 "$TEST_SECONDS" \
        python3 tools/bed/screen_run.py "tests/${name//_//}" "$results") </dev/null || code=$?
    if [ ! -s "$results" ]; then
        suite_line "$arch" "$name" 0 1 0 $((SECONDS - started))
        printf '    the tests ended early with code %d\n' "$code"
        return 0
    fi
    # shellcheck disable=SC2034
    while read -r suite passed failed skipped seconds; do
        suite_line "$arch" "$name" "$passed" "$failed" "$skipped" "$seconds"
    done < <(python3 "$VELLORA_ROOT/tools/bed/screen_run.py" --lines "$results")
}
