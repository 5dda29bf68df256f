#!/usr/bin/env bash
# A picture has the size that was asked for, though the screen that nobody sees is smaller, also after a load that
# lasts. $1: the program, $2: packets, $3: a folder to work in.
set -euo pipefail
program=$1 packets=$2 place=$3
mkdir -p "$place"

# Width and height stand in eight bytes behind the first sixteen.
size_of() { od -An -j16 -N8 -t u1 "$1" | awk '{ print $3 * 256 + $4 "x" $7 * 256 + $8 }'; }

take() {
  local wanted=$1
  shift
  "$program" --settings "$place/settings.ini" --folder "$place" --region 1 --load "$packets" \
    --screenshot "$place/window.png" "$@"
  local got
  got=$(size_of "$place/window.png")
  [[ $got == "$wanted" ]] || { echo "$* gives $got, not $wanted"; exit 1; }
}

take 1280x800
take 1600x1200 --size 800x600 --scale 2
