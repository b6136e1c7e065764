#!/bin/sh
# The main job: the head-unit simulator with the plug-in's screens. With a
# display it opens the simulator's window on the demo car; without one, or
# when the window can't open there, it runs the demo tour headless, writes
# one PNG per step into BUILD/demo/ and prints their paths. Every page of
# every family, as a contact sheet: headunit-sim --gallery DIR.
set -eu
build=$(cd "${1:-build}" && pwd)
sim="$build/simulator/headunit-sim"
export CARCONTROL_PLUGIN_DIR="$build/plugins"
export CARCONTROL_RESOURCE_ROOT="$build/resource/carcontrol"
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    if "$sim"; then
        exit 0
    fi
    echo "demo: the window didn't run; the demo tour runs headless instead" >&2
fi
out="$build/demo"
mkdir -p "$out"
rm -f "$out"/*.png
echo "demo: every page of every family: $sim --gallery $build/gallery" >&2
exec "$sim" --platform offscreen --demo "$out"
