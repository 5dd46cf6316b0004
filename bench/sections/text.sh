# SPDX-License-Identifier: Apache-2.0
# 100 MB of ASCII text in one PDF.
make_set text text
export text="$inputs/text"

begin "100 MB of ASCII text"
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$text/long.txt"'
candidate "folioforge, a quarter of it" '"$cli" --quiet --flush never --merge "$out" "$text/quarter.txt"'
candidate "texttopdf" \
    'CHARSET=utf-8 /usr/lib/cups/filter/texttopdf 1 bench text 1 "" "$text/long.txt" >"$out"'
ROUNDS_BEFORE=$ROUNDS
run_all
# A minute and a half a run: once is enough for a limit of 30.
rm -rf "$scratch/candidates"/*
ROUNDS=1
candidate "enscript and ps2pdf" 'enscript -q -B -p - "$text/long.txt" | ps2pdf - "$out"'
run_all
ROUNDS=$ROUNDS_BEFORE
limit "wall time on two cores, at most 1.2 s" "$(best wall folioforge)" at-most 1.2 " s"
limit "processor time, at most 3 s" "$(best cpu folioforge)" at-most 3 " s"
limit "texttopdf's wall time beside ours, at least 5" \
    "$(beside wall texttopdf folioforge)" at-least 5
limit "enscript and ps2pdf's wall time beside ours, at least 30" \
    "$(beside wall "enscript and ps2pdf" folioforge)" at-least 30
limit "output beside enscript and ps2pdf's, at most 1" \
    "$(beside size folioforge "enscript and ps2pdf")" at-most 1
limit "processor time beside four times that of a quarter, linear" \
    "$(ratio "$(best cpu folioforge)" "$(ratio "$(best cpu "folioforge, a quarter of it")" 0.25)")" at-most 1.2
limit "peak memory beside the file, under 5 times" \
    "$(ratio "$(best memory folioforge)" 100000)" at-most 5
