#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# layers.sh ROOT SUBSYSTEM...: a folder of src includes only the folders below it. Headers are found
# from one root, so a link line alone would not stop an include.
set -euo pipefail
cd "$1/src"

base="runtime rtf controls platform widgets skin"
declare -A allowed=(
  [runtime]=""
  [rtf]=""
  [controls]="runtime rtf"
  [platform]="runtime rtf"
  [widgets]="runtime controls"
  [skin]="runtime"
  [core]="$base"
)
for subsystem in "${@:2}"; do
  allowed[$subsystem]="$base core"
done

failed=0
while IFS=: read -r file line include; do
  from=${file%%/*}
  to=$(sed -E 's/.*"([a-z_]+)\/.*/\1/' <<<"$include")
  [ "$from" = "$to" ] && continue
  case " ${allowed[$from]-} " in
  *" $to "*) ;;
  *)
    echo "src/$file:$line: $from may not include $to"
    failed=1
    ;;
  esac
done < <(grep -rnE --include='*.h' --include='*.cpp' '^#include "[a-z_]+/' -- */ || true)
exit $failed
