# SPDX-License-Identifier: Apache-2.0
# PDFs merged: with few links and with many, and kinds of documents of which no peer drops a thing.
make_set few-links reports
make_set many-links linked
make_set no-links without_links
make_set small-objects small_objects
make_set object-streams object_streams
make_set large-streams large_streams
make_set book book
export book="$inputs/book/book.pdf"

merged() { # TITLE SET
    export merged="$inputs/$2"
    begin "$1 in one PDF"
    candidate "cat" 'cat "$merged"/*.pdf >"$out"'
    candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$merged"/*.pdf'
    candidate "qpdf" 'qpdf --empty --pages "$merged"/*.pdf -- "$out"'
    candidate "mutool merge" 'mutool merge -o "$out" "$merged"/*.pdf'
    run_all
}

# Our wall time beside that of a peer.
no_longer_than() { # LIMIT PEER
    limit "times the wall time of $2, at most $1" \
        "$(beside wall folioforge "$2")" at-most "$1"
}

merged "60 PDFs of 20 pages with 2,400 links" few-links
no_longer_than 0.8 qpdf
no_longer_than 1.2 "mutool merge"

begin "60 PDFs of 20 pages with 2,400 links in one PDF with AES-256"
export merged="$inputs/few-links"
candidate "folioforge" \
    'FOLIOFORGE_USER_PASSWORD=quay "$cli" --quiet --flush never --merge "$out" "$merged"/*.pdf'
candidate "qpdf" \
    'qpdf --empty --pages "$merged"/*.pdf -- --encrypt quay quay 256 -- "$out"'
run_all
no_longer_than 0.65 qpdf

merged "30 PDFs of 20 pages with 24,000 links" many-links
no_longer_than 0.9 qpdf

without_losses() { # TITLE SET
    merged "$@"
    no_longer_than 1 qpdf
    no_longer_than 1 "mutool merge"
}

without_losses "60 PDFs of 20 pages without links" no-links
without_losses "10 PDFs of 10,000 small dictionaries each" small-objects
without_losses "10 PDFs of 10,000 small dictionaries each, in object streams," object-streams
without_losses "5 PDFs of 20 streams of 2 MB each" large-streams

begin "A text PDF of 2,000 pages merged with itself"
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$book" "$book"'
candidate "qpdf" 'qpdf --empty --pages "$book" "$book" -- "$out"'
candidate "mutool merge" 'mutool merge -o "$out" "$book" "$book"'
run_all
no_longer_than 1 qpdf
limit "output beside qpdf's, at most 1" \
    "$(beside size folioforge qpdf)" at-most 1
