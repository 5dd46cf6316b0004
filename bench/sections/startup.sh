# SPDX-License-Identifier: Apache-2.0
# How long the command line takes to say its version.
printf '\n## Start-up\n\n'
rm -f "$scratch/startup.csv"
hyperfine -N --warmup 5 --runs 40 --export-csv "$scratch/startup.csv" "$cli --version" \
    >"$scratch/log" 2>&1 || {
    cat "$scratch/log" >&2
    failures=$((failures + 1))
}
# Columns of hyperfine: command, mean, stddev, median, user, system, min, max.
milliseconds() { # COLUMNS...
    awk -F , "NR == 2 { print ($1) * 1000 }" "$scratch/startup.csv" 2>/dev/null
}
echo "Fastest $(milliseconds '$7') ms, median $(milliseconds '$4') ms, processor" \
    "$(milliseconds '$5 + $6') ms."
echo
limit "folioforge-cli --version, fastest of 40, under 20 ms" "$(milliseconds '$7')" at-most 20 " ms"
