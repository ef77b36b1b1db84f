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
if [ "$kind" = 64 ]; then
    loader=/usr/lib/wine/wine64
    server=/usr/lib/wine/wineserver64
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
[ -n "$root" ] || exec "$@"
if [ "$(id -u)" = 0 ]; then
    exec /usr/sbin/chroot "$root" "$@"
fi
exec sudo -n /usr/sbin/chroot --userspec="$(id -u):$(id -g)" "$root" "$@"
