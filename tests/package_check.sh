#!/bin/sh
# Checks the Debian package of a build, made as `make package` makes it.
#
#   package_check.sh bench BUILD_DIR SOURCE_DIR
#       unpacks the bench package into a temporary root and runs the
#       unpacked headunit-sim on a scenario of family 28, with an empty
#       environment, checking that no library comes from the build tree,
#       and once more in Chinese;
#   package_check.sh headunit BUILD_DIR SOURCE_DIR
#       checks the head unit's package: armhf, a 32-bit ARM plug-in, and
#       every picture the plug-in's code names and every translation at
#       their absolute paths; then loads the packaged plug-in as the unit
#       does: the program named by CARCONTROL_UNIT_LOADER (tests/unitloader),
#       run by CARCONTROL_EMULATOR, loads it from the unpacked plug-in
#       directory with the unpacked pictures and translations.
# Both run lintian on the package and fail on any error it reports, and hold
# the packaged plug-in to tools/plugincheck.py with the build's
# plugincheck.json (or the one CARCONTROL_PLUGINCHECK_CONFIG names, for a
# build of only what goes onto a unit, which has no host); no program or library of the package has a run path
# into the build tree.
set -eu

kind=$1
build=$(cd "$2" && pwd)
source=$(cd "$3" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "package_check $kind: FAILED: $1" >&2
    exit 1
}

