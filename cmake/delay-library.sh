#!/bin/sh
# delay-library.sh TOOLS LIBRARY OUTPUT: makes an import library that loads LIBRARY.dll when one of its
# functions is called for the first time, not when the program starts. TOOLS is the prefix of the tool
# chain, such as i686-w64-mingw32. What the library holds is what the tool chain's own import library
# for it names.
set -eu

tools=$1 library=$2 output=$3
names=$("$tools-gcc-win32" -print-file-name="lib$library.a")
# 32-bit names begin with an underscore and end in the size of the arguments.
case $tools in
i686-*) undecorate='s/^_//' ;;
*) undecorate= ;;
esac
{
    echo "LIBRARY $library.dll"
    echo EXPORTS
    "$tools-nm" "$names" 2>/dev/null | sed -n 's/^[0-9a-f]* T //p' | sed "$undecorate" | sort -u
} >"$output.def"
"$tools-dlltool" --kill-at --input-def "$output.def" --dllname "$library.dll" --output-delaylib "$output"
