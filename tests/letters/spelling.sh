#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# Every word of the letters, sentences and phrases stands in the word list of American English, save
# what the user is to overtype, the name of two topics, and four misspellings that are meant. Those
# four have to be there.
set -euo pipefail
cd "$1"

meant="nned intials convience recommendatin"
others="Enquiries enquiries Your_City 20XX XX"

failed=0
for word in $meant; do
  if ! grep -qw "$word" -- *.txt; then
    echo "no text has the word $word"
    failed=1
  fi
done

known=$(mktemp)
trap 'rm -f "$known"' EXIT
tr ' ' '\n' <<<"$meant $others" >"$known"
unknown=$(cat -- *.txt | hunspell -i utf-8 -d en_US -l | grep -vxF -f "$known" | sort -u || true)
for word in $unknown; do
  grep -wHn -- "$word" *.txt
  failed=1
done
exit $failed
