#!/bin/sh
# Makes the folder in which a 32-bit Wine lives: a small Debian of its own, since its packages can't
# always be installed beside a 64-bit system's. Does nothing where there is one already. Prints the
# folder; needs root or sudo. The folder is QUILLON_WINE32_ROOT, or lies in the user's cache.
set -eu

suite=bookworm
# The second one is how Wine knows of several displays. A change of this list needs a higher number
# in the folder's name, here and in run-wine.sh.
packages=wine32,libxinerama1
root=${QUILLON_WINE32_ROOT:-${XDG_CACHE_HOME:-$HOME/.cache}/quillon/wine32-root-2}
as_root() { if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi; }

# The mirror that this machine's own packages come from.
find_mirror() {
    apt-get indextargets --format '$(RELEASE) $(COMPONENT) $(REPO_URI)' 'Created-By: Packages' |
        awk -v suite="$suite" '$1 == suite && $2 == "main" { print $3; exit }'
}

remove_part() {
    # debootstrap leaves its mounts behind when it is interrupted.
    for mounted in proc sys; do as_root umount "$part/$mounted" 2>/dev/null || true; done
    as_root rm -rf --one-file-system "$part"
}

# A name that exists is whole: it is made under another one and renamed at the very end.
if [ -x "$root/usr/lib/wine/wine" ]; then
    echo "$root"
    exit 0
fi
mkdir -p "$(dirname "$root")"
exec 9>"$root.lock"
flock 9
if [ ! -x "$root/usr/lib/wine/wine" ]; then
    mirror=$(find_mirror)
    if [ -z "$mirror" ]; then
        echo "prepare-wine32: apt knows no source of Debian $suite" >&2
        exit 1
    fi
    PATH=$PATH:/usr/sbin:/sbin
    part=$root.part
    remove_part
    trap remove_part EXIT
    # The lock must not outlive this script in anything that the packages start.
    as_root debootstrap --variant=minbase --arch=i386 --include="$packages" "$suite" "$part" "$mirror" \
        >"$root.log" 2>&1 9>&- || { tail -5 "$root.log" >&2; exit 1; }
    as_root rm -rf "$part/var/cache/apt" "$part/var/lib/apt/lists" "$part/usr/share/doc" \
        "$part/usr/share/man" "$part/usr/share/locale"
    # All users may put prefixes here and run programs on them.
    as_root chmod 1777 "$part/tmp"
    as_root mv -T "$part" "$root"
    trap - EXIT
fi
echo "$root"
