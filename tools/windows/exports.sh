#!/bin/sh
# Lists what kelvra_login.dll exports, and fails unless it is the module's public classes and nothing else:
# tools/windows/exports.sh DLL
set -eu

public="LoginAccess LoginInit LoginSignals QRCodeLoginPanel"

names=$(x86_64-w64-mingw32-objdump -p "$1" | awk '
    /^\[Ordinal\/Name Pointer\] Table/ { inside = 1; next }
    inside && /^$/ { exit }
    inside { print $NF }' | c++filt | sort)
if [ -z "$names" ]; then
    echo "$1 exports nothing."
    exit 1
fi
printf '%s\n' "$names"

# A class brings its members, its tables and, where it is one of a kind, the way to its one object.
alternatives=$(echo "$public" | tr ' ' '|')
class="kelvra_login::($alternatives)"
others=$(printf '%s\n' "$names" | grep -vE "^((non-)?virtual thunk to |vtable for |VTT for |typeinfo (name )?for )?$class(::|\$)" \
    | grep -vE "^ZCOMMON::ZSingleton<$class>::" || true)
if [ -n "$others" ]; then
    printf '%s exports what is nobody else'"'"'s business:\n%s\n' "$1" "$others"
    exit 1
fi
for name in $public; do
    printf '%s\n' "$names" | grep -q "^kelvra_login::$name::$name(" || {
        echo "$1 does not export the class kelvra_login::$name."
        exit 1
    }
done
printf '%s exports the classes %s of the namespace kelvra_login and nothing else (%s symbols).\n' "$(basename "$1")" \
    "$(echo "$public" | sed 's/ /, /g')" "$(printf '%s\n' "$names" | wc -l)"
