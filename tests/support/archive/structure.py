# SPDX-License-Identifier: Apache-2.0
"""What level A asks beside: tags, their kinds, languages, and how private characters are read."""

import re

from document import text_of

STANDARD = set("""/Document /Part /Art /Sect /Div /BlockQuote /Caption /TOC /TOCI /Index /NonStruct /Private /P /H
/H1 /H2 /H3 /H4 /H5 /H6 /L /LI /Lbl /LBody /Table /TR /TH /TD /THead /TBody /TFoot /Span /Quote /Note /Reference
/BibEntry /Code /Link /Annot /Ruby /RB /RT /RP /Warichu /WT /WP /Figure /Formula /Form""".split())
LANGUAGE = r"([a-zA-Z]{1,8}(-[a-zA-Z0-9]{1,8})*)?"


def faults(document):
    marks = document.at(document.root, "/MarkInfo") or {}
    if marks.get("/Marked") is not True:
        yield "6.7.2.2-1", "not marked"
    tree = document.at(document.root, "/StructTreeRoot")
    if tree is None:
        yield "6.7.3.3-1", "no structure"
        return
    roles = document.get(tree.get("/RoleMap")) or {}
    for reference, value in document.dictionaries():
        if "/Lang" in value and not re.fullmatch(LANGUAGE, text_of(document.get(value["/Lang"]))):
            yield "6.7.4-1", f"{reference}: {value['/Lang']}"
        if value.get("/Type") == "/StructElem":
            kind, seen = value["/S"], set()
            while kind not in STANDARD and kind in roles and kind not in seen:
                seen.add(kind)
                kind = document.get(roles[kind])
            if kind not in STANDARD:
                yield "6.7.3.4-1", f"{reference}: {value['/S']}"
    for role in roles:
        if role in STANDARD:
            yield "6.7.3.4-3", role


def is_private(text):
    return any(0xE000 <= ord(c) <= 0xF8FF or ord(c) >= 0xF0000 for c in text or "")
