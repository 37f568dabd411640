# Compiling: x86 and x64 for Windows, native for the portable code alone.
# shellcheck shell=bash

cmd_build() {
    local target
    [ $# -gt 0 ] || set -- x86 x64
    for target in "$@"; do
        case $target in x86|x64|native) ;; *) die "build knows x86, x64 and native, not '$target'." ;; esac
    done
    # shellcheck disable=SC2046
    need_packages $(build_packages "$@")
    for target in "$@"; do build "$target"; done
}

build_packages() {
    local target
    for target in "$@"; do
        # shellcheck disable=SC2086
        if [ "$target" = native ]; then echo $PACKAGES_NATIVE; else echo $PACKAGES_MINGW; fi
    done
}

# build TARGET - configures when needed, compiles, and fills dist.
build() {
    local target=$1 folder=$VELLORA_ROOT/build/$1
    [ -f "$VELLORA_ROOT/CMakeLists.txt" ] || die "there is no CMakeLists.txt in $VELLORA_ROOT."
    mkdir -p -- "$folder"
    (
        exec 7>>"$VELLORA_ROOT/build/.lock-$target"
        flock -n 7 || {
            say "Another run is building $target; waiting for it ..."
            flock 7
        }
        configure "$target" "$folder"
        compact || say "Building $target ..."
        compile "$target" "$folder"
        [ "$target" = native ] || fill_dist "$target"
    )
}

configure() {
    local target=$1 folder=$2 options
    # A folder that was moved or copied knows the wrong paths.
    if [ -f "$folder/CMakeCache.txt" ] &&
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$VELLORA_ROOT" "$folder/CMakeCache.txt"; then
        remove_tree "$folder"
        mkdir -p -- "$folder"
    fi
    [ ! -f "$folder/build.ninja" ] || return 0
    if [ "$target" = native ]; then
        options=(-DCMAKE_BUILD_TYPE=Debug '-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g' -DVELLORA_SANITIZE=ON)
    else
        options=("-DCMAKE_TOOLCHAIN_FILE=$VELLORA_ROOT/cmake/mingw-$target.cmake"
            -DCMAKE_BUILD_TYPE=Release '-DCMAKE_CXX_FLAGS_RELEASE=-O2 -g -DNDEBUG')
    fi
    compact || say "Configuring $target ..."
    quietly "$folder/configure.log" "Configuring $target" \
        cmake -S "$VELLORA_ROOT" -B "$folder" -G Ninja "${options[@]}" || {
        rm -f -- "$folder/build.ninja"
        exit 1
    }
}

compile() {
    # Without work --quiet still says that there is none.
    lower_priority ninja -C "$2" --quiet </dev/null 7>&- 8>&- |
        { grep -vxF 'ninja: no work to do.' || true; } >&2 || {
        say "Building $1 failed."
        exit 1
    }
}
