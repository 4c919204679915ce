#!/usr/bin/env bash
# prepare.sh PACKAGE...: runs in a fresh system, and makes it one that builds for arm64. What it says
# last tells why that cannot be.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive

# apt keeps what it fetches, for the next time.
apt_get() {
    apt-get -y -q -o Dpkg::Use-Pty=0 -o Binary::apt-get::APT::Keep-Downloaded-Packages=true \
        -o APT::Keep-Downloaded-Packages=true -o APT::Update::Error-Mode=any \
        --no-install-recommends "$@"
}

dpkg --add-architecture arm64
if ! apt_get update >/tmp/update.log 2>&1; then
    echo "apt-get update: $(grep -m 1 '^E:' /tmp/update.log)"
    exit 1
fi
if ! apt-cache show qtbase5-dev:arm64 >/dev/null 2>&1; then
    echo "apt has no packages for arm64: name a mirror in /etc/apt/sources.list that has them"
    exit 1
fi
apt_get install "$@"
