# The hermetic worlds of Wine: everything below build/wine of this checkout. Sourced by the scripts beside it.
#
#   model          the prefix that "prepare" makes; no session runs in it
#   session        the world that "start" opens and "stop" ends
#   world-XXXXXX   the world of one call of "with"
here=$(dirname -- "$(readlink -f -- "$0")")
root=${here%/tools/wine}
worlds=$root/build/wine
model=$worlds/model
helpers=$root/build/windows/tools/wine

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

for program in wine wineserver Xvfb i686-w64-mingw32-g++-win32; do
    command -v "$program" >/dev/null || fail "$program is missing: run tools/provision"
done

# WINE_TRACE: what Wine writes to the error stream, in the words of its WINEDEBUG; nothing unless set.
export WINEARCH=win32 WINEDEBUG="${WINE_TRACE:--all}" LC_ALL=C.UTF-8
# No prompts for a missing .NET or HTML engine, and no entries in the user's menus.
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY

# enter WORLD: what is started from now on lives in this folder.
enter() {
    world=$1
    mkdir -p "$world/home" "$world/runtime" "$world/tmp"
    chmod 700 "$world/runtime"
    export WINEPREFIX="$world/prefix" HOME="$world/home" XDG_RUNTIME_DIR="$world/runtime" TMPDIR="$world/tmp"
}

# is_open WORLD: whether its screen and the process that holds it still run.
is_open() { alive "$1/screen" && alive "$1/hold"; }
alive() { [ -s "$1" ] && kill -0 "$(cat "$1")" 2>/dev/null; }

# forward COMMAND...: runs a command and gives back its exit code; an interruption ends the command first.
forward() {
    "$@" <&0 7>&- &
    command=$!
    trap 'kill "$command" 2>/dev/null || true' INT TERM HUP
    code=0
    wait "$command" || code=$?
    while kill -0 "$command" 2>/dev/null; do wait "$command" || code=$?; done
    trap - INT TERM HUP
    return "$code"
}
