#!/bin/bash
# Builds the Debian package from a finished build folder, unpacks it into a
# scratch root and checks what a school's apt would install: the file name,
# the control fields, every file the menu needs, and the packaged program
# running against the system's Qt.
#
# usage: package_test.sh CPACK BUILD_DIR VERSION
set -u

cpack=$1
build=$2
version=$3

failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }

work=$(mktemp -d "${TMPDIR:-/tmp}/gridpages-package.XXXXXX")
trap 'rm -rf "$work"' EXIT

# Into a folder of its own, so that a package left in the build folder by
# an earlier `make package` cannot stand in for this one.
if ! "$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$work/out" >"$work/cpack.log" 2>&1; then
    cat "$work/cpack.log"
    echo "FAIL: cpack could not build the package"
    exit 1
fi

arch=$(dpkg --print-architecture)
deb="$work/out/gridpages_${version}_${arch}.deb"
debs=("$work"/out/*.deb)
if [ ! -f "$deb" ] || [ ${#debs[@]} -ne 1 ]; then
    echo "FAIL: expected exactly gridpages_${version}_${arch}.deb, cpack wrote:"
    ls "$work/out"
    exit 1
fi

# Control fields.
field() { dpkg-deb -f "$deb" "$1"; }
[ "$(field Package)" = gridpages ] || fail "Package is '$(field Package)'"
[ "$(field Version)" = "$version" ] || fail "Version is '$(field Version)', not $version"
[ "$(field Architecture)" = "$arch" ] || fail "Architecture is '$(field Architecture)', not $arch"
[ -n "$(field Maintainer)" ] || fail "no Maintainer"
[ -n "$(field Section)" ] || fail "no Section"
synopsis=$(field Description | sed -n 1p)
[ -n "$synopsis" ] || fail "no synopsis"
[ "$(field Description | sed -n '2s/^ //p')" != "$synopsis" ] || fail "Description repeats its synopsis"
depends=$(field Depends)
echo "Depends: $depends"
# Whole package names, versions and alternatives set apart.
names=$(echo "$depends" | tr ',|' '\n\n' | sed 's/(.*)//; s/[[:space:]]//g')
for lib in libc6 libstdc++6 libqt6core6 libqt6gui6 libqt6widgets6 libqt6printsupport6 qt6-qpa-plugins libcups2; do
    grep -qxF "$lib" <<<"$names" || fail "Depends does not name $lib"
done

# Everything installs under /usr, nothing under /usr/local or outside.
dpkg-deb -c "$deb" | awk '{print $6}' >"$work/list"
outside=$(grep -v -e '^\./usr/' -e '^\./$' "$work/list")
[ -z "$outside" ] || fail "outside /usr: $outside"
in_local=$(grep '^\./usr/local' "$work/list")
[ -z "$in_local" ] || fail "under /usr/local: $in_local"

root="$work/root"
dpkg -x "$deb" "$root" || { echo "FAIL: dpkg -x"; exit 1; }
share="$root/usr/share"
[ -x "$root/usr/bin/gridpages" ] || fail "no executable usr/bin/gridpages"
[ -f "$share/applications/gridpages.desktop" ] || fail "no desktop entry"
[ -f "$share/man/man1/gridpages.1" ] || fail "no man page"
[ -f "$share/icons/hicolor/scalable/apps/gridpages.svg" ] || fail "no scalable icon"
metainfo="$share/metainfo/org.gridpages.gridpages.metainfo.xml"
[ -f "$metainfo" ] || fail "no metainfo"

# Each PNG at the size its folder promises: a menu shows a wrongly sized
# icon blurred or cropped.
for size in 16 32 48 64 128 256; do
    png="$share/icons/hicolor/${size}x${size}/apps/gridpages.png"
    if [ ! -f "$png" ]; then
        fail "no ${size}x${size} icon"
    elif ! file "$png" | grep -q "PNG image data, $size x $size,"; then
        fail "${size}x${size} icon is $(file -b "$png")"
    fi
done

# The desktop entry names the icon and the program that the package holds.
if [ -f "$share/applications/gridpages.desktop" ]; then
    grep -qx 'Icon=gridpages' "$share/applications/gridpages.desktop" || fail "desktop entry names another icon"
    grep -qx 'Exec=gridpages' "$share/applications/gridpages.desktop" || fail "desktop entry runs another program"
fi

# The metainfo describes this release, and is valid for the software
# centres (validate-tree also checks that its launchable desktop entry is
# in the tree).
if [ -f "$metainfo" ]; then
    grep -q "<release version=\"$version\"" "$metainfo" || fail "metainfo has no release $version"
    if command -v appstreamcli >/dev/null; then
        appstreamcli validate-tree --no-net --pedantic "$root" >"$work/appstream.log" 2>&1 \
            || { cat "$work/appstream.log"; fail "appstreamcli validate-tree"; }
    else
        echo "appstreamcli not installed (Debian package appstream): metainfo not validated"
    fi
fi

# The packaged program runs against the system's Qt alone.
bin="$root/usr/bin/gridpages"
if [ -x "$bin" ]; then
    missing=$(ldd "$bin" | grep 'not found')
    [ -z "$missing" ] || fail "libraries not found: $missing"
    ! readelf -d "$bin" | grep -Eq 'RPATH|RUNPATH' || fail "packaged program keeps a library search path"
    help=$(env -u LD_LIBRARY_PATH "$bin" --help 2>&1)
    rc=$?
    [ $rc -eq 0 ] || fail "--help exited $rc: $help"
    echo "$help" | grep -q -- '--script' || fail "--help does not mention --script: $help"

    printf 'click cmdTriangle\nclick cmdPrintIt\n' >"$work/script.txt"
    env -u LD_LIBRARY_PATH "$bin" --script "$work/script.txt" --pdf "$work/pdf" >"$work/run.log" 2>&1
    rc=$?
    [ $rc -eq 0 ] || { cat "$work/run.log"; fail "--script exited $rc"; }
    pdfs=$(find "$work/pdf" -type f 2>/dev/null | wc -l)
    [ "$pdfs" -eq 1 ] || fail "--script wrote $pdfs files, not one PDF"
    [ "$(head -c 5 "$work/pdf/sheet-0001.pdf" 2>/dev/null)" = "%PDF-" ] || fail "sheet-0001.pdf is no PDF"
fi

if [ $failures -ne 0 ]; then
    echo "$failures check(s) failed"
    exit 1
fi
echo "package gridpages_${version}_${arch}.deb: all checks passed"
