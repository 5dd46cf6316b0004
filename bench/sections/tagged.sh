# SPDX-License-Identifier: Apache-2.0
# Tagged PDFs merged. What the tags cost stands beside what libqpdf takes for that many objects: to
# read the merged PDF and to write it again.
make_set tagged tagged
export tagged="$inputs/tagged"

begin "60 tagged PDFs of 20 pages and 2,000 structure elements in one PDF"
"$cli" --quiet --flush never --overwrite always --merge "$scratch/tagged.pdf" "$tagged"/with/*.pdf
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$tagged"/with/*.pdf'
candidate "folioforge, the same without tags" \
    '"$cli" --quiet --flush never --merge "$out" "$tagged"/without/*.pdf'
candidate "qpdf, reads and writes what we merged" \
    'qpdf --object-streams=generate "$scratch/tagged.pdf" "$out"'
candidate "qpdf, loses tags" 'qpdf --empty --pages "$tagged"/with/*.pdf -- "$out"'
candidate "mutool merge, loses tags" 'mutool merge -o "$out" "$tagged"/with/*.pdf'
run_all
limit "processor time beside that without tags, at most 1.5" \
    "$(beside cpu folioforge "folioforge, the same without tags")" at-most 1.5
limit "processor time beside qpdf's for reading and writing as many objects, at most 2" \
    "$(beside cpu folioforge "qpdf, reads and writes what we merged")" at-most 2
rm "$scratch/tagged.pdf"
