# Two generations of Wine: that of this machine's release of the distribution,
# and, as a second opinion, that of the release after it.
# shellcheck shell=bash

GENERATION=${VELLORA_GENERATION:-this}

# choose_generation NAME - also for the commands that this one starts.
choose_generation() {
    case $1 in
        this|next) ;;
        *) die "--generation is this or next, not '$1'." ;;
    esac
    GENERATION=$1
    export VELLORA_GENERATION=$1
}

next_generation() { [ "$GENERATION" = next ]; }

# of_generation NAME - what this and the next generation both have is kept apart.
of_generation() {
    ! next_generation || printf 'next-'
    printf '%s' "$1"
}

# bed_release - the release whose Wine programs run in.
bed_release() {
    local own
    own=$(os_release VERSION_CODENAME)
    [ -n "$own" ] || die "/etc/os-release names no release (VERSION_CODENAME)."
    if next_generation; then release_after "$own"; else printf '%s' "$own"; fi
}

# release_after NAME - as the distribution's own table of its releases has it.
release_after() {
    local table name
    table=/usr/share/distro-info/$(os_release ID).csv
    [ -r "$table" ] || die "there is no table of releases $table; install it: sudo apt-get install distro-info-data"
    name=$(awk -F , -v own="$1" 'found { if ($1 != "") print $3; exit } $3 == own { found = 1 }' "$table")
    [ -n "$name" ] || die "$table names no release after $1; update the package distro-info-data, or use --generation this."
    printf '%s' "$name"
}

# in_root ARCH - whether its programs run in a private root, or with the
# machine's own Wine.
in_root() { [ "$1" = x86 ] || next_generation; }

# root_of ARCH - the root its Wine lies in; nothing for the machine's own.
root_of() { ! in_root "$1" || root_folder "$1"; }

# roots_of ARCH - every root its prefixes are made from, a line each: the next
# generation's 64-bit prefixes run 32-bit programs too, and take that half from
# the 32-bit root.
roots_of() {
    in_root "$1" || return 0
    root_folder "$1"
    echo
    [ "$1" = x86 ] || { root_folder x86; echo; }
}
