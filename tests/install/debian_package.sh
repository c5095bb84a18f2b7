#!/usr/bin/env bash
# The Debian package made by cpack: it holds the installed tree under /usr, depends on the Qt
# libraries the program links and on what it loads at run time, and the program unpacked from it
# finds its sounds.
set -euo pipefail
build=$(cd "$1" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

(cd "$scratch" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$scratch/out" >/dev/null)
deb=$(ls "$scratch"/out/contarello_*.deb)
[ -f "$deb" ] || fail "no package"

fields=$(dpkg-deb -f "$deb" Package Architecture Depends)
for dep in libqt6widgets6 libqt6printsupport6 libqt6multimedia6 qt6-qpa-plugins fonts-liberation2; do
    grep -q "$dep" <<<"$fields" || fail "the package does not depend on $dep:"$'\n'"$fields"
done

dpkg-deb -x "$deb" "$scratch/root"
root=$scratch/root/usr

# One version throughout: the package's, the changelog's latest entry's, the metadata's latest release.
version=$(dpkg-deb -f "$deb" Version)
changelog=$(zcat "$root/share/doc/contarello/changelog.gz" | sed -n 1p)
[[ $changelog == "contarello ($version) "* ]] || fail "package $version, changelog: $changelog"
release=$(grep -o -m1 '<release version="[^"]*"' "$root/share/metainfo/org.example.contarello.metainfo.xml")
[ "$release" = "<release version=\"$version\"" ] || fail "package $version, metadata: $release"
grep -q "^License: GPL-3+" "$root/share/doc/contarello/copyright" || fail "the copyright file names no licence"
[ -f "$root/share/applications/org.example.contarello.desktop" ] || fail "no menu entry in the package"
report=$(CONTARELLO_CHECK_FILES=1 QT_QPA_PLATFORM=offscreen "$root/bin/contarello") ||
    fail "the packaged program misses files:"$'\n'"$report"
[ "$(grep -c "^ok      $root/share/contarello/suoni/" <<<"$report")" -eq 6 ] || fail "sounds:"$'\n'"$report"
echo "package $(basename "$deb"): dependencies and files in place"
