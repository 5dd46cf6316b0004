# How long the command line takes to say its version.
printf '\n## Start-up\n\n'
rm -f "$scratch/startup.csv"
hyperfine -N --warmup 5 --runs 40 --export-csv "$scratch/startup.csv" "$cli --version" \
    >"$scratch/log" 2>&1 || {
    cat "$scratch/log" >&2
    failures=$((failures + 1))
}
limit "folioforge-cli --version, median, under 20 ms" \
    "$(awk -F , 'NR == 2 { print $4 * 1000 }' "$scratch/startup.csv" 2>/dev/null)" at-most 20 " ms"
