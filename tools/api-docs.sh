#!/bin/sh
# Makes the reference of host/ and of what the module exports, and fails where something in it is without a text:
# tools/api-docs.sh [DIR]; the first page is DIR/html/index.html, DIR being build/api by default.
set -eu
folder=${1:-$(dirname "$0")/../build/api}
mkdir -p "$folder"
KELVRA_API_DIR=$(CDPATH='' cd -- "$folder" && pwd)
cd "$(dirname "$0")/.."
. tools/setup.sh

command -v doxygen >/dev/null || install_missing doxygen
KELVRA_API_XML=$(mktemp -d)
trap 'rm -rf "$KELVRA_API_XML"' EXIT
KELVRA_VERSION=$(sed -n 's/^project(kelvra_login VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
export KELVRA_API_DIR KELVRA_API_XML KELVRA_VERSION

say "Making the reference in $KELVRA_API_DIR"
doxygen docs/Doxyfile

# Doxygen lets pass: values of an enumeration, namespaces, and files whose macros are then not shown.
awk '
    /<compounddef / { kind = $0; sub(/.* kind="/, "", kind); sub(/".*/, "", kind); told = macros = inMember = 0 }
    /<compoundname>/ { compound = text($0) }
    /<memberdef /    { inMember = 1; if (/kind="define"/) macros = 1 }
    /<\/memberdef>/  { inMember = 0 }
    /<enumvalue /    { inValue = 1; valueTold = 0 }
    inValue && /<name>/ { value = text($0) }
    /<\/(brief|detailed)description>/ { inText = 0 }
    inText && /[^ \t]/ { if (inValue) valueTold = 1; else if (!inMember) told = 1 }
    /<(brief|detailed)description>/ { inText = 1 }
    /<\/enumvalue>/  { inValue = 0; if (!valueTold) miss("enumeration value " value " in " compound) }
    /<\/compounddef>/ {
        if (!told && (kind == "namespace" || kind == "file" && macros))
            miss(kind " " compound)
    }
    function text(line) { gsub(/^[^>]*>|<.*$/, "", line); return line }
    function miss(what) { print "error: " what " is not documented."; missed = 1 }
    END { exit missed }
' "$KELVRA_API_XML"/namespace*.xml "$KELVRA_API_XML"/class*.xml "$KELVRA_API_XML"/struct*.xml \
    "$KELVRA_API_XML"/*_8h.xml >&2
say "All of it is documented"
