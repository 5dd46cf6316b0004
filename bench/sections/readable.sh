# SPDX-License-Identifier: Apache-2.0
# The readable layout: 100 MB of ASCII beside the plain layout, 10 MB of mixed scripts beside
# programs that set text for people and in the plain layout.
make_set text text
make_set scripts scripts
export text="$inputs/text" scripts="$inputs/scripts"

begin "100 MB of ASCII text in the readable layout"
candidate "folioforge" \
    '"$cli" --quiet --flush never --text-layout readable --merge "$out" "$text/long.txt"'
candidate "folioforge, plain layout" \
    '"$cli" --quiet --flush never --merge "$out" "$text/long.txt"'
run_all
limit "processor time beside the plain layout's, at most 2" \
    "$(beside cpu folioforge "folioforge, plain layout")" at-most 2

begin "10 MB of text in twelve scripts, in the readable layout"
candidate "folioforge" \
    '"$cli" --quiet --flush never --text-layout readable --merge "$out" "$scripts/mixed.txt"'
candidate "folioforge, plain layout" '"$cli" --quiet --flush never --merge "$out" "$scripts/mixed.txt"'
ROUNDS_BEFORE=$ROUNDS
run_all
# Minutes a run: once is enough, and five of them are.
rm -rf "$scratch/candidates"/*
ROUNDS=1
peers=""
peer() { # NAME PROGRAM COMMAND
    if command -v "$2" >/dev/null 2>&1; then
        candidate "$1" "timeout -k 5 300 $3 || [ \$? -eq 124 ]"
        peers="$peers $2"
    else
        echo "$1 is not installed, and not measured."
        echo
    fi
}
peer "Chromium's headless print" chromium 'chromium --headless --no-sandbox --disable-gpu \
    --no-pdf-header-footer --user-data-dir="$dir/profile" --print-to-pdf="$out" \
    "file://$scripts/mixed.html"'
peer "LibreOffice" soffice 'soffice --headless "-env:UserInstallation=file://$dir/profile" \
    --infilter="Text (encoded):UTF8,LF,,," --convert-to pdf --outdir "$dir" "$scripts/mixed.txt"'
[ -z "$peers" ] || run_all
ROUNDS=$ROUNDS_BEFORE
echo "What takes 300 seconds was cut off there. The processor time of Chromium's own processes is"
echo "not seen, and the size of a peer's output is with that of its profile."
echo
limit "wall time of the plain layout, under 0.2 s" "$(best wall "folioforge, plain layout")" \
    at-most 0.2 " s"
for name in "Chromium's headless print" LibreOffice; do
    limit "$name's wall time beside ours, at least 10" \
        "$(beside wall "$name" folioforge)" at-least 10
done
