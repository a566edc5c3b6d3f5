# Sourced by build.sh: what the tree needs on Windows, cross-built from Debian's source packages into $toolkit:
#   libraries/   SQLite, sodium, qrencode
#   qt/          Qt's base modules, with the tools (moc, uic, rcc) that run here
#   sources/ build/ stamps/ logs/
# Each part that is done leaves a stamp, so that the next start goes on behind it.

toolkit_packages="g++ make perl dpkg-dev bzip2 xz-utils tcl autoconf automake libtool pkg-config
    g++-mingw-w64-x86-64-posix"
compiler=x86_64-w64-mingw32
qt_files=1130 # that Qt compiles, for the progress

# Taken from the compiler with POSIX threads, whichever the machine prefers.
make_compilers() {
    mkdir -p "$toolkit/compilers"
    for tool in gcc g++; do
        printf '#!/bin/sh\nexec %s "$@"\n' "$compiler-$tool-posix" >"$toolkit/compilers/$compiler-$tool"
        chmod +x "$toolkit/compilers/$compiler-$tool"
    done
    PATH=$toolkit/compilers:$PATH
}

# stage NAME COMMAND...: runs it once, its output in a log.
stage() {
    name=$1
    shift
    [ ! -e "$toolkit/stamps/$name" ] || return 0
    say "$name (log: $toolkit/logs/$name.log)"
    started=$(date +%s)
    set +e
    (
        set -e
        "$@"
    ) >"$toolkit/logs/$name.log" 2>&1 </dev/null
    status=$?
    set -e
    if [ $status -ne 0 ]; then
        tail -n 20 "$toolkit/logs/$name.log"
        say "$name failed; the next start goes on from here"
        exit 1
    fi
    say "$name: done in $(($(date +%s) - started)) s"
    touch "$toolkit/stamps/$name"
}

# The machine's own package sources, asked for source packages; its configuration stays as it is.
source_lists() {
    lists=$toolkit/apt
    rm -rf "$lists"
    mkdir -p "$lists/parts" "$lists/lists/partial" "$lists/cache/archives/partial"
    eval "$(apt-config shell list Dir::Etc::sourcelist/f parts Dir::Etc::sourceparts/d)"
    for file in "$list" "$parts"*.list; do
        [ ! -f "$file" ] || sed -n 's/^deb\(-src\)\{0,1\}[[:space:]]/deb-src /p' "$file" >>"$lists/parts/machine.list"
    done
    for file in "$parts"*.sources; do
        [ ! -f "$file" ] || sed 's/^Types:.*/Types: deb-src/' "$file" >"$lists/parts/$(basename "$file")"
    done
    cat >"$lists/apt.conf" <<END
Dir::Etc::sourcelist "/dev/null";
Dir::Etc::sourceparts "$lists/parts";
Dir::State::lists "$lists/lists";
Dir::Cache "$lists/cache";
APT::Sandbox::User "root";
END
    # A source that has no source packages is none of ours.
    APT_CONFIG=$lists/apt.conf apt-get update || true
}

# fetch PACKAGE: its source, unpacked in sources/PACKAGE.
fetch() {
    rm -rf "$toolkit/sources/$1"
    mkdir -p "$toolkit/sources/$1"
    cd "$toolkit/sources/$1"
    APT_CONFIG=$toolkit/apt/apt.conf apt-get source --only-source "$1" && return
    # Where a mirror has lost Debian's additions, what they are added to will do: none is for Windows.
    APT_CONFIG=$toolkit/apt/apt.conf apt-get source --only-source --download-only --tar-only "$1"
    tar -xf ./*.orig.tar.*
}

fetch_all() {
    source_lists
    for package in sqlite3 libsodium qrencode qtbase-opensource-src; do
        (fetch $package)
    done
    rm -rf "$toolkit/apt"
}

# begin PACKAGE: an empty build folder, and the source's in $source.
begin() {
    source=$(dirname "$(ls "$toolkit/sources/$1"/*/configure "$toolkit/sources/$1"/*/configure.ac 2>/dev/null | head -n 1)")
    rm -rf "$toolkit/build/$1"
    mkdir -p "$toolkit/build/$1"
    cd "$toolkit/build/$1"
}

build_sqlite() {
    begin sqlite3
    "$source/configure" --disable-tcl --disable-readline
    make sqlite3.c sqlite3.h
    mkdir -p "$libraries/bin" "$libraries/lib" "$libraries/include"
    "$compiler-gcc" -O2 -shared -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA \
        '-DSQLITE_API=__declspec(dllexport)' -o "$libraries/bin/libsqlite3-0.dll" \
        "-Wl,--out-implib,$libraries/lib/libsqlite3.dll.a" sqlite3.c
    cp sqlite3.h "$libraries/include"
}

# build_autotools PACKAGE [configure options]
build_autotools() {
    begin "$1"
    shift
    [ -e "$source/configure" ] || (cd "$source" && autoreconf -fi)
    "$source/configure" --host=$compiler --prefix="$libraries" --disable-static --enable-shared "$@"
    make -j "$jobs"
    make install
}

# What the source package lacks (OpenGL's ANGLE, freetype, JPEG, the tablet's headers), and what the client does not use.
configure_qt() {
    begin qtbase-opensource-src
    "$source/configure" -prefix "$toolkit/qt" -opensource -confirm-license -release -shared \
        -xplatform win32-g++ -device-option CROSS_COMPILE=$compiler- -nomake examples -nomake tests \
        -qt-zlib -qt-libpng -qt-pcre -qt-harfbuzz -qt-doubleconversion \
        -no-opengl -no-dbus -no-icu -no-openssl -no-libjpeg -no-freetype \
        -sql-sqlite -system-sqlite "SQLITE_PREFIX=$libraries" -no-sql-odbc \
        -no-feature-tabletevent -no-feature-printer -no-feature-concurrent
}

compile_qt() {
    cd "$toolkit/build/qtbase-opensource-src"
    make -j "$jobs"
}

show_qt() {
    while sleep 60; do
        files=$(grep -c "^$compiler-g.. -c" "$toolkit/logs/qt-compiled.log" 2>/dev/null || true)
        say "Qt: ${files:-0} of about $qt_files files"
    done
}

install_qt() {
    cd "$toolkit/build/qtbase-opensource-src"
    make install
}

build_toolkit() {
    libraries=$toolkit/libraries
    mkdir -p "$toolkit/stamps" "$toolkit/logs"
    make_compilers
    stage sources fetch_all
    stage sqlite build_sqlite
    stage sodium build_autotools libsodium
    stage qrencode build_autotools qrencode --without-tools --without-tests
    stage qt-configured configure_qt
    show_qt &
    watcher=$!
    trap 'kill $watcher' EXIT
    trap 'exit 130' INT TERM
    stage qt-compiled compile_qt
    kill $watcher
    trap - EXIT INT TERM
    stage qt-installed install_qt
    # Half a gigabyte that nobody needs any more.
    rm -rf "$toolkit/build" "$toolkit/sources"
}
