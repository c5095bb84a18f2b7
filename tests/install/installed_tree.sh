#!/usr/bin/env bash
# The installed program: `cmake --install` into a scratch prefix puts every file in its place, the
# menu entry and the software-centre metadata validate, and the program started from there finds
# its sounds and its sound module, also after the whole tree has been moved elsewhere.
set -euo pipefail
build=$(cd "$1" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$scratch/first" >/dev/null
# Moved whole: the program must look relative to itself, not where it was installed first.
mv "$scratch/first" "$scratch/usr"
root=$scratch/usr
id=org.example.contarello

expected=(
    bin/contarello
    share/applications/$id.desktop
    share/metainfo/$id.metainfo.xml
    share/icons/hicolor/scalable/apps/$id.svg
    share/man/man1/contarello.1.gz
    share/doc/contarello/copyright
    share/doc/contarello/changelog.gz
)
for s in si1 si2 si3 si4 si no; do expected+=("share/contarello/suoni/$s.wav"); done
for f in "${expected[@]}"; do [ -f "$root/$f" ] || fail "$f is not installed"; done
modules=()
for m in sound print; do
    modules+=("$(find "$root/lib" -name libcontarello_$m.so)")
    [ -n "${modules[-1]}" ] || fail "the $m module is not installed"
done
[ -x "$root/bin/contarello" ] || fail "the program is not executable"
# Nothing of the build tree comes along: no sounds or module next to the program.
[ -z "$(ls "$root/bin" | grep -v '^contarello$')" ] || fail "files left in bin/"

desktop-file-validate "$root/share/applications/$id.desktop" || fail "the .desktop entry does not validate"
appstreamcli validate --no-net --pedantic "$root/share/metainfo/$id.metainfo.xml" >/dev/null ||
    fail "the AppStream metadata does not validate"
# `man contarello` finds the page in the tree and formats it without a complaint.
page=$(MANPATH=$root/share/man man -w contarello) || fail "man does not find the manual page"
[ "$page" = "$root/share/man/man1/contarello.1.gz" ] || fail "man finds another page: $page"
warnings=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l "$page" 2>&1 >/dev/null)
[ -z "$warnings" ] || fail "the manual page does not format cleanly:"$'\n'"$warnings"
grep -q "^Icon=$id\$" "$root/share/applications/$id.desktop" || fail "the entry names another icon"
grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$root/share/metainfo/$id.metainfo.xml" ||
    fail "the metadata names another entry"

report=$(CONTARELLO_CHECK_FILES=1 QT_QPA_PLATFORM=offscreen "$root/bin/contarello") ||
    fail "the installed program misses files:"$'\n'"$report"
[ "$(grep -c "^ok      $root/share/contarello/suoni/" <<<"$report")" -eq 6 ] ||
    fail "the sounds were not found in the installed tree:"$'\n'"$report"
for module in "${modules[@]}"; do
    grep -q "^ok      $module\$" <<<"$report" || fail "$module was not loaded from the tree:"$'\n'"$report"
done

# The build tree keeps working: there the files lie next to the program.
report=$(CONTARELLO_CHECK_FILES=1 QT_QPA_PLATFORM=offscreen "$build/contarello") ||
    fail "the program in the build tree misses files:"$'\n'"$report"
[ "$(grep -c "^ok      $build/suoni/" <<<"$report")" -eq 6 ] || fail "build tree sounds:"$'\n'"$report"
# The start checks fail on what a machine may lack: the program's face, or a sound.
CONTARELLO_EXIT_AFTER_FIRST_PAINT=1 QT_QPA_PLATFORM=offscreen "$root/bin/contarello" 2>/dev/null ||
    fail "the installed program did not get through its start"
printf '<?xml version="1.0"?>\n<fontconfig></fontconfig>\n' >"$scratch/nofonts.conf"
report=$(FONTCONFIG_FILE=$scratch/nofonts.conf CONTARELLO_CHECK_FILES=1 QT_QPA_PLATFORM=offscreen \
    "$root/bin/contarello" 2>/dev/null) && fail "a machine without the program's face passed the check"
grep -q "^MISSING Liberation Sans Bold$" <<<"$report" || fail "the missing face was not named:"$'\n'"$report"
rm "$root/share/contarello/suoni/no.wav"
CONTARELLO_EXIT_AFTER_FIRST_PAINT=1 QT_QPA_PLATFORM=offscreen "$root/bin/contarello" 2>/dev/null &&
    fail "a start without a sound passed"
echo "installed tree: ${#expected[@]} files and the modules in place, sounds found"
