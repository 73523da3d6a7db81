# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# To be sourced: bare systems in folders, for the tools that try the game on one. It needs
# root, on Debian. The mirror is the first one that this system's own apt uses.

tools/install-packages fresh-machine
[[ $EUID -eq 0 ]] || { echo "$0: only root can make a system in a folder" >&2 && exit 1; }
keep=false release=bookworm
for argument in "$@"; do
    case $argument in
        --keep) keep=true ;;
        bookworm | trixie) release=$argument ;;
        *) echo "usage: $0 [--keep] [bookworm|trixie]" >&2 && exit 2 ;;
    esac
done
machines=$(mktemp -d "${TMPDIR:-/var/tmp}/paircade-machine-XXXXXX")
chmod 755 "$machines"

finish_machines() {
    local status=$? proc
    # debootstrap leaves this behind when it is interrupted.
    for proc in "$machines"/*/proc; do
        if mountpoint -q "$proc"; then umount "$proc" || return; fi
    done
    # One on which something failed may tell why.
    if $keep || [[ $status -ne 0 && $status -ne 130 ]]; then
        echo "The system is in $machines"
    else
        rm -rf --one-file-system "$machines"
    fi
}
trap finish_machines EXIT
trap 'exit 130' INT TERM

# inside NAME COMMAND...: runs it on that machine: none of our environment but a proxy, its
# own processes, which all end with it, and mounts that nobody else sees.
inside() {
    local machine=$machines/$1 name settings=()
    shift
    for name in http_proxy https_proxy no_proxy; do
        [[ -z ${!name:-} ]] || settings+=("$name=${!name}")
    done
    unshare --mount --pid --fork --kill-child --mount-proc="$machine/proc" \
        chroot "$machine" env -i HOME=/root TERM=dumb LANG=C.UTF-8 \
        PATH=/usr/sbin:/usr/bin:/sbin:/bin "${settings[@]}" "$@" </dev/null
}

# step NAME LINES COMMAND...: the output goes into a file, of which LINES are shown.
step() {
    local name=$1 lines=$2 began=$SECONDS status=0
    shift 2
    set +e # and not "||", within which the step's own failures would not end it
    (set -e && "$@") >"$machines/step.log" 2>&1
    status=$?
    set -e
    [[ $status -eq 0 ]] || lines=60
    echo "== $name: status $status, $((SECONDS - began)) s"
    tail -n "$lines" "$machines/step.log"
    return "$status"
}

# new_machine NAME: a bare system of $release.
new_machine() {
    local machine=$machines/$1 mirror
    # shellcheck disable=SC2016 # the dollar is for apt
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | awk '/\/debian\/?$/ { print; exit }')
    [[ -n $mirror ]] || { echo "apt knows no Debian mirror here" && return 1; }
    debootstrap --variant=minbase "$release" "$machine" "$mirror"
    cp /etc/resolv.conf /etc/hosts "$machine/etc/"
    # How this system reaches a mirror; hooks and the like would miss their programs.
    apt-config dump | grep -E '^Acquire::(https?::|Check-|Retries|ForceIPv)' |
        grep -v Auto-Detect >"$machine/etc/apt/apt.conf.d/90host" || true
    printf '#!/bin/sh\nexit 101\n' >"$machine/usr/sbin/policy-rc.d"
    chmod +x "$machine/usr/sbin/policy-rc.d"
    inside "$1" apt-get -q update
}

# give_sources NAME: the last commit, in /root/paircade.
give_sources() {
    inside "$1" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q install -y --no-install-recommends git ca-certificates
    git bundle create -q "$machines/$1/tmp/paircade.bundle" HEAD
    inside "$1" git clone -q /tmp/paircade.bundle /root/paircade
}
