#!/usr/bin/env bash
# Installs the Debian packages Contarello needs to build, run and test, those that are missing only.
# Works as root and through sudo.
set -euo pipefail

PACKAGES=(
    g++ cmake make pkg-config
    qt6-base-dev qt6-multimedia-dev   # widgets, print support, test, sounds
    qt6-translations-l10n             # "Sì", "No", "Annulla" in Qt's own boxes
    qt6-speech-dev qt6-declarative-dev  # the voice's module (the speech header includes a Qt Quick one)
    qt6-speech-speechd-plugin speech-dispatcher speech-dispatcher-espeak-ng  # and its Italian voice, to hear it
    fonts-liberation2                 # the screens are laid out for Arial's metrics
    libfontconfig-dev                 # the program's own font configuration
    libbenchmark-dev                  # the benchmark
    poppler-utils                     # the tests read the saved PDF back
    xvfb xauth                        # the tests start the program on a virtual X display
    desktop-file-utils appstream      # the tests validate the menu entry and the metadata
    dpkg-dev file                     # cpack's .deb and its dependencies
    lintian                           # the tests check the .deb as Debian's packagers do
    clang libclang-rt-14-dev          # the fuzz targets: clang with its libFuzzer runtime
)

missing=()
for p in "${PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
echo "Installing: ${missing[*]}"
$sudo apt-get update -q
$sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
