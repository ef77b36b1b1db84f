#!/bin/sh
# run-wine.sh 32|64 PREFIX COMMAND...: runs a Wine command on a prefix, with nothing of the caller's
# surroundings but the variables named below. COMMAND is a program and its arguments, or
# "wineserver". A 32-bit prefix has to lie within the folder of prepare-wine32.sh, and is named by its
# path on this machine. QUILLON_WINE_DISPLAY is the X server that shows the windows, if any. Ends with
# 125 where there is no such Wine.
set -eu

kind=$1 prefix=$2
shift 2
root=
server=wineserver
fixed_heap=
if [ "$kind" = 64 ]; then
    loader=/usr/lib/wine/wine64
    server=/usr/lib/wine/wineserver64
    # The kernel lays the heap of a 64-bit program anywhere in a gigabyte in which Wine needs the page
    # 0x7ffe0000 for itself; where the heap takes it, the process ends with code 1 and says nothing: one
    # in some thousands.
    fixed_heap="setarch -R"
    $fixed_heap true 2>/dev/null || fixed_heap=
else
    root=${QUILLON_WINE32_ROOT:-${XDG_CACHE_HOME:-$HOME/.cache}/quillon/wine32-root-2}
    loader=/usr/lib/wine/wine
    server=/usr/lib/wine/wineserver32
fi
[ -x "$root$loader" ] || exit 125

if [ "$1" = wineserver ]; then
    shift
    set -- "$server" "$@"
else
    set -- "$loader" "$@"
fi
# winemenubuilder would write into the user's own menus, and the other two only ask for downloads.
# Without /proc, as in a bare root, the loader has to be told where its libraries lie.
set -- env -i PATH=/usr/bin:/bin HOME="${prefix#"$root"}" LANG=C.UTF-8 TZ=UTC WINEDEBUG=-all \
    WINEPREFIX="${prefix#"$root"}" WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d' \
    ${root:+WINEDLLPATH=/usr/lib/i386-linux-gnu/wine} \
    ${QUILLON_WINE_DISPLAY:+DISPLAY="$QUILLON_WINE_DISPLAY"} "$@"
[ -n "$root" ] || exec $fixed_heap "$@"
if [ "$(id -u)" = 0 ]; then
    exec /usr/sbin/chroot "$root" "$@"
fi
exec sudo -n /usr/sbin/chroot --userspec="$(id -u):$(id -g)" "$root" "$@"
