#!/usr/bin/env bash
# The window's program, told to end while a message box stands open: it ends by itself, asks nothing, and its settings
# are kept. usage: signal_ends_it.sh PROGRAM FOLDER
set -euo pipefail
program=$1 own=$2
rm -rf "$own"
mkdir -p "$own"
printf 'N0CALL>APRS:!4903.50N/07201.75W>\n' >"$own/one_line.log" # A load of one line ends in a box.

QT_QPA_PLATFORM=offscreen "$program" --settings "$own/settings.ini" --folder "$own/program" --region 1 \
  --load "$own/one_line.log" --set "Call=N0CALL" &
running=$!
trap 'kill -9 $running 2>/dev/null || true' EXIT

# Until it listens to SIGTERM (bit 14 of the mask of caught signals), and a moment more for the box to come up.
for ((tries = 0; tries < 600; ++tries)); do
  caught=$(sed -n 's/^SigCgt:[[:space:]]*//p' "/proc/$running/status")
  (((16#$caught >> 14) & 1)) && break
  sleep 0.1
done
sleep 1
kill -TERM "$running"
for ((tries = 0; tries < 600; ++tries)); do
  kill -0 "$running" 2>/dev/null || break
  sleep 0.1
done
if kill -0 "$running" 2>/dev/null; then
  echo "the program still runs a minute after the signal"
  exit 1
fi
status=0
wait "$running" || status=$?
grep -q '^TrackLineSize=1' "$own/settings.ini" || { echo "the settings were not kept"; exit 1; }
echo "ended with status $status"
[[ $status -eq 0 ]]
