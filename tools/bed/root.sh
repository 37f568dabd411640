# The private 32-bit root: a minimal system with the 32-bit Wine, made once in
# the cache folder. Nothing of the machine's own system is changed for it.
# shellcheck shell=bash

ROOT_PACKAGES=wine32,fonts-wine,fonts-liberation
ROOT_REVISION=1
ROOT_MEGABYTES=3000

# root_folder - where the root is (or will be).
root_folder() {
    printf '%s/root-%s' "$CACHE" \
        "$(fingerprint "$ROOT_REVISION" "$ROOT_PACKAGES" "$(os_release VERSION_CODENAME)")"
}

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

need_root() {
    local folder
    folder=$(root_folder)
    [ -d "$folder" ] || with_bed_lock make_root "$folder"
}

make_root() {
    local folder=$1 making
    [ ! -d "$folder" ] || return 0
    remove_unfinished
    need_room "$CACHE" "$ROOT_MEGABYTES" 'the 32-bit test bed'
    check_can_run_32bit
    check_namespaces
    making=$CACHE/making-root-$$
    # shellcheck disable=SC2064
    trap "remove_tree '$making' '$making.tar'" EXIT
    trap 'exit 130' INT TERM HUP
    say 'Making the 32-bit test bed (about 40 s, once) ...'
    bootstrap_root "$making" || root_failed "$CACHE/root.log"
    mv -T -- "$making" "$folder"
    remove_others 'root-*' "$folder"
}

bootstrap_root() {
    local making=$1 line setting options=()
    line=$(source_line)
    [ -n "$line" ] || die "no package source of this machine carries 'main' of $(os_release VERSION_CODENAME); look into /etc/apt/sources.list.d."
    while IFS= read -r setting; do
        [ -z "$setting" ] || options+=("--aptopt=$setting")
    done < <(apt_settings)
    options+=(--architectures=i386 --variant=apt "--include=$ROOT_PACKAGES"
        '--dpkgopt=path-exclude=/usr/share/doc/*' '--dpkgopt=path-exclude=/usr/share/locale/*'
        '--dpkgopt=path-exclude=/usr/share/man/*')
    if [ "$(id -u)" = 0 ]; then
        lower_priority mmdebstrap --mode=root "${options[@]}" \
            "$(os_release VERSION_CODENAME)" "$making" "$line" >"$CACHE/root.log" 2>&1 </dev/null 9>&-
    else
        lower_priority mmdebstrap --mode=unshare "${options[@]}" \
            "$(os_release VERSION_CODENAME)" "$making.tar" "$line" >"$CACHE/root.log" 2>&1 </dev/null 9>&- &&
            mkdir -- "$making" &&
            tar -C "$making" --exclude='./dev/*' -xf "$making.tar" >>"$CACHE/root.log" 2>&1 &&
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
        "bubblewrap may not make a namespace here, and the 32-bit test bed needs one; allow it: $hint"
    [ "$(id -u)" = 0 ] || grep -q "^\($(id -un)\|$(id -u)\):" /etc/subuid 2>/dev/null || die \
        "this user has no range in /etc/subuid, which making the 32-bit root needs; add one: sudo usermod --add-subuids 100000-165535 --add-subgids 100000-165535 $(id -un)"
}

root_failed() {
    if network_failed "$1"; then
        die "the packages of the 32-bit root could not be fetched; check the network and the proxy with: apt-get update (whole output: $1)"
    fi
    if grep -qi 'no space left' "$1"; then
        die "the disk became full while making the 32-bit root in $CACHE; make room and start again."
    fi
    grep -E '^(E|W):' "$1" | tail -n 6 >&2 || true
    die "the 32-bit root could not be made; the whole output is in $1"
}
