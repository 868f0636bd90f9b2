# The hermetic world of Wine: everything below build/wine of this checkout. Sourced by the scripts beside it.
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
root=${here%/tools/wine}
world=$root/build/wine
session=$world/session
helpers=$root/build/windows/tools/wine

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

for program in wine wineserver Xvfb i686-w64-mingw32-g++-win32; do
    command -v "$program" >/dev/null || fail "$program is missing: run tools/provision"
done

mkdir -p "$world/home" "$world/runtime" "$world/tmp"
chmod 700 "$world/runtime"
export WINEARCH=win32 WINEPREFIX="$world/prefix" WINEDEBUG=-all
# No prompts for a missing .NET or HTML engine, and no entries in the user's menus.
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
export HOME="$world/home" XDG_RUNTIME_DIR="$world/runtime" TMPDIR="$world/tmp" LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY

# Whether the process in this file of the session still runs.
alive() { [ -s "$session/$1" ] && kill -0 "$(cat "$session/$1")" 2>/dev/null; }
