# 100 PNG screenshots in one PDF.
make_set screenshots screenshots
export screenshots="$inputs/screenshots"

begin "100 PNG screenshots in one PDF"
candidate "folioforge" '"$cli" --quiet --flush never --merge "$out" "$screenshots"/*.png'
# img2pdf refuses transparency: it gets those pictures laid on white, outside of its time.
make_set screenshots-opaque opaque_screenshots
export opaque="$inputs/screenshots-opaque"
candidate "img2pdf, of opaque copies" 'img2pdf -o "$out" "$opaque"/*.png'
run_all
limit "img2pdf's wall time beside ours, at least 8" \
    "$(ratio "$(best wall "img2pdf, of opaque copies")" "$(best wall folioforge)")" at-least 8
limit "output beside img2pdf's, at most 1" \
    "$(ratio "$(best size folioforge)" "$(best size "img2pdf, of opaque copies")")" at-most 1
