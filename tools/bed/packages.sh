# The packages of the distribution that the commands need.
# shellcheck shell=bash disable=SC2034

PACKAGES_MINGW='g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix mingw-w64-tools
    libwine-dev wine64 cmake ninja-build googletest g++ python3'
PACKAGES_NATIVE='cmake ninja-build googletest g++ python3'
PACKAGES_ROOT='mmdebstrap arch-test bubblewrap ca-certificates'
PACKAGES_BED64='wine64 fonts-wine fonts-liberation'
PACKAGES_NEXT='distro-info-data'
PACKAGES_SCREEN='xvfb xdotool openbox imagemagick fonts-liberation x11-utils xauth python3'
PACKAGES_DATA='tzdata unicode-data'

# need_packages NAME... - installs what is missing, with one question to dpkg.
need_packages() {
    local name missing=() installed
    # Ordinary users build the 32-bit root in a user namespace.
    [ "$(id -u)" = 0 ] || [[ " $* " != *' mmdebstrap '* ]] || set -- "$@" uidmap
    # shellcheck disable=SC2016
    installed=" $(dpkg-query -W -f '${db:Status-Status}=${Package} ' "$@" 2>/dev/null || true)"
    for name in "$@"; do
        [[ $installed == *" installed=$name "* ]] && continue
        [[ " ${missing[*]:-} " == *" $name "* ]] || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] || install_packages "${missing[@]}"
}

as_admin() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo -n -- "$@"; fi
}

install_packages() {
    local log
    can_install || die "these packages are missing and installing them takes administrator rights; run: sudo apt-get install $*"
    say "Installing packages (once): $*"
    log=$(mktemp "${TMPDIR:-/tmp}/vellora-apt.XXXXXX")
    apt_install "$log" "$@" ||
        # Lists that are absent or out of date are the usual reason.
        { apt_update "$log" && apt_install "$log" "$@"; } ||
        install_failed "$log" "$@"
    rm -f -- "$log"
}

install_failed() {
    local log=$1
    shift
    if network_failed "$log"; then
        die "the packages could not be fetched; check the network and the proxy with: apt-get update (whole output: $log)"
    fi
    grep -E '^(E|W):' "$log" | sort -u | tail -n 6 >&2 || true
    die "the packages could not be installed; look into the package sources, then run: apt-get update && apt-get install $* (whole output: $log)"
}

# network_failed LOG - whether apt could not reach its mirror.
network_failed() {
    grep -qiE 'could not resolve|temporary failure|failed to fetch|could not connect|unable to connect|timed out|network is unreachable' "$1"
}

can_install() {
    have apt-get || die "this machine has no apt-get; VelloraCTL is developed on Debian 12 or later."
    [ "$(id -u)" = 0 ] || { have sudo && sudo -n true 2>/dev/null; } ||
        { have sudo && [ -t 0 ] && sudo -v; }
}

apt_update() {
    as_admin env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=600 \
        -o Acquire::Retries=3 update >>"$1" 2>&1 </dev/null
}

apt_install() {
    local log=$1
    shift
    # Without any list apt would only say that it knows no such package.
    [ -n "$(find /var/lib/apt/lists -maxdepth 1 -name '*_Packages*' -print -quit 2>/dev/null)" ] ||
        apt_update "$log" || return 1
    as_admin env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=600 \
        -o Acquire::Retries=3 -o Dpkg::Options::=--force-confold \
        install --no-install-recommends "$@" >>"$log" 2>&1 </dev/null
}
