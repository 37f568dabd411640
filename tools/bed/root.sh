# Private roots: each a minimal system with one Wine, made once in the cache
# folder. Nothing of the machine's own system is changed for them.
# shellcheck shell=bash

ROOT_FONTS=fonts-wine,fonts-liberation
ROOT_REVISION=1
ROOT_MEGABYTES=3000

# root_folder ARCH - where its root is (or will be).
root_folder() {
    printf '%s/%s-%s' "$CACHE" "$(root_name "$1")" \
        "$(fingerprint "$ROOT_REVISION" "$(root_packages "$1")" "$(bed_release)")"
}

# This generation has a root for 32-bit programs only.
root_name() { if next_generation; then printf 'next-root-%s' "$1"; else printf root; fi; }
root_packages() { if [ "$1" = x86 ]; then printf 'wine32,%s' $ROOT_FONTS; else printf 'wine64,%s' $ROOT_FONTS; fi; }
root_architecture() { if [ "$1" = x86 ]; then echo i386; else echo amd64; fi; }
root_bits() { if [ "$1" = x86 ]; then echo 32-bit; else echo 64-bit; fi; }

# with_bed_lock COMMAND... - one maker at a time; the second one waits.
with_bed_lock() {
    make_cache
    (
        exec 9>>"$CACHE/lock"
        flock -w 2 9 || {
            say 'Another run is making the test bed; waiting for it ...'
            flock 9
        }
        "$@"
    )
}

# Called under the lock: what killed makers left behind goes.
remove_unfinished() {
    local folder
    for folder in "$CACHE"/making-* "$CACHE"/seat/*/making-*; do
        [ ! -e "$folder" ] || remove_tree "$folder"
    done
}

# remove_others PATTERN KEPT - earlier recipes' results.
remove_others() {
    local folder
    for folder in "$CACHE"/$1; do
        [ ! -e "$folder" ] || [ "$folder" = "$2" ] || remove_tree "$folder"
    done
}

# need_root ARCH - for programs that run in one.
need_root() {
    local folder
    in_root "$1" || return 0
    folder=$(root_folder "$1")
    [ -d "$folder" ] || with_bed_lock make_root "$1" "$folder"
    [ "$1" = x86 ] || need_root x86
}

make_root() {
    local arch=$1 folder=$2 making log
    [ ! -d "$folder" ] || return 0
    remove_unfinished
    need_room "$CACHE" "$ROOT_MEGABYTES" "the $(root_bits "$arch") test bed"
    [ "$arch" != x86 ] || check_can_run_32bit
    check_namespaces
    making=$CACHE/making-root-$$
    # shellcheck disable=SC2064
    trap "remove_tree '$making' '$making.tar'" EXIT
    trap 'exit 130' INT TERM HUP
    say "Making the $(root_bits "$arch") test bed of $(bed_release) (about a minute, once) ..."
    log=$CACHE/$(root_name "$arch").log
    bootstrap_root "$arch" "$making" "$log" || root_failed "$arch" "$log"
    mv -T -- "$making" "$folder"
    remove_others "$(root_name "$arch")-*" "$folder"
}

# bootstrap_root ARCH FOLDER LOG
bootstrap_root() {
    local arch=$1 making=$2 log=$3 release line setting options=()
    release=$(bed_release)
    line=$(source_line "$release")
    [ -n "$line" ] || die "no package source of this machine carries 'main' of $(os_release VERSION_CODENAME); look into /etc/apt/sources.list.d."
    while IFS= read -r setting; do
        [ -z "$setting" ] || options+=("--aptopt=$setting")
    done < <(apt_settings)
    options+=("--architectures=$(root_architecture "$arch")" --variant=apt "--include=$(root_packages "$arch")"
        '--dpkgopt=path-exclude=/usr/share/doc/*' '--dpkgopt=path-exclude=/usr/share/locale/*'
        '--dpkgopt=path-exclude=/usr/share/man/*')
    if [ "$(id -u)" = 0 ]; then
        lower_priority mmdebstrap --mode=root "${options[@]}" \
            "$release" "$making" "$line" >"$log" 2>&1 </dev/null 9>&-
    else
        lower_priority mmdebstrap --mode=unshare "${options[@]}" \
            "$release" "$making.tar" "$line" >"$log" 2>&1 </dev/null 9>&- &&
            mkdir -- "$making" &&
            tar -C "$making" --exclude='./dev/*' -xf "$making.tar" >>"$log" 2>&1 &&
            rm -f -- "$making.tar"
    fi
}

check_can_run_32bit() {
    arch-test i386 >/dev/null 2>&1 || die \
        "the kernel of this machine runs no 32-bit programs (arch-test i386 says so); use a kernel with CONFIG_IA32_EMULATION."
}

check_namespaces() {
    local hint='sudo sysctl -w kernel.unprivileged_userns_clone=1 user.max_user_namespaces=15000'
    [ -e /.dockerenv ] && hint='docker run --privileged ... (or --security-opt seccomp=unconfined --cap-add SYS_ADMIN)'
    bwrap --ro-bind / / --dev-bind /dev /dev true >/dev/null 2>&1 || die \
        "bubblewrap may not make a namespace here, and the test bed needs one; allow it: $hint"
    [ "$(id -u)" = 0 ] || grep -q "^\($(id -un)\|$(id -u)\):" /etc/subuid 2>/dev/null || die \
        "this user has no range in /etc/subuid, which making the test bed needs; add one: sudo usermod --add-subuids 100000-165535 --add-subgids 100000-165535 $(id -un)"
}

root_failed() {
    local bits log=$2
    bits=$(root_bits "$1")
    if network_failed "$log"; then
        die "the packages of the $bits root could not be fetched; check the network and the proxy with: apt-get update (whole output: $log)"
    fi
    if grep -qi 'no space left' "$log"; then
        die "the disk became full while making the $bits root in $CACHE; make room and start again."
    fi
    grep -E '^(E|W):' "$log" | tail -n 6 >&2 || true
    die "the $bits root could not be made; the whole output is in $log"
}
