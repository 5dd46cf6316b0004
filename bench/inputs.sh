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

. "$bench/inputs/pictures.sh"
. "$bench/inputs/texts.sh"
. "$bench/inputs/pdfs.sh"
