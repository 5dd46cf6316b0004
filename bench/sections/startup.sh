# SPDX-License-Identifier: Apache-2.0
# How long the command line takes to say its version, and for a text of one line.
printf '\n## Start-up\n\n'
rm -f "$scratch/startup.csv"
echo "A note of one line." >"$scratch/line.txt"
hyperfine -N --warmup 5 --runs 40 --export-csv "$scratch/startup.csv" "$cli --version" \
    "$cli --quiet --flush never --overwrite always --merge $scratch/line.pdf $scratch/line.txt" \
    >"$scratch/log" 2>&1 || {
    cat "$scratch/log" >&2
    failures=$((failures + 1))
}
# Columns of hyperfine: command, mean, stddev, median, user, system, min, max.
milliseconds() { # ROW COLUMNS...
    awk -F , "NR == $1 + 1 { print ($2) * 1000 }" "$scratch/startup.csv" 2>/dev/null
}
echo "| | fastest ms | median ms | processor ms |"
echo "|---|--:|--:|--:|"
row=1
for name in "--version" "a text of one line"; do
    printf '| %s | %.1f | %.1f | %.1f |\n' "$name" "$(milliseconds $row '$7')" \
        "$(milliseconds $row '$4')" "$(milliseconds $row '$5 + $6')"
    row=$((row + 1))
done
echo
limit "folioforge-cli --version, fastest of 40, under 8 ms" "$(milliseconds 1 '$7')" at-most 8 " ms"
limit "a text of one line, fastest of 40, under 15 ms" "$(milliseconds 2 '$7')" at-most 15 " ms"
