# What is given away: the stripped library in dist/ARCH, beside it its symbols, its
# type library and the manifest for using it without registration.
# shellcheck shell=bash

LIBRARY=VelloraCTL.ocx
MANIFEST=VelloraCTL.manifest
TYPE_LIBRARY=VelloraCTL.tlb
LIBRARY_BYTES=$((600 * 1024))

# What every Windows has; anything else would have to be delivered with it.
SYSTEM_LIBRARIES='kernel32 user32 gdi32 ole32 oleaut32 advapi32 comctl32 msvcrt uxtheme shell32 shlwapi
    version comdlg32 msimg32 imm32 olepro32 oleacc uiautomationcore'

fill_dist() {
    local arch=$1 built=$VELLORA_ROOT/build/$1/$LIBRARY folder=$VELLORA_ROOT/dist/$1
    [ -f "$built" ] || { say "build/$arch/$LIBRARY was not made."; return 1; }
    mkdir -p -- "$folder"
    fill_file "${built%/*}/$MANIFEST" "$folder/$MANIFEST"
    fill_file "${built%/*}/idl/$TYPE_LIBRARY" "$folder/$TYPE_LIBRARY"
    if [ "$folder/$LIBRARY" -nt "$built" ] && [ -f "$folder/$LIBRARY.debug" ]; then return 0; fi
    local making=$folder/.making
    remove_tree "$making"
    mkdir -p -- "$making"
    if ! split_symbols "$(triplet "$arch")" "$built" "$making" ||
        ! check_imports "$(triplet "$arch")" "$making/$LIBRARY" ||
        ! check_size "$making/$LIBRARY"; then
        remove_tree "$making"
        return 1
    fi
    mv -f -- "$making/$LIBRARY.debug" "$making/$LIBRARY" "$folder/"
    remove_tree "$making"
}

fill_file() {
    cmp -s -- "$1" "$2" || { cp -- "$1" "$2.making" && mv -f -- "$2.making" "$2"; }
}

triplet() { if [ "$1" = x86 ]; then echo i686-w64-mingw32; else echo x86_64-w64-mingw32; fi; }

split_symbols() (
    tools=$1 built=$2
    cd -- "$3" || exit 1
    # The tools would write the time of day into the library's header.
    export SOURCE_DATE_EPOCH=0
    "$tools-objcopy" --only-keep-debug "$built" "$LIBRARY.debug" &&
        "$tools-strip" --strip-all -o "$LIBRARY" "$built" &&
        "$tools-objcopy" --add-gnu-debuglink="$LIBRARY.debug" "$LIBRARY"
)

check_imports() {
    local name foreign=()
    while IFS= read -r name; do
        name=${name,,}
        [[ " ${SYSTEM_LIBRARIES//[$'\n']/ } " == *" ${name%.dll} "* ]] || foreign+=("$name")
    done < <("$1-objdump" -p "$2" | sed -n 's/^[[:space:]]*DLL Name: *//p')
    [ ${#foreign[@]} -eq 0 ] || {
        say "$LIBRARY imports from libraries that Windows does not have: ${foreign[*]}"
        return 1
    }
}

check_size() {
    local bytes
    bytes=$(stat -c %s -- "$1")
    [ "$bytes" -le "$LIBRARY_BYTES" ] || {
        say "$LIBRARY has $bytes bytes; at most $LIBRARY_BYTES are allowed."
        return 1
    }
}
