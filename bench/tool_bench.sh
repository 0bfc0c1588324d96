#!/bin/sh
# Times `kovrel decode` on one core over a large CAT048 recording, for each
# way it writes records, then on one thread against every core, beside the library's own decode speed on the same
# file (the yardstick: what the tool costs on top of decoding).
#
#   bench/tool_bench.sh [BUILD_DIR] [MEGABYTES]
#
# BUILD_DIR holds tools/kovrel/kovrel and bench/kovrel_make_recording and
# bench/kovrel_decode_rate (default build-bench); the recording (default 56
# MB) is made once and kept there. Each run is timed three times and the
# best is shown; records go to /dev/null through the shell, so the tool
# formats them all.
set -eu

build=${1:-build-bench}
megabytes=${2:-56}
kovrel=$build/tools/kovrel/kovrel
recording=$build/bench/recording-048.ast

for program in "$kovrel" "$build/bench/kovrel_make_recording" "$build/bench/kovrel_decode_rate"; do
    if [ ! -x "$program" ]; then
        echo "tool_bench.sh: $program is missing; build the tool and the benchmarks first" >&2
        exit 1
    fi
done
if [ ! -s "$recording" ]; then
    "$build/bench/kovrel_make_recording" "$recording" "$megabytes"
fi

# One core: the same for the tool and the yardstick.
pin=""
if command -v taskset >/dev/null 2>&1 && taskset -c 0 true 2>/dev/null; then
    pin="taskset -c 0"
fi

octets=$(stat -c %s "$recording")
records=$($kovrel decode --stats "$recording" 2>&1 >/dev/null | awk '$1 == "records" { print $2 }')
if [ -z "$records" ] || [ "$records" -eq 0 ]; then
    echo "tool_bench.sh: no record decoded from $recording" >&2
    exit 1
fi

now() { date +%s%N; }

# best_of COMMAND...: the shortest of three runs, in seconds.
best_of() {
    best=""
    for _ in 1 2 3; do
        start=$(now)
        "$@" >/dev/null 2>&1
        end=$(now)
        elapsed=$((end - start))
        if [ -z "$best" ] || [ "$elapsed" -lt "$best" ]; then best=$elapsed; fi
    done
    awk -v ns="$best" 'BEGIN { printf "%.3f", ns / 1e9 }'
}

row() {
    label=$1
    seconds=$2
    awk -v label="$label" -v s="$seconds" -v r="$records" -v o="$octets" \
        'BEGIN { printf "  %-34s %8.3f %12.0f %9.1f\n", label, s, r / s, o / 1e6 / s }'
}

echo "kovrel decode on $recording: $(awk -v o="$octets" 'BEGIN { printf "%.1f", o / 1e6 }') MB, $records records${pin:+, one core}"
printf "  %-34s %8s %12s %9s\n" "" "seconds" "records/s" "MB/s"

# The yardstick reports its own time (decoding only, the file already read).
yardstick=""
for _ in 1 2 3; do
    s=$($pin "$build/bench/kovrel_decode_rate" "$recording" | sed -n 's/.* in \([0-9.]*\) s:.*/\1/p')
    if [ -z "$yardstick" ] || awk -v a="$s" -v b="$yardstick" 'BEGIN { exit !(a < b) }'; then yardstick=$s; fi
done
row "library decode (yardstick)" "$yardstick"

columns="block,offset,cat,uap,record,valid,sac,sic,tod,msgtype,track,mode3a,fl,sel_alt,callsign,icao,lat,lon"
columns="$columns,rho,theta,speed,heading,vx,vy,vrate"
paths="I048/040.rho,I048/130.srl.srl,I048/250.bds60.ias,I048/240.acid"

row "--stats (decode and count)" "$(best_of $pin "$kovrel" decode --stats "$recording")"
row "text" "$(best_of $pin "$kovrel" decode "$recording")"
row "--items" "$(best_of $pin "$kovrel" decode --items "$recording")"
row "--format json" "$(best_of $pin "$kovrel" decode --format json "$recording")"
row "--format csv" "$(best_of $pin "$kovrel" decode --format csv "$recording")"
# The HTML page embeds the first 100000 records (its default --html-limit)
# with their item texts and counts the rest; embedding every record costs
# the library's detail view of every item.
row "--format html" "$(best_of $pin "$kovrel" decode --format html "$recording")"
row "--format csv, 4 item paths more" "$(best_of $pin "$kovrel" decode --columns "$columns,$paths" "$recording")"

# Filtering: one --filter asks one record accessor per record. Against the
# rows above: counting alone, and text output with a filter that keeps every
# record (the recording is one sensor) or a few.
sacsic=$($kovrel decode --stats "$recording" 2>&1 >/dev/null |
    awk '$1 ~ /^CAT048$/ && $2 ~ /\// { print $2; exit }')
row "--stats --filter sacsic=$sacsic" "$(best_of $pin "$kovrel" decode --stats --filter "sacsic=$sacsic" "$recording")"
row "--stats --filter callsign=NONE" "$(best_of $pin "$kovrel" decode --stats --filter callsign=NONE "$recording")"
row "text --filter sacsic=$sacsic (all kept)" "$(best_of $pin "$kovrel" decode --filter "sacsic=$sacsic" "$recording")"
row "text --filter mode3a=7700 (few kept)" "$(best_of $pin "$kovrel" decode --filter mode3a=7700 "$recording")"

# All cores: the same outputs on 1 and on every core (no pinning), and the
# speed-up. Records still go through the shell to /dev/null, so they are
# formatted; -o /dev/null decodes and counts only.
cores=$(nproc 2>/dev/null || echo 1)
echo "threads: 1 against $cores (every core)"
for threads in 1 "$cores"; do
    row "--format json, --threads $threads" "$(best_of "$kovrel" decode --threads "$threads" --format json "$recording")"
    row "--format json -o /dev/null, --threads $threads" \
        "$(best_of "$kovrel" decode --threads "$threads" --format json -o /dev/null "$recording")"
    row "text, --threads $threads" "$(best_of "$kovrel" decode --threads "$threads" "$recording")"
done

# What one filter costs on decoding alone (-o /dev/null: nothing is
# formatted), kept to a fifth of the time without it: the filter reads the
# record's source, time and type once, and --stats counts with what it read.
for way in "--stats" "--format json"; do
    # shellcheck disable=SC2086
    plain=$(best_of $pin "$kovrel" decode $way -o /dev/null "$recording")
    # shellcheck disable=SC2086
    all=$(best_of $pin "$kovrel" decode $way -o /dev/null --filter "sacsic=$sacsic" "$recording")
    # shellcheck disable=SC2086
    few=$(best_of $pin "$kovrel" decode $way -o /dev/null --filter mode3a=7700 "$recording")
    row "$way -o /dev/null" "$plain"
    row "  --filter sacsic=$sacsic (all kept)" "$all"
    row "  --filter mode3a=7700 (few kept)" "$few"
    awk -v p="$plain" -v a="$all" -v f="$few" \
        'BEGIN { printf "  %-34s %7.2fx %7.2fx (all kept, few kept)\n", "  filter cost", a / p, f / p }'
done
