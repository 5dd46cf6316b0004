# SPDX-License-Identifier: Apache-2.0
# PDFs of several kinds; sourced by inputs.sh.

# 60 PDFs of 20 pages and about 1.5 MB: on each page text, a photo, a bookmark and two links, 2,400
# links in all.
reports() {
    small_photo
    python3 "$bench/documents.py" "$folder" 60 "photo=$folder/photo.jpg" links=2 bookmark
    rm "$folder/photo.jpg"
}

# The same without bookmarks and links.
without_links() {
    small_photo
    python3 "$bench/documents.py" "$folder" 60 "photo=$folder/photo.jpg"
    rm "$folder/photo.jpg"
}

small_photo() {
    convert -seed 5 -size 300x225 plasma:fractal -resize 1000x750! -attenuate 0.1 \
        +noise Gaussian -quality 80 "$folder/photo.jpg"
}

# 30 PDFs of 20 pages with 800 links each, 24,000 in all.
linked() { python3 "$bench/documents.py" "$folder" 30 links=40; }

# 10 PDFs of 10,000 small dictionaries each.
small_objects() { python3 "$bench/documents.py" "$folder" 10 objects=500; }

# The same, with their objects in streams.
object_streams() {
    for pdf in "$inputs"/small-objects/*.pdf; do
        qpdf --object-streams=generate "$pdf" "$folder/${pdf##*/}"
    done
}

# 5 PDFs of 20 images of 2 MB each, which cannot be compressed.
large_streams() { python3 "$bench/documents.py" "$folder" 5 stream=2000000; }

# 60 PDFs of 20 pages and about 2,000 structure elements, and the same without their tags.
tagged() {
    mkdir "$folder/with" "$folder/without"
    i=10
    while [ $i -lt 70 ]; do
        python3 "$bench/tagged.py" $i "$folder/with/$i.pdf" "$folder/without/$i.pdf"
        i=$((i + 1))
    done
}

# One PDF of 2,000 pages of text.
book() {
    words 7 2800000 >"$folder/book.txt"
    enscript -q -B -f Courier10 -L 15 -p - "$folder/book.txt" | ps2pdf - "$folder/all.pdf"
    qpdf "$folder/all.pdf" --pages . 1-2000 -- "$folder/book.pdf"
    rm "$folder/book.txt" "$folder/all.pdf"
}
