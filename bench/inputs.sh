# SPDX-License-Identifier: Apache-2.0
# Makes the inputs of the measurements in "$inputs", each set once; sourced by bench/run.
# Everything is drawn from fixed seeds: the same inputs on every machine.

# Calls a function that fills "$folder", unless an earlier call finished it.
make_set() { # NAME FUNCTION
    folder=$inputs/$1
    [ -e "$folder/.complete" ] || {
        echo "bench: making $1" >&2
        rm -rf "$folder"
        mkdir -p "$folder"
        "$2"
        touch "$folder/.complete"
    }
}

# 200 photos of 12 megapixels and about 2.3 MB: eight pictures, each in 25 files that differ by a
# comment segment after the first two bytes.
photos() {
    for seed in 1 2 3 4 5 6 7 8; do
        base=$folder/base.jpg
        convert -seed $seed -size 1000x750 plasma:fractal -resize 4000x3000! \
            -attenuate 0.25 +noise Gaussian -density 300 -units PixelsPerInch \
            -sampling-factor 4:2:0 -quality 90 "$base"
        copy=1
        while [ $copy -le 25 ]; do
            {
                head -c 2 "$base"
                printf '\377\376\000\014photo %d %02d' $seed $copy
                tail -c +3 "$base"
            } >"$folder/$(printf 'photo%d-%02d.jpg' $seed $copy)"
            copy=$((copy + 1))
        done
        rm "$base"
    done
}

# 100 screenshots of 1920 × 1080: 60 in RGB, 20 with a palette, 20 with a transparent shadow.
screenshots() {
    i=0
    while [ $i -lt 100 ]; do
        case $((i % 5)) in
        3) screenshot PNG8 xc:#dfe8f5 ;;
        4) screenshot PNG32 xc:none -fill '#00000060' -draw 'rectangle 20,20 1900,1060' ;;
        *) screenshot PNG24 gradient:#dfe8f5-#8fa8cc ;;
        esac
        i=$((i + 1))
    done
}

# A window with text and a photo on a ground, the number $i of its set.
screenshot() { # FORM GROUND...
    form=$1
    shift
    x=$((40 + i * 37 % 600))
    y=$((40 + i * 53 % 300))
    convert -seed "$i" -size 1920x1080 "$@" \
        -fill white -stroke '#9aa7b8' \
        -draw "roundrectangle $x,$y $((x + 1100)),$((y + 640)) 12,12" \
        -stroke none -fill '#383838' -draw "rectangle $x,$y $((x + 1100)),$((y + 58))" \
        -fill '#20242a' -font Liberation-Sans -pointsize 18 \
        -annotate "+$((x + 30))+$((y + 110))" "$(words "$i" 1300)" \
        \( -size 480x360 plasma:fractal -attenuate 0.1 +noise Gaussian \) \
        -geometry "+$((x + 560))+$((y + 250))" -composite -depth 8 \
        "$form:$folder/screen$(printf %03d "$i").png"
}

# The same screenshots laid on white, for img2pdf, which refuses transparency.
opaque_screenshots() {
    cp "$inputs"/screenshots/*.png "$folder"
    for png in "$folder"/screen*[49].png; do
        convert "$png" -background white -flatten "PNG24:$png"
    done
}

# 40 scans of A4: 20 in colour at 150 per inch with LZW, 20 bilevel at 300 with Group 4.
scans() {
    i=0
    while [ $i -lt 40 ]; do
        if [ $((i % 2)) -eq 0 ]; then
            scan 150 -attenuate 0.05 +noise Gaussian -depth 8 -compress LZW
        else
            scan 300 -colorspace Gray -threshold 60% -type Bilevel -compress Group4
        fi
        i=$((i + 1))
    done
}

scan() { # DENSITY HOW...
    density=$1
    shift
    convert -seed "$i" -size $((density * 2480 / 300))x$((density * 3508 / 300)) xc:#f4efe4 \
        -fill '#202020' -font Liberation-Serif -pointsize $((density * 44 / 300)) \
        -annotate +$((density * 250 / 300))+$((density * 300 / 300)) "$(words $((i + 500)) 4200)" \
        "$@" -alpha off -density "$density" -units PixelsPerInch \
        "$folder/scan$(printf %02d "$i").tif"
}

# About BYTES bytes of ASCII words in lines of up to 90 characters, drawn from SEED.
words() { # SEED BYTES
    awk -v seed="$1" -v bytes="$2" 'BEGIN {
        n = split("the harbour lamp keeps its light over slow water while each ship that comes " \
            "from far away brings letters pictures and papers which somebody sorts binds files " \
            "and finds again years later 1742 times under one roof of slate and oak", word, " ")
        srand(seed)
        while (size < bytes) {
            line = ""
            while (length(line) < 80)
                line = line word[1 + int(rand() * n)] " "
            print line
            size += length(line) + 1
        }
    }'
}

# Real prose in lines of up to 79 characters, over and over: the licences that every Debian holds,
# without their blank lines, which only we leave out. They repeat after 200 KB, which no program
# sees: each compresses a page alone.
text() {
    find /usr/share/common-licenses -type f | LC_ALL=C sort | xargs cat |
        LC_ALL=C tr -cd '\n -~' | grep '[^ ]' >"$folder/once.txt"
    yes "$folder/once.txt" | xargs cat 2>/dev/null | head -c 100000000 >"$folder/long.txt"
    rm "$folder/once.txt"
    head -c 25000000 "$folder/long.txt" >"$folder/quarter.txt"
}

# 10 MB of words in twelve scripts.
scripts() {
    python3 "$bench/mixedscripts.py" "$folder" 10000000
}

small_texts() {
    i=0
    while [ $i -lt 1000 ]; do
        words $i 940 >"$folder/note$(printf %04d $i).txt"
        i=$((i + 1))
    done
}

# 60 PDFs of 20 pages and about 1.5 MB, with a photo a page, links and bookmarks.
reports() {
    i=0
    while [ $i -lt 60 ]; do
        convert -seed $i -size 300x225 plasma:fractal -resize 1000x750! -attenuate 0.1 \
            +noise Gaussian -quality 80 "$folder/photo.jpg"
        mutool run "$bench/report.js" "$folder/photo.jpg" "$folder/report$(printf %02d $i).pdf" 20
        i=$((i + 1))
    done
    rm "$folder/photo.jpg"
}

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
