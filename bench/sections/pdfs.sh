# SPDX-License-Identifier: Apache-2.0
# PDFs merged.
make_set reports reports
make_set book book
export reports="$inputs/reports" book="$inputs/book/book.pdf"

begin "60 PDFs of 20 pages in one PDF"
candidate "cat" 'cat "$reports"/*.pdf >"$out"'
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$reports"/*.pdf'
candidate "qpdf, loses bookmarks" 'qpdf --empty --pages "$reports"/*.pdf -- "$out"'
candidate "mutool merge, loses links" 'mutool merge -o "$out" "$reports"/*.pdf'
run_all
limit "qpdf's wall time beside ours, above 1" \
    "$(ratio "$(best wall "qpdf, loses bookmarks")" "$(best wall folioforge)")" at-least 1
limit "mutool merge's wall time beside ours, towards 1" \
    "$(ratio "$(best wall "mutool merge, loses links")" "$(best wall folioforge)")" at-least 0.8

begin "60 PDFs of 20 pages in one PDF with AES-256"
candidate "folioforge" \
    'FOLIOFORGE_USER_PASSWORD=quay "$cli" --quiet --flush never --merge "$out" "$reports"/*.pdf'
candidate "qpdf, loses bookmarks" \
    'qpdf --empty --pages "$reports"/*.pdf -- --encrypt quay quay 256 -- "$out"'
run_all
limit "qpdf's wall time beside ours, above 1" \
    "$(ratio "$(best wall "qpdf, loses bookmarks")" "$(best wall folioforge)")" at-least 1

begin "A text PDF of 2,000 pages merged with itself"
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$book" "$book"'
candidate "qpdf" 'qpdf --empty --pages "$book" "$book" -- "$out"'
run_all
limit "output beside qpdf's, at most 1" \
    "$(ratio "$(best size folioforge)" "$(best size qpdf)")" at-most 1
