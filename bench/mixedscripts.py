#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes text in twelve scripts, about BYTES of it, as FOLDER/mixed.txt and as a page of HTML.

    bench/mixedscripts.py FOLDER BYTES

The words are drawn letter by letter, so that no program that remembers words has an advantage, and
vary in script within their lines.
"""
import html
import random
import sys

PAGE = ('<meta charset=utf-8><style>@page{size:A4;margin:72pt}body{margin:0}pre{margin:0;'
        'white-space:pre-wrap;font:11pt "Liberation Sans"}</style><pre>')
ALPHABETS = ["abcdefghijklmnopqrstuvwxyzäöüéß", "абвгдежзийклмнопрстуфхцчшщъыьэюя",
             "αβγδεζηθικλμνξοπρστυφχψως", "ابتثجحخدذرزسشصضطظعغفقكلمنهوي",
             "אבגדהוזחטיכלמנסעפצקרשת"]
SYLLABLES = [("कखगघचछजटडतथदधनपफबभमयरलवशसह", ["", "ा", "ि", "ी", "ु", "े", "ो", "ं"]),
             ("কখগঘচছজটডতথদধনপফবভমযরলশসহ", ["", "া", "ি", "ী", "ু", "ে"]),
             ("கஙசஞடணதநபமயரலவழளறன", ["", "ா", "ி", "ீ", "ு", "ெ"]),
             ("กขคงจชซดตถทนบปผพฟมยรลวสหอ", ["", "า", "ิ", "ี", "ุ", "่", "้"])]
BLOCKS = [(0x4E00, 0x8FFF), (0x3041, 0x3093), (0xAC00, 0xD7A3)]


def words(draw):
    """A few words in one script."""
    script = draw.randrange(len(ALPHABETS) + len(SYLLABLES) + len(BLOCKS))
    made = []
    for _ in range(draw.randint(4, 12)):
        if script < len(ALPHABETS):
            made.append("".join(draw.choices(ALPHABETS[script], k=draw.randint(2, 10))))
        elif script < len(ALPHABETS) + len(SYLLABLES):
            letters, vowels = SYLLABLES[script - len(ALPHABETS)]
            made.append("".join(draw.choice(letters) + draw.choice(vowels)
                                for _ in range(draw.randint(1, 5))))
        else:
            first, last = BLOCKS[script - len(ALPHABETS) - len(SYLLABLES)]
            made.append("".join(chr(draw.randint(first, last))
                                for _ in range(draw.randint(1, 6))))
    return " ".join(made)


def main():
    folder, size = sys.argv[1], int(sys.argv[2])
    draw = random.Random(11)
    written = 0
    with open(f"{folder}/mixed.txt", "w", encoding="utf-8") as text, \
            open(f"{folder}/mixed.html", "w", encoding="utf-8") as page:
        page.write(PAGE)
        while written < size:
            line = " ".join(words(draw) for _ in range(draw.randint(1, 6))) + "\n"
            text.write(line)
            page.write(html.escape(line))
            written += len(line.encode())


main()
