# The samples, as tests: each one plays through its subject by itself.
# shellcheck shell=bash

ring_samples() {
    local arch=$1 program script
    # The demonstration has tests of its own.
    for program in "$VELLORA_ROOT/build/$arch"/samples/*/*.exe; do
        case $program in */demo.exe) continue ;; esac
        if sample_wanted "$program"; then
            line_suite "$arch" "$(sample_name "$program")" "$program" --check
        fi
    done
    for script in "$VELLORA_ROOT"/samples/script/countries.{vbs,js}; do
        if sample_wanted "$script"; then printing_suite "$arch" "$script"; fi
    done
}

# sample_wanted FILE - whether it is there and the filter leaves it.
sample_wanted() { [ -f "$1" ] && [[ $(sample_name "$1") == *${TEST_FILTER//\*/}* ]]; }

# sample_name FILE - samples/dialog, samples/countries.js
sample_name() {
    local file=${1##*/}
    printf 'samples/%s' "${file%.exe}"
}

# printing_suite ARCH SCRIPT - one test: the script prints what the text file
# beside it says.
printing_suite() {
    local arch=$1 script=$2 name started=$SECONDS log difference
    name=$(sample_name "$script")
    log=$SEAT/results/$arch/$name.log
    mkdir -p -- "${log%/*}"
    # shellcheck disable=SC2046
    timeout -k 5 "$TEST_SECONDS" "$VELLORA_ROOT/vellora" wine $(wide "$arch") cscript.exe //nologo \
        "$(windows_path "$script")" >"$log" 2>&1 </dev/null || true
    if difference=$(diff -- "${script%.*}.txt" <(tr -d '\r' <"$log")); then
        suite_line "$arch" "$name" 1 0 0 $((SECONDS - started))
    else
        suite_line "$arch" "$name" 0 1 0 $((SECONDS - started))
        printf '%s\n' "$difference" | sed 's/^/    | /'
    fi
}
