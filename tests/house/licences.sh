#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# Every source, script and build file tells its licence in its first lines, in the form that
# licence readers know.
set -euo pipefail
cd "$1"

failed=0
while read -r file; do
  if ! head -n 3 "$file" | grep -qE '^(//|#) SPDX-License-Identifier: MIT$'; then
    echo "$file does not tell its licence"
    failed=1
  fi
done < <(find CMakeLists.txt run check .ci cmake src tests tools bench fuzz help packaging -type f \
  \( -name '*.cpp' -o -name '*.h' -o -name CMakeLists.txt -o -name '*.cmake' -o -name '*.sh' -o -name run \
  -o -name check -o -name install_needed \))
exit $failed
