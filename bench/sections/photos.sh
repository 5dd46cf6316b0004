# SPDX-License-Identifier: Apache-2.0
# 200 photos in one PDF, plain, flushed and encrypted; 40 photos, a PDF each.
make_set photos photos
export photos="$inputs/photos"

page_descriptions "$scratch/pages" 960 720 "$photos"/*.jpg

begin "200 photos of 12 megapixels in one PDF"
candidate "cat" 'cat "$photos"/*.jpg >"$out"'
candidate "cat, sync" 'cat "$photos"/*.jpg >"$out"; sync "$out"'
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$photos"/*.jpg'
candidate "folioforge, flushed" '"$cli" --quiet --merge "$out" "$photos"/*.jpg'
candidate "folioforge, a quarter of them" '"$cli" --quiet --flush never --merge "$out" "$photos"/photo[12]-*.jpg'
candidate "mutool create" 'mutool create -o "$out" "$scratch"/pages/*.txt'
candidate "img2pdf" 'img2pdf -o "$out" "$photos"/*.jpg'
run_all
limit "times the wall time of cat, at most 1.15" \
    "$(beside wall folioforge cat)" at-most 1.15
limit "flushed, times the wall time of cat and sync, at most 1.6" \
    "$(beside wall "folioforge, flushed" "cat, sync")" at-most 1.6
limit "mutool create's wall time beside ours, above 1" \
    "$(beside wall "mutool create" folioforge)" at-least 1
limit "img2pdf's wall time beside ours, above 1" \
    "$(beside wall img2pdf folioforge)" at-least 1
limit "peak memory, under 60 MB" "$(ratio "$(best memory folioforge)" 1000)" at-most 60 " MB"
limit "peak memory that each photo after the fiftieth adds, flat: at most 0.05 MB" \
    "$(awk -v all="$(best memory folioforge)" -v quarter="$(best memory "folioforge, a quarter of them")" \
        'BEGIN { if (all != "" && quarter != "") print (all - quarter) / 150 / 1e3 }')" at-most 0.05 " MB"

begin "200 photos in one PDF with AES-256"
candidate "folioforge" \
    'FOLIOFORGE_USER_PASSWORD=quay "$cli" --quiet --flush never --merge "$out" "$photos"/*.jpg'
candidate "mutool create" 'mutool create -o "$out" \
    -O encrypt=aes-256,user-password=quay,owner-password=quay "$scratch"/pages/*.txt'
run_all
limit "mutool create's wall time beside ours, at least 1.5" \
    "$(beside wall "mutool create" folioforge)" at-least 1.5

begin "40 photos, a PDF each"
candidate "cp" 'cp "$photos"/photo[12]-[01]*.jpg "$photos"/photo[12]-20.jpg "$dir"'
candidate "folioforge" '"$cli" --quiet --flush never --output-folder "$dir" \
    "$photos"/photo[12]-[01]*.jpg "$photos"/photo[12]-20.jpg'
run_all
limit "times the wall time of cp, at most 2" \
    "$(beside wall folioforge cp)" at-most 2
