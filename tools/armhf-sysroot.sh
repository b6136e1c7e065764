#!/bin/sh
# Makes the armhf sysroot of the head unit's build (make test-armhf): Debian's
# own armhf Qt and everything it needs at run time, unpacked from the
# archive's packages into DIR. Nothing is installed into this machine. The
# compiler and libc are the cross toolchain's; the sysroot gives Qt's headers
# and libraries to the build and the target's libraries and fonts to qemu-arm.
#
#   tools/armhf-sysroot.sh DIR
#
# A finished sysroot holds a stamp with its package list and is reused as it
# stands; one made from another list is made anew. Packages come from the
# release's main suite of the archive that this machine's apt sources name.
# Any failure ends in one line that says so, and a non-zero exit status.
set -eu

if [ $# -ne 1 ]; then
    echo "usage: $0 DIR" >&2
    exit 2
fi
dir=${1%/}

# Qt's development files pull in the libraries; the tests draw text with the
# same fonts as on the desktop.
PACKAGES="qtbase5-dev,libqt5test5,fonts-dejavu-core,fonts-wqy-microhei"

stamp="$dir/.carcontrol-sysroot"
if [ -f "$stamp" ] && [ "$(cat "$stamp")" = "$PACKAGES" ]; then
    exit 0
fi

fail() {
    echo "armhf sysroot: FAILED, no sysroot in $dir: $1" >&2
    exit 1
}

if [ -e "$dir" ] && [ ! -f "$stamp" ]; then
    fail "$dir exists and is not a sysroot made by this script; remove it"
fi
command -v mmdebstrap >/dev/null 2>&1 || fail "mmdebstrap is missing (tools/setup.sh armhf installs it)"

# The release this machine runs, and the archive its apt sources give for it.
codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
[ -n "$codename" ] || fail "/etc/os-release names no release"
mirror=$(apt-get indextargets --no-release-info \
        --format '$(TARGET_OF) $(RELEASE) $(COMPONENT) $(REPO_URI)' 2>/dev/null |
    awk -v suite="$codename" '$1 == "deb" && $2 == suite && $3 == "main" { print $4; exit }')
[ -n "$mirror" ] || fail "the apt sources name no archive for $codename main"

partial="$dir.partial"
log="$dir.log"
mkdir -p "$(dirname "$dir")"
rm -rf "$partial"
echo "armhf sysroot: unpacking Debian's armhf Qt from $mirror into $dir"
if ! mmdebstrap --variant=extract --arch=armhf --include="$PACKAGES" \
        "$codename" "$partial" "deb $mirror $codename main" >"$log" 2>&1; then
    rm -rf "$partial"
    reason=$(grep -E '^E: ' "$log" | head -n 1 | sed 's/^E: *//; s/  */ /g')
    fail "mmdebstrap failed (${reason:-see $log}); full log in $log"
fi
for f in usr/lib/arm-linux-gnueabihf/cmake/Qt5/Qt5Config.cmake \
         usr/lib/arm-linux-gnueabihf/libQt5Test.so.5 \
         usr/lib/arm-linux-gnueabihf/qt5/plugins/platforms/libqoffscreen.so \
         lib/ld-linux-armhf.so.3; do
    [ -e "$partial/$f" ] || { rm -rf "$partial"; fail "the unpacked packages lack $f"; }
done

rm -rf "$dir"
mv "$partial" "$dir"
echo "$PACKAGES" >"$stamp"
rm -f "$log"
