# SPDX-License-Identifier: Apache-2.0
# Pictures; sourced by inputs.sh.

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
        name=screen$(printf %03d $i).png
        case $((i % 5)) in
        3) screenshot "PNG8:$name" xc:#dfe8f5 ;;
        4) screenshot "PNG32:$name" xc:none -fill '#00000060' -draw 'rectangle 20,20 1900,1060' ;;
        *) screenshot "PNG24:$name" gradient:#dfe8f5-#8fa8cc ;;
        esac
        i=$((i + 1))
    done
}

# 30 screenshots of 1920 × 1080 in formats that no PDF takes as they are: ten BMP, ten GIF and ten
# TGA, half of which are packed.
other_pictures() {
    i=0
    while [ $i -lt 30 ]; do
        name=screen$(printf %02d $i)
        case $((i % 6)) in
        0 | 3) screenshot "BMP3:$name.bmp" gradient:#dfe8f5-#8fa8cc ;;
        1 | 4) screenshot "GIF:$name.gif" xc:#dfe8f5 ;;
        2) screenshot "TGA:$name.tga" xc:#dfe8f5 ;;
        5) screenshot "TGA:$name.tga" xc:#dfe8f5 -compress RLE ;;
        esac
        i=$((i + 1))
    done
}

# A window with text and a photo on a ground, the number $i of its set.
screenshot() { # FORM:NAME GROUND...
    to=$folder/${1#*:}
    form=${1%%:*}
    shift
    alpha=off
    [ "$form" != PNG32 ] || alpha=on
    x=$((40 + i * 37 % 600))
    y=$((40 + i * 53 % 300))
    convert -seed "$i" -size 1920x1080 "$@" \
        -fill white -stroke '#9aa7b8' \
        -draw "roundrectangle $x,$y $((x + 1100)),$((y + 640)) 12,12" \
        -stroke none -fill '#383838' -draw "rectangle $x,$y $((x + 1100)),$((y + 58))" \
        -fill '#20242a' -font Liberation-Sans -pointsize 18 \
        -annotate "+$((x + 30))+$((y + 110))" "$(words "$i" 1300)" \
        \( -size 480x360 plasma:fractal -attenuate 0.1 +noise Gaussian \) \
        -geometry "+$((x + 560))+$((y + 250))" -composite -alpha $alpha -depth 8 "$form:$to"
}

# The same screenshots laid on white, for img2pdf, which refuses transparency.
opaque_screenshots() {
    cp "$inputs"/screenshots/*.png "$folder"
    for png in "$folder"/screen*[49].png; do
        convert "$png" -background white -flatten "PNG24:$png"
    done
}

# 40 scans of A4: 20 in colour at 150 per inch with LZW, 20 bilevel at 300 with Group 4. By turns
# clean text, text with the noise of a scanner, and photos.
scans() {
    i=0
    while [ $i -lt 40 ]; do
        set -- text noise photo
        shift $((i / 2 % 3))
        if [ $((i % 2)) -eq 0 ]; then
            scan "$1" lzw 150 -depth 8 -compress LZW
        else
            scan "$1" group4 300 -colorspace Gray -type Bilevel -compress Group4
        fi
        i=$((i + 1))
    done
}

# A page on a ground of its kind, the number $i of its set.
scan() { # text|noise|photo lzw|group4 DENSITY HOW...
    to=$folder/$1-$2-$(printf %02d "$i").tif
    kind=$1-$2
    density=$3
    size=$((density * 2480 / 300))x$((density * 3508 / 300))
    shift 3
    case $kind in
    noise-lzw | photo-lzw) set -- -attenuate 0.05 +noise Gaussian "$@" ;;
    noise-group4) set -- -attenuate 2 +noise Gaussian -threshold 60% "$@" ;;
    text-group4) set -- -threshold 60% "$@" ;;
    photo-group4) set -- -ordered-dither h8x8a "$@" ;;
    esac
    case $kind in
    photo-*) set -- -size 620x877 plasma:fractal -resize "$size!" "$@" ;;
    *) set -- -size "$size" xc:#f4efe4 -fill '#202020' \
        -font Liberation-Serif -pointsize $((density * 44 / 300)) \
        -annotate "+$((density * 250 / 300))+$density" "$(words $((i + 500)) 4200)" "$@" ;;
    esac
    convert -seed "$i" "$@" -alpha off -density "$density" -units PixelsPerInch "$to"
}

# Descriptions of pages for mutool create: a picture a page, each drawn as large as its page.
page_descriptions() { # FOLDER WIDTH HEIGHT FILE...
    rm -rf "$1"
    mkdir -p "$1"
    pages=$1 box="$2 $3" matrix="$2 0 0 $3 0 0"
    shift 3
    for file in "$@"; do
        printf '%%%%MediaBox 0 0 %s\n%%%%Image I %s\nq %s cm /I Do Q\n' "$box" "$file" "$matrix" \
            >"$pages/$(basename "$file").txt"
    done
}
