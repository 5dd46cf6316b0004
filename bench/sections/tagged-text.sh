# SPDX-License-Identifier: Apache-2.0
# What tags of our own cost: 100 MB of ASCII text in one PDF, tagged and not. No peer tags plain text.
make_set text text
export text="$inputs/text"

begin "100 MB of ASCII text, tagged"
candidate "folioforge" '"$cli" --quiet --flush never --tagged --merge "$out" "$text/long.txt"'
candidate "folioforge, without tags" '"$cli" --quiet --flush never --merge "$out" "$text/long.txt"'
run_all
limit "processor time beside that without tags, at most 1.6" \
    "$(beside cpu folioforge "folioforge, without tags")" at-most 1.6
limit "output beside that without tags, at most 1.3" \
    "$(beside size folioforge "folioforge, without tags")" at-most 1.3
limit "peak memory beside that without tags, flat" \
    "$(beside memory folioforge "folioforge, without tags")" at-most 1.1
