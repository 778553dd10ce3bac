#!/bin/sh
# The tray agent's cost while unseen: the program runs for SECONDS (default 60) under Xvfb with the
# agent on, its window hidden in the tray and the popup closed, beside an idle `sleep` of the same
# length started at the same moment. Reports CPU time (utime + stime from /proc/PID/stat) and the
# voluntary and involuntary context switches from /proc/PID/status of both, read just before the end.
# ZEPHRANE_BENCH_POPUP=1 measures with the popup open instead.
# Needs Xvfb and a built `zephrane` (build/dev unless ZEPHRANE_BIN says otherwise).
set -eu
cd "$(dirname "$0")/.."
SECONDS_RUN=${1:-60}
BIN=${ZEPHRANE_BIN:-build/dev/Sources/Zephrane/zephrane}
[ -x "$BIN" ] || nice scripts/build dev zephrane
WORK=$(mktemp -d)
trap 'kill $APP $SLEEP $TRAY $XVFB 2>/dev/null || true; rm -rf "$WORK"' EXIT

cc -O2 -o "$WORK/tray-stand-in" Benchmarks/tray-stand-in.c -lxcb
DISPLAY_NUMBER=${ZEPHRANE_BENCH_DISPLAY:-:97}
Xvfb "$DISPLAY_NUMBER" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
XVFB=$!
sleep 1
DISPLAY=$DISPLAY_NUMBER "$WORK/tray-stand-in" >"$WORK/tray.log" &
TRAY=$!
sleep 0.5

# ZEPHRANE_BENCH_FOREGROUND=1 keeps the window on show, for comparison.
START=--background
[ -z "${ZEPHRANE_BENCH_FOREGROUND:-}" ] || START=
# A fresh home: settings default (agent on), nothing of the user's touched.
mkdir -p "$WORK/home"
HOME="$WORK/home" XDG_CONFIG_HOME="$WORK/home/.config" XDG_RUNTIME_DIR="$WORK" DISPLAY=$DISPLAY_NUMBER \
    QT_QPA_PLATFORM=xcb "$BIN" $START >"$WORK/app.log" 2>&1 &
APP=$!
sleep "$SECONDS_RUN" &
SLEEP=$!

# Start-up is not the idle cost: counted from 5 s in, when the window is loaded and hidden.
# ZEPHRANE_BENCH_POPUP=1 clicks the docked icon at 4 s, so the popup is measured open (needs xdotool).
if [ -n "${ZEPHRANE_BENCH_POPUP:-}" ]; then
    sleep 4
    ICON=$(awk '/dock request/ { id = $3 } END { print id }' "$WORK/tray.log")
    DISPLAY=$DISPLAY_NUMBER xdotool mousemove --window "$ICON" 8 8 click 1
    sleep 1
else
    sleep 5
fi
ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }
# Summed over every thread: the process's own line counts only the main one.
switches() { cat /proc/$1/task/*/status | awk '/^voluntary_ctxt_switches/{v+=$2} /^nonvoluntary_ctxt_switches/{n+=$2} END{print v, n}'; }
kill -0 $APP || { echo "zephrane did not stay up:"; cat "$WORK/app.log"; exit 1; }
A0=$(ticks $APP); set -- $(switches $APP); AV0=$1; AN0=$2
S0=$(ticks $SLEEP); set -- $(switches $SLEEP); SV0=$1; SN0=$2
sleep $((SECONDS_RUN - 6))
A1=$(ticks $APP); set -- $(switches $APP); AV1=$1; AN1=$2
S1=$(ticks $SLEEP); set -- $(switches $SLEEP); SV1=$1; SN1=$2
HZ=$(getconf CLK_TCK)
THREADS=$(ls /proc/$APP/task | wc -l)
echo "tray stand-in: $(tr '\n' ' ' <"$WORK/tray.log")(a dock request means the tray item was made)"
printf '%-10s %12s %14s %14s\n' "" "CPU (ms)" "voluntary cs" "involuntary cs"
printf '%-10s %12d %14d %14d\n' zephrane $(( (A1 - A0) * 1000 / HZ )) $((AV1 - AV0)) $((AN1 - AN0))
printf '%-10s %12d %14d %14d\n' sleep $(( (S1 - S0) * 1000 / HZ )) $((SV1 - SV0)) $((SN1 - SN0))
echo "over $((SECONDS_RUN - 6)) s after start-up; zephrane has $THREADS threads${ZEPHRANE_BENCH_POPUP:+; popup open}"
