# SPDX-License-Identifier: Apache-2.0
# 40 TIFF scans in one PDF.
make_set scans scans
export scans="$inputs/scans"

begin "40 TIFF scans of A4, LZW colour at 150 per inch and Group 4 at 300, in one PDF"
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$scans"/*.tif'
candidate "img2pdf" 'img2pdf -o "$out" "$scans"/*.tif'
run_all
limit "img2pdf's wall time beside ours, at least 5" \
    "$(ratio "$(best wall img2pdf)" "$(best wall folioforge)")" at-least 5
