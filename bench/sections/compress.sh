# SPDX-License-Identifier: Apache-2.0
# The compression pass beside Ghostscript's pdfwrite at the same resolutions.
# A document of 50 photos at 300 per inch, one of 40 scanned pages, CCITT and JBIG2 by turns, and 10
# photos, one of 40 pages of text with 10 pictures between.
# Each photo is another cut: Ghostscript makes photos of equal pixels one.
compress_inputs() {
    photo=1
    while [ $photo -le 50 ]; do
        convert "$inputs/photos/photo$((photo % 8 + 1))-01.jpg" -roll +$((photo * 56))+$((photo * 24)) \
            -quality 90 "$folder/$(printf 'photo%02d.jpg' $photo)"
        photo=$((photo + 1))
    done
    img2pdf "$folder"/photo*.jpg -o "$folder/photos.pdf"
    page=1
    while [ $page -le 40 ]; do
        convert -size 2480x3508 xc:white -font Liberation-Serif -pointsize 46 -annotate +200+300 \
            "$(yes "Scanned page $page with a line of words that goes on" | head -n 48)" \
            -threshold 50% -density 300 -units PixelsPerInch -compress Group4 \
            "$folder/$(printf 'scan%02d.tif' $page)"
        page=$((page + 1))
    done
    img2pdf "$folder"/scan*.tif "$folder"/photo0*.jpg "$folder/photo10.jpg" -o "$folder/fax.pdf"
    mutool run "$bench/jbig2.js" "$folder/fax.pdf" "$folder/scans.pdf"
    words 3 260000 >"$folder/letter.txt"
    enscript -q -B -f Times-Roman12 -p - "$folder/letter.txt" | ps2pdf - "$folder/letter.pdf"
    mogrify -resize 1600x1200 "$folder"/photo*.jpg
    img2pdf --imgsize 150mmx112mm --pagesize A4 "$folder"/photo0*.jpg "$folder/photo10.jpg" \
        -o "$folder/pictures.pdf"
    qpdf --empty --collate=4 --pages "$folder/letter.pdf" 1-40 "$folder/pictures.pdf" -- \
        "$folder/office.pdf"
    rm "$folder"/scan*.tif "$folder"/photo*.jpg "$folder/fax.pdf" "$folder"/letter.* \
        "$folder/pictures.pdf"
}

make_set photos photos
make_set compress compress_inputs
export compressed="$inputs/compress"
c++ -std=c++20 -O2 "$bench/ssim.cpp" -o "$scratch/ssim"

# The structural similarity of four pages drawn at 100 per inch, 1 for equal ones.
similarity() { # ORIGINAL COPY
    for page in 1 5 20 50; do
        pdftoppm -gray -r 100 -f $page -l $page -singlefile "$1" "$scratch/original"
        pdftoppm -gray -r 100 -f $page -l $page -singlefile "$2" "$scratch/copy"
        "$scratch/ssim" "$scratch/original.pgm" "$scratch/copy.pgm"
    done | awk '{ sum += $1; n++ } END { if (n) printf "%.4f", sum / n }'
}

ghostscript() { # RESOLUTION
    echo "gs -q -dBATCH -dNOPAUSE -sDEVICE=pdfwrite -dPDFSETTINGS=/ebook" \
        "-dColorImageResolution=$1 -dGrayImageResolution=$1 -o \"\$out\" \"\$source\""
}

for document in photos scans office; do
    export source="$compressed/$document.pdf"
    for method in 150m 96m 72l; do
        case $document-$method in
        photos-*) part=6 ;;
        *) part=4 ;;
        esac
        begin "50 pages of $document compressed by $method"
        candidate "folioforge" \
            "\"\$cli\" --quiet --flush never --compress $method --merge \"\$out\" \"\$source\"; cp \"\$out\" \"\$scratch/ours.pdf\""
        candidate "Ghostscript" \
            "$(ghostscript "${method%?}"); cp \"\$out\" \"\$scratch/theirs.pdf\""
        run_all
        limit "Ghostscript's wall time beside ours, at least $part" \
            "$(beside wall Ghostscript folioforge)" at-least $part
        limit "output beside Ghostscript's, at most 1" \
            "$(beside size folioforge Ghostscript)" at-most 1
        limit "peak memory, under 80 MB" "$(ratio "$(best memory folioforge)" 1000)" at-most 80 " MB"
        ours=$(similarity "$source" "$scratch/ours.pdf")
        theirs=$(similarity "$source" "$scratch/theirs.pdf")
        limit "SSIM $ours beside Ghostscript's $theirs" "$(ratio "$ours" "$theirs")" at-least 1
    done
done
