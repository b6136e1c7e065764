#!/bin/sh
# Installs the Debian packages that building and testing need, and only those
# that are missing. Run as root on Debian 12; a no-op when all are present.
#
#   tools/setup.sh          the desktop build and its tests
#   tools/setup.sh armhf    also the head unit's build (make test-armhf): the
#                           cross compiler, qemu-arm, and mmdebstrap, which
#                           unpacks the armhf Qt (tools/armhf-sysroot.sh)
#   tools/setup.sh lint     also clazy, Qt's static analysis (make lint)
set -eu

PACKAGES="cmake make g++ ccache python3 qtbase5-dev qtbase5-dev-tools qttools5-dev-tools libqt5serialport5-dev dpkg-dev lintian \
fonts-dejavu-core fonts-wqy-microhei"

for group in "$@"; do
    case $group in
        armhf) PACKAGES="$PACKAGES crossbuild-essential-armhf qemu-user mmdebstrap" ;;
        lint) PACKAGES="$PACKAGES clazy" ;;
        *) echo "setup: unknown group $group" >&2; exit 2 ;;
    esac
done

missing=""
for p in $PACKAGES; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing="$missing $p"
    fi
done

[ -z "$missing" ] && exit 0

if [ "$(id -u)" -ne 0 ]; then
    echo "setup: missing packages:$missing; run as root or install them" >&2
    exit 1
fi

echo "setup: installing$missing"
export DEBIAN_FRONTEND=noninteractive
# A mirror that is briefly out of sync makes 'apt-get update' report a failed
# index; the install below still decides whether we can go on.
apt-get update || echo "setup: apt-get update reported errors; trying the install anyway" >&2
apt-get install -y --no-install-recommends $missing
