# SPDX-License-Identifier: Apache-2.0
# From the start of the program to its window on the screen, on an X server of its own: ours, a bare
# window of the toolkit that it stands on, and the message box of the X11 tools.
c++ -std=c++20 -O2 "$bench/firstframe.cpp" -o "$scratch/firstframe" -lxcb -lxcb-damage
# shellcheck disable=SC2046 # flags are words
c++ -std=c++20 -O2 "$bench/barewindow.cpp" -o "$scratch/barewindow" \
    $(pkg-config --cflags --libs Qt6Widgets)

# A home in which the program has run before: the first run opens the tutorial in a browser.
mkdir -p "$scratch/home/.config/Vesprin"
printf '[General]\nCustomizeOutputDir=%s\n' "$scratch" >"$scratch/home/.config/Vesprin/Folioforge.conf"

begin "The window on the screen"
candidate "folioforge" "$(dirname "$cli")/folioforge"
candidate "a bare window of Qt" "$scratch/barewindow"
candidate "xmessage" "xmessage 'A window with a label'"

starts=20
export starts
# One line a start: name, milliseconds.
env HOME="$scratch/home" XDG_CONFIG_HOME="$scratch/home/.config" QT_QPA_PLATFORM=xcb \
    xvfb-run -a -s "-screen 0 1600x1000x24 -noreset" dbus-run-session -- sh -eu -c '
    while [ "$starts" -gt 0 ]; do
        for script in "$scratch"/candidates/*.sh; do
            printf "%s\t" "$(cat "${script%.sh}.name")"
            eval "\"\$scratch/firstframe\" $(cat "$script")"
        done
        starts=$((starts - 1))
    done' >"$scratch/starts" 2>"$scratch/log" || {
    cat "$scratch/log" >&2
    failures=$((failures + 1))
}

# The NTH fastest start of NAME.
start_of() { # NAME NTH
    awk -F '\t' -v name="$1" '$1 == name { print $2 }' "$scratch/starts" | sort -n | sed -n "$2p"
}

echo "| | fastest ms | median ms | median beside ours |"
echo "|---|--:|--:|--:|"
for script in "$scratch"/candidates/*.sh; do
    name=$(cat "${script%.sh}.name")
    printf '| %s | %.0f | %.0f | %.2f × |\n' "$name" "$(start_of "$name" 1)" \
        "$(start_of "$name" $((starts / 2)))" \
        "$(ratio "$(start_of "$name" $((starts / 2)))" "$(start_of folioforge $((starts / 2)))")"
done
echo
limit "window shown beside a bare window of Qt, medians of $starts starts, at most 1.3" \
    "$(ratio "$(start_of folioforge $((starts / 2)))" "$(start_of "a bare window of Qt" $((starts / 2)))")" \
    at-most 1.3
limit "window shown, median of $starts starts, under 100 ms" \
    "$(start_of folioforge $((starts / 2)))" at-most 100 " ms"
