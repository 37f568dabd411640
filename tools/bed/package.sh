# The archive that is downloaded, dist/VelloraCTL-VERSION.zip: both libraries with all that goes with them.
# shellcheck shell=bash

# The demonstration wants data that Windows does not have.
SAMPLES_LEFT_OUT=demo

cmd_package() {
    [ $# -eq 0 ] || die "package takes no arguments."
    local archive arch
    cmd_build x86 x64
    archive=$VELLORA_ROOT/dist/VelloraCTL-$(library_version).zip
    make_package "$archive" x86 x64 || die 'the archive could not be made.'
    say "$archive: $(stat -c %s -- "$archive") bytes, SHA-256 $(sha256sum -- "$archive" | cut -c 1-64)"
}

library_version() { sed -n 's/^project(VelloraCTL VERSION \([0-9.]*\).*/\1/p' "$VELLORA_ROOT/CMakeLists.txt"; }

# make_package ARCHIVE [--quick] ARCH... - of libraries that are built.
make_package() {
    local arch
    for arch in "$@"; do
        case $arch in x86|x64) strip_samples "$arch" || return 1 ;; esac
    done
    python3 "$VELLORA_ROOT/tools/package.py" "$@"
}

# strip_samples ARCH - the sample programs without symbols, and the scripts that lie beside them.
strip_samples() {
    local arch=$1 program folder=$VELLORA_ROOT/build/$1/package
    remove_tree "$folder"
    mkdir -p -- "$folder"
    for program in "$VELLORA_ROOT/build/$arch"/samples/*/*.exe; do
        case $program in */$SAMPLES_LEFT_OUT.exe) continue ;; esac
        SOURCE_DATE_EPOCH=0 "$(triplet "$arch")-strip" --strip-all -o "$folder/${program##*/}" "$program" || return 1
    done
    cp -- "$VELLORA_ROOT/build/$arch"/samples/*/*.vbs "$folder/"
}
