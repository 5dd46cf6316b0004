# SPDX-License-Identifier: Apache-2.0
# What --verify costs beside the writing: 200 photos, 60 PDFs, 100 MB of text. No peer verifies.
make_set photos photos
make_set few-links reports
make_set text text
export photos="$inputs/photos" reports="$inputs/few-links" text="$inputs/text"

# verifying TITLE INPUTS LIMIT: INPUTS merged with and without --verify; the difference is its cost.
verifying() {
    begin "$1, verified"
    candidate "folioforge" "\"\$cli\" --quiet --flush never --verify --merge \"\$out\" $2"
    candidate "folioforge, not verified" "\"\$cli\" --quiet --flush never --merge \"\$out\" $2"
    run_all
    limit "wall time beside that without, at most $3 times more" \
        "$(beside wall folioforge "folioforge, not verified")" at-most \
        "$(echo "$3" | awk '{ print 1 + $1 }')"
    limit "peak memory beside that without, bounded" \
        "$(beside memory folioforge "folioforge, not verified")" at-most 2
}

verifying "200 photos in one PDF" '"$photos"/*' 1.0
verifying "60 PDFs of 20 pages in one PDF" '"$reports"/*.pdf' 1.5
verifying "100 MB of ASCII text" '"$text/long.txt"' 1.5
