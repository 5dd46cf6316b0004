# SPDX-License-Identifier: Apache-2.0
# 30 pictures in formats that are decoded and compressed anew.
make_set pictures other_pictures
export pictures="$inputs/pictures"

begin "30 pictures of 1920 × 1080 in one PDF: BMP, GIF, TGA"
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$pictures"/*'
candidate "img2pdf" 'img2pdf -o "$out" "$pictures"/*'
run_all
limit "img2pdf's wall time beside ours, at least 6" \
    "$(beside wall img2pdf folioforge)" at-least 6
limit "output beside img2pdf's, at most 1" \
    "$(beside size folioforge img2pdf)" at-most 1
