#!/usr/bin/env bash
# The Debian package as a packager would check it: lintian reports nothing, errors, warnings and
# information alike, that the package's own overrides don't explain, and each override says why.
set -euo pipefail
build=$(cd "$1" && pwd)
source=$(cd "$(dirname "$0")/../.." && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

overrides=$source/packaging/lintian-overrides
# Every override stands under a comment that gives its reason.
awk '/^[^#[:space:]]/ && prev !~ /^#/ { print; bad = 1 } { prev = $0 } END { exit bad }' "$overrides" ||
    fail "an override in packaging/lintian-overrides has no reason above it"

(cd "$scratch" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$scratch/out" >/dev/null)
deb=$(ls "$scratch"/out/contarello_*.deb)
# Unused or mismatched overrides are tags too, so a stale override fails as well.
status=0
tags=$(lintian --no-cfg --display-info --fail-on error,warning,info "$deb" 2>"$scratch/errors") || status=$?
# 1 is lintian's own failure, 2 a tag at one of the levels given.
[ "$status" -ne 1 ] || fail "lintian did not run:"$'\n'"$(cat "$scratch/errors")"
tags=$(grep -v '^N:' <<<"$tags" || true)
[ "$status" -eq 0 ] && [ -z "$tags" ] || fail "lintian tags without an override:"$'\n'"$tags"
echo "lintian: $(basename "$deb") has no tag without an override"
