#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# Every path of the tree that a document names exists, and every folder of the source is told of.
set -euo pipefail
cd "$1"

failed=0
for document in README.md CONTRIBUTING.md docs/*.md; do
  while read -r path; do
    if ! compgen -G "$path" >/dev/null && ! compgen -G "$path.*" >/dev/null; then
      echo "$document names $path, which is not there"
      failed=1
    fi
  done < <(grep -oE "(^|[^A-Za-z0-9_/.-])(src|tests|bench|fuzz|help|tools|packaging|docs|cmake|\.ci)/[A-Za-z0-9_./*-]*[A-Za-z0-9_*]" "$document" |
    sed -E "s|^[^a-z.]||" | sort -u)
done
for folder in src/*/; do
  if ! grep -q "\`${folder%/}\`" docs/ARCHITECTURE.md; then
    echo "docs/ARCHITECTURE.md does not tell of ${folder%/}"
    failed=1
  fi
done
exit $failed
