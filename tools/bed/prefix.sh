# Wine prefixes: a template for each architecture is made once; the prefixes
# programs really run in are copies of it, one for each resolution.
# shellcheck shell=bash

PREFIX_REVISION=2
PREFIX_MEGABYTES=1000

# prefix_recipe ARCH - changes whenever the template has to be made anew.
prefix_recipe() {
    if in_root "$1"; then
        fingerprint "$PREFIX_REVISION" "$(roots_of "$1")"
    else
        fingerprint "$PREFIX_REVISION" "$(stat -c %Y /usr/lib/wine/wine64 2>/dev/null || true)"
    fi
}

template_folder() { printf '%s/%s-%s' "$CACHE" "$(template_name "$1")" "$(prefix_recipe "$1")"; }
template_name() { of_generation "template-$1"; }

need_template() {
    local folder
    folder=$(template_folder "$1")
    [ -d "$folder" ] || with_bed_lock make_template "$1" "$folder"
}

make_template() {
    local arch=$1 folder=$2 making log
    [ ! -d "$folder" ] || return 0
    remove_unfinished
    need_room "$CACHE" "$PREFIX_MEGABYTES" 'a Wine prefix'
    log=$CACHE/$(template_name "$arch").log
    making=$CACHE/making-template-$$
    # shellcheck disable=SC2064
    trap "stop_server '$arch' '$making'; remove_tree '$making'" EXIT
    trap 'exit 130' INT TERM HUP
    say "Making the Wine prefix for $arch (about 20 s, once) ..."
    quietly "$log" "Making the Wine prefix" fill_template "$arch" "$making" ||
        die "the Wine prefix could not be made; the whole output is in $log"
    stop_server "$arch" "$making"
    mv -T -- "$making" "$folder"
    remove_others "$(template_name "$arch")-*" "$folder"
}

# In a subshell: Wine's background processes must not hold the lock.
fill_template() (
    arch=$1 prefix=$2
    exec 9>&-
    unset DISPLAY
    mkdir -- "$prefix" &&
        in_prefix "$arch" "$prefix" wineboot -i &&
        cp -- "$(root_of "$arch")"/usr/share/wine/fonts/* "$prefix/drive_c/windows/Fonts/" &&
        printf 'detach\nquit\n' >"$prefix/drive_c/windows/crash.txt" &&
        template_settings >"$prefix/drive_c/settings.reg" &&
        in_prefix "$arch" "$prefix" regedit /S 'C:\settings.reg' &&
        rm -- "$prefix/drive_c/settings.reg" &&
        wait_server "$arch" "$prefix" &&
        grep -q '"LogPixels"=dword:00000060' "$prefix/user.reg"
)

# A crash shows where it was and ends the program with the exception's code:
# nothing is asked, and the debugger lets go (ending the program itself, as it
# does by default, it sometimes makes the exit code 0). 96 dots per inch.
template_settings() {
    printf '%s\r\n' REGEDIT4 '' \
        '[HKEY_CURRENT_USER\Software\Wine\WineDbg]' '"ShowCrashDialog"=dword:00000000' '' \
        '[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\AeDebug]' \
        '"Debugger"="winedbg --file C:\\windows\\crash.txt %ld %ld"' '"Auto"="1"' '' \
        '[HKEY_CURRENT_USER\Control Panel\Desktop]' '"LogPixels"=dword:00000060' ''
}

# need_prefix ARCH DPI PREFIX - makes PREFIX from the template unless it is there.
need_prefix() {
    local arch=$1 dpi=$2 prefix=$3
    [ "$(cat -- "$prefix/.recipe" 2>/dev/null)" = "$(prefix_recipe "$arch")" ] && return 0
    need_root "$arch"
    need_template "$arch"
    with_bed_lock derive_prefix "$arch" "$dpi" "$prefix"
}

derive_prefix() {
    local arch=$1 dpi=$2 prefix=$3 making
    [ "$(cat -- "$prefix/.recipe" 2>/dev/null)" != "$(prefix_recipe "$arch")" ] || return 0
    if [ -d "$prefix" ]; then
        stop_server "$arch" "$prefix"
        remove_tree "$prefix"
    fi
    mkdir -p -- "${prefix%/*}"
    making=${prefix%/*}/making-${prefix##*/}
    remove_tree "$making"
    copy_prefix "$(template_folder "$arch")" "$making"
    remove_tree "$making/wineserver" "$making/servers"
    set_resolution "$making" "$dpi"
    prefix_recipe "$arch" >"$making/.recipe"
    mv -T -- "$making" "$prefix"
}

# Wine's own program files are never written to, so they are shared by hard
# links where the file system cannot copy lazily; everything else is copied.
copy_prefix() {
    local from=$1 to=$2
    cp -a --reflink=always -- "$from" "$to" 2>/dev/null && return 0
    remove_tree "$to"
    (cd -- "$from" && find . \( -name '*.dll' -o -name '*.exe' -o -name '*.drv' -o -name '*.sys' \
        -o -name '*.ocx' -o -name '*.cpl' -o -name '*.tlb' -o -name '*.ttf' -o -name '*.fon' \) \
        -size +15k -type f -print) >"$to.shared"
    mkdir -- "$to"
    tar -C "$from" -X "$to.shared" -cf - . | tar -C "$to" -xf -
    (cd -- "$from" && xargs -a "$to.shared" -d '\n' cp -a --link --parents -t "$to" --)
    rm -f -- "$to.shared"
}

set_resolution() {
    local prefix=$1 hexadecimal
    hexadecimal=$(printf '%08x' "$2")
    sed -i "s/\"LogPixels\"=dword:[0-9a-f]*/\"LogPixels\"=dword:$hexadecimal/" \
        "$prefix/user.reg" "$prefix/system.reg"
}
