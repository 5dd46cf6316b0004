# SPDX-License-Identifier: Apache-2.0
# 40 TIFF scans in one PDF, then those of each kind alone.
make_set scans-of-kinds scans
export scans="$inputs/scans-of-kinds"

scanned() { # TITLE KIND       the files whose names begin so
    export beginning="$2"
    page_descriptions "$scratch/scan-pages" 595 842 "$scans/$beginning"*.tif
    begin "$1 in one PDF"
    candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$scans/$beginning"*.tif'
    candidate "mutool create" 'mutool create -o "$out" "$scratch"/scan-pages/*.txt'
    candidate "img2pdf" 'img2pdf -o "$out" "$scans/$beginning"*.tif'
    run_all
    limit "img2pdf's wall time beside ours, at least 5" \
        "$(beside wall img2pdf folioforge)" at-least 5
    limit "mutool create's wall time beside ours, at least 4" \
        "$(beside wall "mutool create" folioforge)" at-least 4
}

scanned "40 TIFF scans of A4, LZW colour at 150 per inch and Group 4 at 300" ""
for kind in text noise photo; do
    scanned "The scans of kind \"$kind\" in colour, LZW," $kind-lzw
    scanned "The scans of kind \"$kind\", Group 4," $kind-group4
done
