# Running a Windows program: in a private root, or with the machine's own Wine.
# shellcheck shell=bash

# What a program started by hand runs in; a test run has a seat of its own. A
# server that runs already sees the folders its first program was shown, so
# checkouts that share a cache do not share a seat.
SEAT=${VELLORA_SEAT:-$CACHE/seat/own-$(fingerprint "$VELLORA_ROOT" "$USER_TMPDIR" "${HOME:-}")}

cmd_wine() {
    local arch=x86
    while [ $# -gt 1 ]; do
        case $1 in
            --64) arch=x64; shift ;;
            --generation) choose_generation "$2"; shift 2 ;;
            *) break ;;
        esac
    done
    case ${1:---} in --*) die 'wine needs a program: ./vellora wine [--64] [--generation next] PROGRAM [ARGUMENTS]' ;; esac
    # A seat that is in use is complete: nothing to look after.
    if [ -z "${VELLORA_SEAT:-}" ]; then
        need_bed "$arch"
        mark_own_seat
    fi
    # Wine would say nothing at all about a program that is not there.
    case $1 in ?:*) ;; */*) [ -e "$1" ] || { say "vellora: there is no program $1"; exit 127; } ;; esac
    need_server "$arch"
    bed_exec "$arch" "$@"
}

# The seat of a checkout that is gone can go too.
mark_own_seat() {
    [ ! -e "$SEAT/.checkout" ] || return 0
    mkdir -p -- "$SEAT"
    printf '%s' "$VELLORA_ROOT" >"$SEAT/.checkout"
}

# need_bed ARCH... - everything that running programs takes.
need_bed() {
    local arch
    # shellcheck disable=SC2046
    need_packages $(bed_packages "$@")
    for arch in "$@"; do
        need_root "$arch"
        need_template "$arch"
    done
}

bed_packages() {
    local arch
    ! next_generation || echo "$PACKAGES_NEXT"
    for arch in "$@"; do
        if in_root "$arch"; then echo "$PACKAGES_ROOT"; else echo "$PACKAGES_BED64"; fi
    done
}

check_resolution() {
    case ${VELLORA_DPI:=96} in
        96|120|144) ;;
        *) die "VELLORA_DPI is '$VELLORA_DPI'; it may be 96, 120 or 144." ;;
    esac
    export VELLORA_DPI
}

# prefix_of ARCH - in the current seat; generation_of PREFIX reads it back.
prefix_of() {
    printf '%s/%s-%s' "$SEAT" "$1" "$VELLORA_DPI"
    ! next_generation || printf -- -next
}
generation_of() { case $1 in *-next) echo next ;; *) echo this ;; esac; }

# bed_run ARCH PROGRAM [ARGUMENTS] - runs it in the current seat.
bed_run() { (bed_exec "$@"); }

bed_exec() {
    local arch=$1 prefix
    prefix=$(prefix_of "$arch")
    shift
    prefix_exec "$arch" "$prefix" "$@"
}

# in_prefix ARCH PREFIX PROGRAM [ARGUMENTS]
in_prefix() { (prefix_exec "$@"); }

prefix_exec() {
    local arch=$1
    wine_environment "$arch" "$2"
    shift 2
    if in_root "$arch"; then
        root_arguments "$arch"
        exec bwrap "${ROOT_ARGUMENTS[@]}" "$(wine_loader "$arch")" "$@"
    fi
    exec "$(wine_loader "$arch")" "$@"
}

wine_environment() {
    export WINEPREFIX=$2 WINEDEBUG=${WINEDEBUG:--all} LC_ALL=C.UTF-8
    server_folder "$2"
    # No questions about Mono and Gecko.
    export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
    unset LD_PRELOAD LD_LIBRARY_PATH WINELOADER WINESERVER WINEDLLPATH LANG LANGUAGE
    if [ "$1" = x86 ]; then
        export WINEARCH=win32
    else
        export WINEARCH=win64
    fi
    # The same fonts as in the roots, whatever else is installed.
    in_root "$1" || export FONTCONFIG_FILE=$VELLORA_ROOT/tools/bed/fonts.conf
}

# server_folder PREFIX - where Wine puts the socket of its server: with the
# prefix, wherever the user's temporary folder is at the moment. The next
# release's Wine ends in "free(): invalid pointer" as soon as TMPDIR is set; it
# gets a folder of its own choice below /tmp, and writes its name down.
server_folder() {
    if next_generation; then
        unset TMPDIR
    else
        export TMPDIR=$1/servers
        [ -d "$TMPDIR" ] || mkdir -p -- "$TMPDIR"
    fi
}

remove_server_folder() {
    local name
    [ -f "$1/wineserver" ] || return 0
    name=$(<"$1/wineserver")
    case $name in wine-??????) remove_tree "/tmp/$name" ;; esac
}

# server_run ARCH PREFIX [OPTIONS] - talks to the prefix's wineserver.
server_run() (
    local arch=$1
    wine_environment "$arch" "$2"
    shift 2
    if in_root "$arch"; then
        root_arguments "$arch"
        exec bwrap "${ROOT_ARGUMENTS[@]}" "$(wine_server "$arch")" "$@"
    fi
    exec "$(wine_server "$arch")" "$@"
)

wine_loader() { wine_file "$1" wine wine64; }
wine_server() { wine_file "$1" wineserver32 wineserver64; }

# wine_file ARCH NAME32 NAME64 - later Wines have a single one for both.
wine_file() {
    local name=$2
    [ "$1" = x86 ] || name=$3
    if [ -x "$(root_of "$1")/usr/lib/wine/$name" ]; then
        printf '/usr/lib/wine/%s' "$name"
    else
        printf '/usr/lib/wine/%s' "${name%%[0-9]*}"
    fi
}

stop_server() {
    [ -d "$2" ] || return 0
    server_run "$1" "$2" -k >/dev/null 2>&1 || true
    ! next_generation || remove_server_folder "$2"
}
wait_server() { server_run "$1" "$2" -w; }

# need_server ARCH - Wine's background processes keep the output of whoever
# started them open. So they are started apart, before the first program.
need_server() {
    local arch=$1 prefix
    prefix=$(prefix_of "$arch")
    need_prefix "$arch" "$VELLORA_DPI" "$prefix"
    server_run "$arch" "$prefix" -k0 >/dev/null 2>&1 && return 0
    start_server "$arch" "$prefix"
}

start_server() {
    local arch=$1 prefix=$2
    exec 6>>"$prefix/.starting"
    flock 6
    if ! server_run "$arch" "$prefix" -k0 >/dev/null 2>&1; then
        # A run ends the servers of its seat; others end by themselves.
        server_run "$arch" "$prefix" -p600 >/dev/null 2>&1 </dev/null 6>&- 7>&- 8>&-
        in_prefix "$arch" "$prefix" cmd /c exit >/dev/null 2>&1 </dev/null 6>&- 7>&- 8>&-
        [ -z "${VELLORA_REGISTER:-}" ] || register_library "$arch" 6>&- 7>&- 8>&-
    fi
    exec 6>&-
}

# root_arguments ARCH - sets ROOT_ARGUMENTS: how bubblewrap shows the machine.
root_arguments() {
    local root folder seen=() sorted
    root=$(root_folder "$1")
    ROOT_ARGUMENTS=(--die-with-parent --bind "$root" / --dev-bind /dev /dev --proc /proc)
    seen=(/tmp "$VELLORA_ROOT" "$CACHE" "$USER_TMPDIR" "${HOME:-/tmp}")
    ! may_be_shown "$PWD" || seen+=("$PWD")
    # Outer folders first: a later one may lie inside an earlier one.
    mapfile -t sorted < <(printf '%s\n' "${seen[@]}" | sort -u)
    for folder in "${sorted[@]}"; do
        case $folder in /|'') continue ;; esac
        [ ! -d "$folder" ] || ROOT_ARGUMENTS+=(--bind "$folder" "$folder")
    done
    for folder in /usr/share/zoneinfo /usr/share/unicode; do
        [ ! -d "$folder" ] || ROOT_ARGUMENTS+=(--ro-bind "$folder" "$folder")
    done
    [ "$1" = x86 ] || ROOT_ARGUMENTS+=(--ro-bind "$(root_folder x86)/usr/lib/i386-linux-gnu/wine/i386-windows"
        /usr/lib/x86_64-linux-gnu/wine/i386-windows)
    if [ -n "${XAUTHORITY:-}" ] && [ -f "$XAUTHORITY" ]; then
        ROOT_ARGUMENTS+=(--ro-bind "$XAUTHORITY" "$XAUTHORITY")
    fi
    folder=$PWD
    may_be_shown "$PWD" || [ -d "$root$PWD" ] || folder=/
    ROOT_ARGUMENTS+=(--chdir "$folder")
}

# may_be_shown FOLDER - the root's own system folders stay as they are.
may_be_shown() {
    case $1/ in
        //|/bin/*|/boot/*|/dev/*|/etc/*|/lib*/*|/proc/*|/run/*|/sbin/*|/sys/*|/usr/*|/var/*) return 1 ;;
    esac
}
