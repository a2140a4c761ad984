#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# What "cmake --install" puts where: install.sh SOURCES BUILD
set -euo pipefail

prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$2" --prefix "$prefix" >/dev/null

failed=0
for file in bin/orvalis lib/orvalis/liborvalis_sound.so share/orvalis/Alarm.wav share/orvalis/orvalis.chm \
  share/applications/orvalis.desktop share/icons/hicolor/scalable/apps/orvalis.svg \
  share/icons/hicolor/48x48/apps/orvalis.png; do
  if [ ! -s "$prefix/$file" ]; then
    echo "$file is not installed"
    failed=1
  fi
done
desktop-file-validate "$prefix/share/applications/orvalis.desktop" || failed=1
for program in $(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$prefix/share/applications/orvalis.desktop"); do
  if [ ! -x "$prefix/bin/$program" ]; then
    echo "the desktop entry starts $program, which is not installed"
    failed=1
  fi
done
exit $failed
