#!/bin/sh
# The capacity of `kovrel decode udp://...`: datagrams per second over
# loopback that it takes without losing one, with the tool on one core and
# the sender on another. Rates double from 5000/s until datagrams are lost,
# then the rate half way back is tried; each rate runs SECONDS (default 2).
# A datagram counts as lost when the system dropped it (receive buffer
# full) or the tool had not taken it half a second after the last one was
# sent. The datagrams are those of the
# built-in sample (all its categories, 10 to 1400 octets).
#
#   bench/live_bench.sh [BUILD_DIR] [SECONDS] [MAX_RATE]
set -eu

build=${1:-build-bench}
seconds=${2:-2}
max_rate=${3:-1280000}
kovrel=$build/tools/kovrel/kovrel
send=$build/bench/kovrel_udp_send
for program in "$kovrel" "$send"; do
    if [ ! -x "$program" ]; then
        echo "live_bench.sh: $program is missing; build the tool and the benchmarks first" >&2
        exit 1
    fi
done

tool_pin="" send_pin=""
if command -v taskset >/dev/null 2>&1 && taskset -c 0 true 2>/dev/null; then
    tool_pin="taskset -c 0"
    if taskset -c 1 true 2>/dev/null; then send_pin="taskset -c 1"; fi
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# run RATE FORMAT: "SENT RECEIVED DROPPED" for one rate.
run() {
    rate=$1
    shift
    rm -f "$work/err"  # the port of the run before must not be read
    $tool_pin "$kovrel" decode udp://127.0.0.1:0 --stats "$@" 2>"$work/err" &
    pid=$!
    port=""
    for _ in $(seq 100); do
        port=$(sed -n 's/.*listening on udp:\/\/127.0.0.1:\([0-9]*\).*/\1/p' "$work/err" 2>/dev/null)
        [ -n "$port" ] && break
        sleep 0.05
    done
    if [ -z "$port" ]; then
        kill "$pid" 2>/dev/null || true
        echo "live_bench.sh: the tool did not start: $(cat "$work/err")" >&2
        exit 1
    fi
    sent=$($send_pin "$send" "$port" "$rate" "$seconds")
    sleep 0.5  # what is queued still gets decoded
    kill -TERM "$pid"
    wait "$pid" || true
    # The counts as text, or as JSON with --format json.
    received=$(awk '$1 == "packets" { print $2 }' "$work/err")
    [ -n "$received" ] || received=$(sed -n 's/.*"packets":{"read":\([0-9]*\).*/\1/p' "$work/err")
    dropped=$(sed -n 's/.* \([0-9]*\) datagrams dropped by the system.*/\1/p' "$work/err")
    echo "$sent ${received:-0} ${dropped:-0}"
}

echo "kovrel decode udp://127.0.0.1:PORT --stats, ${seconds} s per rate${tool_pin:+, tool on one core}"
printf "  %-24s %10s %10s %10s %10s\n" "output" "rate/s" "sent" "received" "dropped"
for output in "-o /dev/null" "--format json -o $work/out.json"; do
    best=0
    rate=5000
    between=""
    while [ "$rate" -le "$max_rate" ]; do
        # shellcheck disable=SC2086
        set -- $(run "$rate" $output)
        printf "  %-24s %10d %10d %10d %10d\n" "$(echo "$output" | sed "s|$work/||")" "$rate" "$1" "$2" "$3"
        lost=""
        if [ "$2" -lt "$1" ] || [ "$3" -gt 0 ]; then lost=1; fi
        [ -n "$lost" ] || best=$rate
        [ -z "$between" ] || break
        if [ -n "$lost" ]; then
            # Once more, half way between the last rate kept and this one.
            [ "$best" -gt 0 ] || break
            between=1
            rate=$((best * 3 / 2))
        else
            rate=$((rate * 2))
        fi
    done
    echo "  highest rate without loss ($(echo "$output" | sed "s|$work/||")): $best datagrams/s"
done
