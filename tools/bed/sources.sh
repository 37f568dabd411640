# Where this machine gets its packages from: the private roots use the same.
# shellcheck shell=bash

# source_line SUITE - prints "deb [options] MIRROR SUITE main", taken from the
# first enabled source of the machine that carries its own release.
source_line() {
    { sources_deb822; sources_classic; } | awk -F '\t' -v own="$(os_release VERSION_CODENAME)" -v suite="$1" '
        {
            split($3, suites, " "); split($4, parts, " "); split($2, mirrors, " ")
            found = 0; carried = 0
            for (i in suites) if (suites[i] == own) found = 1
            for (i in parts) if (parts[i] == "main") carried = 1
            if (!found || !carried || mirrors[1] ~ /^cdrom:/) next
            options = $5 == "" ? "" : "[signed-by=" $5 "] "
            print "deb " options mirrors[1] " " suite " main"
            exit
        }'
}

# Both readers print: type TAB mirrors TAB suites TAB components TAB keyring.

sources_deb822() {
    local file
    for file in /etc/apt/sources.list.d/*.sources; do
        [ -r "$file" ] || continue
        awk '
            function flush() {
                if (enabled != "no" && f["types"] ~ /(^| )deb( |$)/)
                    printf "deb\t%s\t%s\t%s\t%s\n", f["uris"], f["suites"], f["components"], keyring()
                delete f; enabled = "yes"; key = ""
            }
            # A keyring written into the source itself cannot be passed on.
            function keyring() { return f["signed-by"] ~ /^\/[^ ]+$/ ? f["signed-by"] : "" }
            BEGIN { enabled = "yes" }
            /^#/ { next }
            /^[ \t]*$/ { flush(); next }
            /^[ \t]/ { sub(/^[ \t]+/, " "); f[key] = f[key] $0; next }
            {
                at = index($0, ":"); key = tolower(substr($0, 1, at - 1))
                value = substr($0, at + 1); gsub(/^[ \t]+|[ \t\r]+$/, "", value)
                f[key] = value
                if (key == "enabled") enabled = tolower(value)
            }
            END { flush() }' "$file"
    done
}

sources_classic() {
    local file
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ -r "$file" ] || continue
        awk '
            $1 != "deb" { next }
            {
                sub(/#.*/, ""); keyring = ""
                if (match($0, /\[[^]]*\]/)) {
                    options = substr($0, RSTART + 1, RLENGTH - 2)
                    $0 = substr($0, 1, RSTART - 1) substr($0, RSTART + RLENGTH)
                    n = split(options, option, " ")
                    for (i = 1; i <= n; i++)
                        if (option[i] ~ /^signed-by=\//) keyring = substr(option[i], 11)
                }
                parts = ""
                for (i = 4; i <= NF; i++) parts = parts (i > 4 ? " " : "") $i
                printf "deb\t%s\t%s\t%s\t%s\n", $2, $3, parts, keyring
            }' "$file"
    done
}

# apt_settings - the machine's own ways to reach its mirror (proxy, TLS, dates),
# one a line as apt.conf has them.
apt_settings() {
    apt-config dump 2>/dev/null |
        grep -E '^Acquire::((http|https|ftp)(::[^ ]*)?|Check-Valid-Until|Check-Date|Retries|ForceIPv[46]) "[^"]+";$' || true
}
