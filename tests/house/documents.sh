#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# Every path of the tree that a document names exists.
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
exit $failed
