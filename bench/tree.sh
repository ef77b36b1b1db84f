# The tree that bench/create.sh and bench/unpack.sh work on, as a folder and as a project. Both
# scripts source this one, with `work` as their folder and `bin` as that of the benchmark programs.

input=$work/input

# The files to copy: of each folder the first in byte order that make up a third of the amount. A
# name that Windows or a project can't hold, and one that differs from another in case alone, is
# passed over, so that all programs pack the same files.
choose_files() {
    local folder
    for folder in /usr/lib /usr/share /usr/bin; do
        find "$folder" -xdev -type f -printf '%s\t%p\n' 2>/dev/null | LC_ALL=C sort -t $'\t' -k 2 \
            | LC_ALL=C awk -F '\t' -v wanted=180000000 '
                sum >= wanted { next }
                $2 !~ /^[-A-Za-z0-9_.+~@=,()\/]+$/ || $2 ~ /\.(\/|$)/ || length($2) > 180 { next }
                tolower($2) in seen { next }
                { seen[tolower($2)]; sum += $1; print substr($2, 2) }'
    done
}

make_input() {
    [ -f "$work/input.done" ] && return 0
    rm -rf "$input" "$work/input.list"
    mkdir -p "$input"
    choose_files >"$work/input.list"
    tar -C / --files-from="$work/input.list" --hard-dereference -cf - | tar -C "$input" -xf -
    touch "$work/input.done"
}

# The project of them all, and their number and bytes in `files` and `bytes`.
make_tree_project() {
    make_input
    files=$(find "$input" -type f | wc -l)
    bytes=$(find "$input" -type f -printf '%s\n' | awk '{ sum += $1 } END { printf "%d", sum }')
    echo "Input: $files files, $bytes bytes in $input"
    [ "$bytes" -ge 500000000 ] || { echo "That is less than 500 MB." >&2; exit 1; }
    [ "$("$bin/make_project" "$input" "$work/all.qnp")" -eq "$files" ] \
        || { echo "The project does not hold every file." >&2; exit 1; }
}

# judge LIMIT TEXT VALUE OPERATOR: prints the line and remembers a failure in `failed`.
judge() {
    local word=holds
    awk "BEGIN { exit !($3 $4 $1) }" || { word=FAILS failed=1; }
    printf '%-6s %-58s %8.2f (limit %s %s)\n' "$word" "$2" "$3" "$4" "$1"
}
