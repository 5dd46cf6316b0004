# SPDX-License-Identifier: Apache-2.0
# 100 PNG screenshots in one PDF.
make_set screenshots screenshots
make_set screenshots-opaque opaque_screenshots
export screenshots="$inputs/screenshots" opaque="$inputs/screenshots-opaque"

# img2pdf refuses transparency: its user lays those pictures on white first.
begin "100 PNG screenshots in one PDF"
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$screenshots"/*.png'
candidate "convert and img2pdf" '
    cp "$screenshots"/*[!49].png "$dir"
    for png in "$screenshots"/*[49].png; do
        convert "$png" -background white -flatten "PNG24:$dir/${png##*/}"
    done
    img2pdf -o "$out" "$dir"/*.png
    rm "$dir"/*'
candidate "img2pdf, of opaque copies" 'img2pdf -o "$out" "$opaque"/*.png'
candidate "folioforge, of opaque copies" '"$cli" --quiet --flush never --merge "$out" "$opaque"/*.png'
run_all
limit "wall time of convert and img2pdf beside ours, at least 15" \
    "$(beside wall "convert and img2pdf" folioforge)" at-least 15
limit "wall time beside ours where all are opaque, at least 15" \
    "$(beside wall "img2pdf, of opaque copies" "folioforge, of opaque copies")" at-least 15
limit "output beside img2pdf's, at most 1" \
    "$(beside size "folioforge, of opaque copies" "img2pdf, of opaque copies")" at-most 1
