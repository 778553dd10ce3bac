#!/bin/sh
# Time from launch to the first frame on screen, under Xvfb: the program opening on the first-run
# flow (fresh home) and on Home (flow done), against Qt's own `qml` runner showing an empty window of
# the same size, in the same run. Launch is read from /proc/uptime just before the program starts;
# the first frame is the first line of Qt's render-loop log for a frame that drew something, stamped
# with the time since boot (10 ms steps). RUNS runs each (default 7); medians.
# Needs Xvfb, `qml` (package qml-qt6; ZEPHRANE_WITH_BENCH_TOOLS=1 scripts/install-deps) and a
# built `zephrane` (build/release unless ZEPHRANE_BIN says otherwise).
set -eu
cd "$(dirname "$0")/.."
RUNS=${1:-7}
BIN=${ZEPHRANE_BIN:-build/release/Sources/Zephrane/zephrane}
[ -x "$BIN" ] || scripts/build release zephrane
QML=/usr/lib/qt6/bin/qml
WORK=$(mktemp -d)
trap 'kill $XVFB 2>/dev/null || true; rm -rf "$WORK"' EXIT
DISPLAY_NUMBER=${ZEPHRANE_BENCH_DISPLAY:-:96}
Xvfb "$DISPLAY_NUMBER" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
XVFB=$!
sleep 1
printf 'import QtQuick\nWindow { width: 1120; height: 740; visible: true; color: "#202020" }\n' >"$WORK/empty.qml"

# One run: seconds from launch to the first frame that drew, or "none" when none came within 10 s.
first_frame() { # home-folder command...
    home=$1; shift
    mkdir -p "$home"
    start=$(cut -d' ' -f1 /proc/uptime)
    HOME="$home" XDG_CONFIG_HOME="$home/.config" DISPLAY=$DISPLAY_NUMBER QT_QPA_PLATFORM=xcb \
        QT_LOGGING_RULES="qt.scenegraph.time.renderloop=true" QT_MESSAGE_PATTERN="%{time boot} %{message}" \
        timeout 10 "$@" >"$WORK/log" 2>&1 &
    pid=$!
    for _ in $(seq 200); do
        grep -q "frame rendered in [1-9]\|swap=[1-9]" "$WORK/log" && break
        sleep 0.05
    done
    kill $pid 2>/dev/null || true
    wait $pid 2>/dev/null || true
    awk -v start="$start" '/frame rendered in [1-9]|swap=[1-9]/ { printf "%.3f\n", $1 - start; found = 1; exit }
                           END { if (!found) print "none" }' "$WORK/log"
}

median() { grep -v none | sort -n | awk '{ v[NR] = $1 } END { if (NR == 0) print "nan"; else print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

: >"$WORK/onboarding"; : >"$WORK/home"; : >"$WORK/qml"
for _ in $(seq "$RUNS"); do
    rm -rf "$WORK/fresh" "$WORK/done"
    first_frame "$WORK/fresh" "$BIN" >>"$WORK/onboarding"
    mkdir -p "$WORK/done/.config/Zephrane"
    printf '[General]\nonboardingDone=true\n' >"$WORK/done/.config/Zephrane/Zephrane.conf"
    first_frame "$WORK/done" "$BIN" >>"$WORK/home"
    first_frame "$WORK/fresh" "$QML" "$WORK/empty.qml" >>"$WORK/qml"
done
PEER=$(median <"$WORK/qml")
for case in onboarding home qml; do
    M=$(median <"$WORK/$case")
    echo "$case: median $M s, ratio to qml $(awk -v m="$M" -v p="$PEER" 'BEGIN { printf "%.2f", m / p }')" \
        "(runs: $(tr '\n' ' ' <"$WORK/$case"))"
done
