# SPDX-License-Identifier: Apache-2.0
# 1,000 text files of 1 KB, a PDF each, in one call.
make_set small-texts small_texts
export notes="$inputs/small-texts"

begin "1,000 text files of 1 KB, a PDF each"
candidate "folioforge" '"$cli" --quiet --flush never --output-folder "$dir" "$notes"/*.txt'
candidate "cp" 'cp "$notes"/*.txt "$dir"'
run_all
limit "times the wall time of cp, at most 1.5" \
    "$(beside wall folioforge cp)" at-most 1.5
limit "a file, under 2 ms" "$(best wall folioforge)" at-most 2 " ms"
