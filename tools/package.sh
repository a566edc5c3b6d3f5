#!/bin/sh
# Makes the Debian packages, tries them out without installing them, and leaves them in build/package/packages:
# kelvra-client (program, its libraries, the module) and kelvra-login-dev (headers, CMake package, contract kit).
set -eu
cd "$(dirname "$0")/.."
. tools/setup.sh

# shellcheck disable=SC2086
install_missing $build_packages dpkg-dev file
folder=build/package

say "Building"
cmake --preset release -B "$folder" -DCMAKE_INSTALL_PREFIX=/usr -Wno-dev >/dev/null
cmake --build "$folder" --parallel "$(nproc)"
say "Packing"
rm -rf "$folder/packages" "$folder/unpacked"
(cd "$folder" && cpack -B packages >cpack.log 2>&1) || {
    cat "$folder/cpack.log" >&2
    exit 1
}
rm -rf "$folder/packages/_CPack_Packages"

say "Trying them out"
for package in "$folder"/packages/*.deb; do
    dpkg-deb --field "$package" Package Version Depends
    dpkg-deb --extract "$package" "$folder/unpacked"
done
"$folder/unpacked/usr/bin/kelvra_client" --version
ls -l "$folder"/packages/*.deb
