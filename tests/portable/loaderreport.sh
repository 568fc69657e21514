#!/bin/sh
# Every shared library that the portable folder's program, libraries and
# plugins need resolves inside the folder or is one of the host libraries
# named after the folder, as the loader itself reports it (LD_DEBUG, ldd).
# usage: loaderreport.sh FOLDER HOST-LIBRARY...
folder=$(cd "$1" && pwd) || exit 1
shift
host=" $* "
[ -x "$folder/tandry" ] || { echo "no program in $folder"; exit 1; }
status=0
for file in "$folder/tandry" $(find "$folder" -type f -name '*.so*'); do
    report=$(LD_DEBUG=files ldd "$file" 2>&1)
    for name in $(echo "$report" | sed -n "s|.*file=\([^ ]*\) \[0\];  needed by $file \[0\]|\1|p"); do
        path=$(echo "$report" | awk -v name="$name" '$1 == name && $2 == "=>" { print $3; exit }')
        case "$path" in "$folder"/*) continue ;; esac
        case "$host" in *" $name "*) continue ;; esac
        echo "$file needs $name: ${path:-not reported}, outside the folder and not a host library"
        status=1
    done
done
exit $status
