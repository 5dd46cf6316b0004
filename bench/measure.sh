# SPDX-License-Identifier: Apache-2.0
# Times candidates side by side; sourced by bench/run and bench/growth.
#
# A comparison is a title, candidates (a name and a shell command that writes "$out" or into the
# folder "$dir"), a run and the limits that hold between them. Candidates take turns, so that
# whatever else the machine does meets all of them alike; the fastest of each candidate's rounds
# counts, and the highest of its peak memory.

ROUNDS=${ROUNDS:-3}
failures=0
runs=0

describe_machine() {
    echo "$(nproc) × $(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1)," \
        "$(awk '/^MemTotal/ { printf "%.0f GB", $2 / 1e6 }' /proc/meminfo) memory," \
        "Linux $(uname -r), $(date -u +%Y-%m-%d). Fastest of $ROUNDS rounds."
}

# What is measured, and where: "$cli" is the program, made where it is missing, "$scratch" a folder,
# "$inputs" what the sets are made in.
prepare() {
    "$root/scripts/install-bench-deps"
    cli=${FOLIOFORGE_CLI:-$root/build/release/Folioforge.app/Contents/MacOS/folioforge-cli}
    if [ ! -x "$cli" ]; then
        (cd "$root" && cmake --preset release && cmake --build --preset release) >&2
    fi
    scratch=$root/build/bench
    inputs=$scratch/inputs
    rm -rf "$scratch/out"
    mkdir -p "$inputs" "$scratch/out"
    export cli scratch inputs
    c++ -std=c++20 -O2 -Wl,--as-needed "$bench/stopwatch.cpp" -o "$scratch/stopwatch"
}

# The end of a run: removes what was made, and fails where a candidate did.
finish() {
    rm -rf "$scratch/out.pdf" "$scratch/out"
    [ "$failures" -eq 0 ] || {
        echo "bench: $failures runs failed" >&2
        exit 1
    }
}

begin() { # TITLE
    printf '\n## %s\n\n' "$1"
    no_candidates
}

no_candidates() {
    rm -rf "$scratch/candidates" "$scratch/results"
    mkdir -p "$scratch/candidates"
    count=0
}

candidate() { # NAME COMMAND
    count=$((count + 1))
    file=$scratch/candidates/$(printf %02d $count)
    printf '%s\n' "$2" >"$file.sh"
    printf '%s\n' "$1" >"$file.name"
}

# Runs one candidate once and notes: name, wall and processor seconds, peak memory in KB, output
# bytes.
run_once() { # SCRIPT NAME
    out=$scratch/out.pdf
    runs=$((runs + 1))
    # A folder of its own: ext4 takes long to make files where some were removed in the last minutes.
    dir=$scratch/out/$runs
    export out dir
    # The output before goes to the disk first, so that every candidate follows equal work.
    sync
    rm -f "$out"
    mkdir "$dir"
    sync
    "$scratch/stopwatch" "$scratch/time" sh -eu "$1" >"$scratch/log" 2>&1 || {
        echo "bench: \"$2\" failed:" >&2
        cat "$scratch/log" >&2
        failures=$((failures + 1))
        return 0
    }
    bytes=$(du -scb "$out" "$dir" 2>/dev/null | tail -n 1 | cut -f 1)
    awk -v name="$2" -v bytes="$bytes" \
        '{ printf "%s\t%s\t%s\t%d\t%d\n", name, $1, $2, $3, bytes }' \
        "$scratch/time" >>"$scratch/results"
}

# Every candidate in turn, ROUNDS times.
run_rounds() {
    round=0
    while [ $round -lt "$ROUNDS" ]; do
        for script in "$scratch"/candidates/*.sh; do
            run_once "$script" "$(cat "${script%.sh}.name")"
        done
        round=$((round + 1))
    done
}

# Runs the candidates and prints their table, each beside "folioforge".
run_all() {
    run_rounds
    echo "| | wall s | processor s | peak MB | output MB | wall beside ours | processor beside ours |"
    echo "|---|--:|--:|--:|--:|--:|--:|"
    for script in "$scratch"/candidates/*.sh; do
        name=$(cat "${script%.sh}.name")
        [ -n "$(best wall "$name")" ] || continue
        printf '| %s | %.3f | %.3f | %.0f | %.1f | %.2f × | %.2f × |\n' "$name" \
            "$(best wall "$name")" "$(best cpu "$name")" \
            "$(awk -v x="$(best memory "$name")" 'BEGIN { print x / 1e3 }')" \
            "$(awk -v x="$(best size "$name")" 'BEGIN { print x / 1e6 }')" \
            "$(beside wall "$name" folioforge)" \
            "$(beside cpu "$name" folioforge)"
    done
    echo
}

best() { # wall|cpu|memory|size NAME
    awk -F '\t' -v what="$1" -v name="$2" '
        BEGIN { column["wall"] = 2; column["cpu"] = 3; column["memory"] = 4; column["size"] = 5 }
        $1 == name {
            x = $column[what]
            if (!n++ || (what == "memory" ? x > found : x < found)) found = x
        }
        END { if (n) print found }' "$scratch/results"
}

# A / B; empty where one of them was not measured.
ratio() { # A B
    awk -v a="$1" -v b="${2:-0}" 'BEGIN { if (a != "" && b > 0) print a / b }'
}

# What one candidate took beside what another did: wall, cpu, memory or size.
beside() { # COLUMN NAME NAME
    ratio "$(best "$1" "$2")" "$(best "$1" "$3")"
}

# Prints whether VALUE stands to LIMIT as TEXT says; TEXT names value and limit itself.
limit() { # TEXT VALUE at-most|at-least LIMIT UNIT
    awk -v text="$1" -v value="$2" -v how="$3" -v bound="$4" -v unit="${5:-}" 'BEGIN {
        if (value == "") { printf "- %s: not measured\n", text; exit }
        met = how == "at-most" ? value + 0 <= bound + 0 : value + 0 >= bound + 0
        printf "- %s: %.2f%s, %s\n", text, value, unit, met ? "met" : "**missed**"
    }'
}