(cd "$build" && cpack -B "$work/out" > "$work/cpack.log" 2>&1) || { cat "$work/cpack.log" >&2; fail "cpack"; }
deb=$(ls "$work"/out/*.deb 2>/dev/null | head -n 1)
[ -n "$deb" ] || fail "cpack made no .deb"
echo "package: $(basename "$deb")"
dpkg-deb -I "$deb" | sed -n 's/^ \(Package\|Version\|Architecture\|Depends\|Maintainer\):/  \1:/p'

# Errors fail; warnings are listed (the README explains the ones that stay).
lintian --tag-display-limit 0 "$deb" > "$work/lintian.log" 2>&1 || true
sed 's/^/  lintian: /' "$work/lintian.log"
if grep -q '^E:' "$work/lintian.log"; then
    fail "lintian reports errors"
fi

root="$work/root"
dpkg-deb -x "$deb" "$root"

plugin=$(find "$root" -name libcarcontrol.so | head -n 1)
[ -n "$plugin" ] || fail "no libcarcontrol.so in the package"
python3 "$source/tools/plugincheck.py" --config "${CARCONTROL_PLUGINCHECK_CONFIG:-$build/plugincheck.json}" "$plugin" \
    || fail "the packaged plug-in doesn't load as the head unit loads it"
for file in $(find "$root" -type f); do
    if od -An -c -N4 "$file" | grep -q 'E   L   F'; then
        if readelf -d "$file" 2>/dev/null | grep -E 'R(UN)?PATH' | grep -q "$build"; then
            fail "$file has a run path into the build tree"
        fi
    fi
done

case $kind in
bench)
    # The link to a real decoder box uses Qt's serial port module, which
    # dpkg-shlibdeps finds in the simulator.
    dpkg-deb -f "$deb" Depends | grep -q 'libqt5serialport5' \
        || fail "the package doesn't depend on libqt5serialport5"
    sim="$root/usr/bin/headunit-sim"
    [ -x "$sim" ] || fail "no usr/bin/headunit-sim in the package"
    # The manual page tells every option and the exit status; the scenario
    # reference and the examples it names come along; a CJK font is
    # recommended for --language zh_CN.
    man="$root/usr/share/man/man1/headunit-sim.1.gz"
    for option in record frames version list-protocols clock zoom box-coverage; do
        gzip -dc "$man" | sed 's/\\-/-/g' | grep -qF -- "--$option" || fail "the manual page lacks --$option"
    done
    gzip -dc "$man" | grep -q '^.SH EXIT STATUS' || fail "the manual page lacks the exit status"
    doc="$root/usr/share/doc/carcontrol-bench"
    grep -q '^# Scenarios' "$doc/scenarios.md" || fail "no scenario reference in $doc"
    [ -f "$doc/examples/protocol28_amplifier.scn" ] || fail "no example scenarios in $doc/examples"
    dpkg-deb -f "$deb" Recommends | grep -q 'fonts-wqy-microhei\|fonts-noto-cjk' || fail "no CJK font recommended"
    # Nothing from the build tree: an empty environment, and the loader's
    # own list of the libraries it opened.
    env -i PATH=/usr/bin:/bin HOME="$work" QT_QPA_PLATFORM=offscreen LD_DEBUG=libs \
        "$sim" --script "$source/tests/scenarios/protocol28_amplifier.scn" \
        > "$work/run.log" 2> "$work/libs.log" || { cat "$work/run.log" "$work/libs.log" | grep -v '^ *[0-9]*:' >&2; fail "the unpacked simulator failed the scenario"; }
    if grep 'calling init:' "$work/libs.log" | grep -q "$build"; then
        grep 'calling init:' "$work/libs.log" | grep "$build" >&2
        fail "a library came from the build tree"
    fi
    grep 'calling init:' "$work/libs.log" | grep -q "$root/usr/lib/carcontrol/plugins/libcarcontrol.so" \
        || fail "the plug-in was not loaded from the package"
    # The translations come with it: on a Chinese head unit, family 28 reads
    # in Chinese.
    env -i PATH=/usr/bin:/bin HOME="$work" QT_QPA_PLATFORM=offscreen \
        "$sim" --language zh_CN --script "$source/tests/scenarios/protocol28_chinese.scn" > "$work/zh.log" 2>&1 \
        || { cat "$work/zh.log" >&2; fail "the unpacked simulator shows no Chinese"; }
    ;;
headunit)
    arch=$(dpkg-deb -f "$deb" Architecture)
    [ "$arch" = armhf ] || fail "Architecture is $arch, not armhf"
    # ELF class 1 (32-bit) at byte 4, machine 40 (ARM) at bytes 18 and 19.
    header=$(od -An -tu1 -j4 -N1 "$plugin" | tr -d ' ')
    machine=$(od -An -tu2 -j18 -N2 "$plugin" | tr -d ' ')
    [ "$header" = 1 ] && [ "$machine" = 40 ] || fail "$plugin is not a 32-bit ARM object"
    # Every picture: those the artwork holds, and every name the code gives
    # imagePath() as it stands (names made with arguments are the artwork's).
    missing=0
    resources=/application/resource/carcontrol
    for file in $(cd "$build/resource/carcontrol" && find style4 exStyle4 -type f | sort); do
        [ -f "$root$resources/$file" ] || { echo "missing: $resources/$file" >&2; missing=1; }
    done
    for file in $(cd "$source" && grep -rhoE 'imagePath\((OverlayImages|ExtendedImages), *(QStringLiteral|QLatin1String)\("[^"]+"' \
            plugin dialogView exView pages reverse \
            | sed -E 's/imagePath\(OverlayImages, *[A-Za-z0-9]+\("/style4\//; s/imagePath\(ExtendedImages, *[A-Za-z0-9]+\("/exStyle4\//; s/"$//' | grep -v '%' | sort -u); do
        [ -f "$root$resources/$file" ] || { echo "missing: $resources/$file" >&2; missing=1; }
    done
    for ts in "$source"/translations/carcontrol_*.ts; do
        file=translations/$(basename "$ts" .ts).qm
        [ -f "$root$resources/$file" ] || { echo "missing: $resources/$file" >&2; missing=1; }
    done
    [ "$missing" = 0 ] || fail "pictures or translations missing from the package"
    # The unit's process in small loads the plug-in from the package.
    [ -n "${CARCONTROL_UNIT_LOADER:-}" ] || fail "CARCONTROL_UNIT_LOADER names no loader"
    ${CARCONTROL_EMULATOR:-} "$CARCONTROL_UNIT_LOADER" "$(dirname "$plugin")" "$root$resources" \
        || fail "the plug-in doesn't load from the package"
    ;;
*)
    fail "unknown kind $kind"
    ;;
esac
echo "package_check $kind: passed"
