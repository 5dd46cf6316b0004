# SPDX-License-Identifier: Apache-2.0
# Texts; sourced by inputs.sh.

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
