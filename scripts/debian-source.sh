#!/usr/bin/env bash
# debian-source.sh NAME: prints the folder that holds Debian's source package of that name, unpacked.
#
# A library that Debian has no Windows build of is built from there. The package is fetched once, into
# the user's cache, with a list of sources and folders of its own, so that the settings of the machine's
# apt stay as they are. apt checks the signature of Debian's release and, by the digests in it, that of
# each file. QUILLON_DEBIAN_MIRROR names another mirror than the one the machine uses itself.
set -euo pipefail

name=$1
release=bookworm
keys=/usr/share/keyrings/debian-archive-keyring.gpg
cache=${XDG_CACHE_HOME:-$HOME/.cache}/quillon/sources/$release
folder=$cache/$name

mkdir -p "$cache"
# Several builds may ask at once.
exec 9>"$cache/.lock"
flock 9
if [ ! -f "$folder/.whole" ]; then
    mirror=${QUILLON_DEBIAN_MIRROR:-$(apt-get indextargets --format '$(REPO_URI)' \
        'Created-By: Packages' 'Origin: Debian' "Codename: $release" 2>/dev/null | head -n 1)}
    work=$cache/$name.new
    rm -rf "$work" "$folder"
    mkdir -p "$work/lists/partial" "$work/cache/archives/partial"
    echo "deb-src [signed-by=$keys] ${mirror:-http://deb.debian.org/debian} $release main" \
        >"$work/sources.list"
    own=(-q -o "Dir::Etc::sourcelist=$work/sources.list" -o Dir::Etc::sourceparts=-
        -o "Dir::State::lists=$work/lists" -o "Dir::Cache=$work/cache" -o APT::Sandbox::User=
        -o Acquire::AllowInsecureRepositories=false -o Acquire::Retries=3)
    {
        apt-get "${own[@]}" update
        (cd "$work" && apt-get "${own[@]}" source --download-only "$name")
        # apt has checked the files; whose key signed the description is not asked again.
        dpkg-source --no-check -x "$work/$name"_*.dsc "$work/source"
    } >&2
    touch "$work/source/.whole"
    mv "$work/source" "$folder"
    rm -rf "$work"
fi
echo "$folder"
