#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Paircade authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# includes_point_downward.sh SRC: fails if a file of SRC includes one of a folder
# above its own, or of a folder that has no place in the order.
set -euo pipefail
cd "$1"

# From top to bottom. First come modules, which nobody includes.
layers=(platform/sdl app settings/preferences ui platform/widgets game highscores decks game/rules settings platform
    photos/films photos photos/protocol)

declare -A rank=()
for place in "${!layers[@]}"; do
    rank[${layers[$place]}]=$place
done

status=0
while IFS=: read -r file include; do
    from=${rank[${file%/*}]:-} to=${rank[${include%/*}]:-}
    if [[ -z $from || -z $to ]] || ((to < from)); then
        echo "$file includes $include, which does not lie below it"
        status=1
    fi
done < <(grep -roE --include='*.h' --include='*.cpp' '^#include "[^"]+"' . |
    sed -e 's|^\./||' -e 's|#include "||' -e 's|"$||')
exit "$status"
