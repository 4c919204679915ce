# Sourced by the scripts that work in a fresh Debian system, which only root can make: the release of
# this system, from the sources of its apt.

# cwidget_release: its code name.
cwidget_release() {
    sed -n 's/^VERSION_CODENAME=//p' /etc/os-release
}

# cwidget_in_namespaces COMMAND...: with mounts and processes of its own, so that nothing stays mounted
# or running whatever happens.
cwidget_in_namespaces() {
    unshare --mount --pid --fork --kill-child "$@"
}

# cwidget_make_system FOLDER ARCHIVES [COMMAND...]: makes FOLDER such a system, unless it is one.
# ARCHIVES keeps the packages for the next time; COMMAND gets the new folder, and finishes what is in
# it. Where that cannot be, prints one line that says why, and fails.
cwidget_make_system() {
    local folder=$1 archives=$2 log=$1.log
    shift 2
    if [ "$(id -u)" -ne 0 ]; then
        echo "only root can make one: run this as root or with sudo"
        return 1
    fi
    mkdir -p "$archives/partial"
    if ! cwidget_in_namespaces true 2>"$log"; then
        echo "no mount namespace: $(tail -n 1 "$log")"
        return 1
    fi
    [ ! -d "$folder" ] || return 0

    # Whole, or not at all.
    rm -rf --one-file-system "$folder.new"
    if cwidget_bootstrap "$folder.new" "$archives" "$log" &&
        { [ $# -eq 0 ] || cwidget_logged "$log" "$@" "$folder.new"; }; then
        mv "$folder.new" "$folder"
    else
        rm -rf --one-file-system "$folder.new"
        return 1
    fi
}

# cwidget_bootstrap FOLDER ARCHIVES LOG: the smallest system.
cwidget_bootstrap() {
    local folder=$1 archives=$2 log=$3 release sources mirror reason
    if ! command -v debootstrap >/dev/null; then
        echo "debootstrap is missing: apt-get install debootstrap"
        return 1
    fi
    release=$(cwidget_release)
    sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Identifier: Packages' 'Origin: Debian' | sort -u)
    mirror=$(awk -v release="$release" '$3 == release { print $2; exit }' <<<"$sources")
    if [ -z "$mirror" ]; then
        echo "apt knows no mirror for $release"
        return 1
    fi
    if ! reason=$(cwidget_logged "$log" cwidget_in_namespaces debootstrap --variant=minbase \
        --cache-dir="$archives" "$release" "$folder" "$mirror"); then
        echo "debootstrap: $reason"
        return 1
    fi
    echo "$sources" >"$folder/etc/apt/sources.list"
    # As for this system's apt; and nothing needs to outlive a cut of the power.
    apt-config dump | grep -E '^Acquire::(Check-|http::Proxy|https::Proxy|Retries)' \
        >"$folder/etc/apt/apt.conf.d/90test" || true
    echo force-unsafe-io >"$folder/etc/dpkg/dpkg.cfg.d/test"
}

# cwidget_logged LOG COMMAND...: prints the last line of what the command says only when it fails.
cwidget_logged() {
    local log=$1
    shift
    "$@" >"$log" 2>&1 || { tail -n 1 "$log"; return 1; }
}
