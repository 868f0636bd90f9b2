# The hermetic worlds of Wine: everything below build/wine of this checkout. Sourced by the scripts beside it.
#
# WINE_BITS=64 means the worlds below build/wine64, where programs of 64 bits run, and those of 32 as well, as on a
# Windows of 64 bits. Otherwise programs and worlds are 32-bit.
#
#   model          the prefix that "prepare" makes; no session runs in it
#   session        the world that "start" opens and "stop" ends
#   world-XXXXXX   the world of one call of "with"
here=$(dirname -- "$(readlink -f -- "$0")")
root=${here%/tools/wine}
case ${WINE_BITS:-32} in
32) worlds=$root/build/wine preset=windows compiler=i686-w64-mingw32-g++-win32 wine=wine ;;
# Debian's "wine" is the 32-bit one where that is installed, too.
64) worlds=$root/build/wine64 preset=windows64 compiler=x86_64-w64-mingw32-g++-win32 wine=/usr/lib/wine/wine64 ;;
*) echo "WINE_BITS is $WINE_BITS; it may be 32 or 64" >&2 && exit 1 ;;
esac
model=$worlds/model
helpers=$root/build/$preset/tools/wine

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

for program in "$wine" wineserver Xvfb "$compiler"; do
    command -v "$program" >/dev/null || fail "$program is missing: run tools/provision"
done

# WINE_TRACE: what Wine writes to the error stream, in the words of its WINEDEBUG; nothing unless set.
export WINEARCH="win${WINE_BITS:-32}" WINEDEBUG="${WINE_TRACE:--all}" LC_ALL=C.UTF-8
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

# processor: the one that all processes of the world run on. They answer one another at every step: on one processor
# that takes a quarter of the time.
processor() { cat "$world/processor"; }

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
