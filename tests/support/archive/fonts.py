# SPDX-License-Identifier: Apache-2.0
"""What is drawn of the fonts, held against the font programs by fontTools."""

import io
import re

from fontTools.cffLib import CFFFontSet
from fontTools.pens.basePen import NullPen
from fontTools.ttLib import TTFont

SECTION = re.compile(rb"begin(codespacerange|cidrange|cidchar|bfchar|bfrange)(.*?)end\1", re.S)
HEX = re.compile(rb"<([0-9A-Fa-f\s]*)>")


class CodeMap:
    """A CMap: how many bytes codes have, and what they stand for."""

    def __init__(self, data=None):
        self.ranges = [(2, 0, 0xFFFF)]
        self.cids = [(0, 0xFFFF, 0)]
        self.texts = {}
        if data is not None:
            self.ranges, self.cids = [], []
            self._read(data)

    def _read(self, data):
        for kind, body in SECTION.findall(data):
            values = [bytes.fromhex(v.decode()) for v in HEX.findall(body)]
            if kind == b"codespacerange":
                for low, high in zip(values[::2], values[1::2]):
                    self.ranges.append((len(low), int.from_bytes(low, "big"), int.from_bytes(high, "big")))
            elif kind == b"bfchar":
                for code, text in zip(values[::2], values[1::2]):
                    self.texts[int.from_bytes(code, "big")] = text.decode("utf-16-be")
            elif kind == b"cidrange":
                for low, high, cid in re.findall(rb"<(\w+)>\s*<(\w+)>\s*(\d+)", body):
                    self.cids.append((int(low, 16), int(high, 16), int(cid)))

    def codes(self, text):
        at = 0
        while at < len(text):
            for length, low, high in self.ranges:
                code = int.from_bytes(text[at:at + length], "big")
                if at + length <= len(text) and low <= code <= high:
                    break
            else:
                raise ValueError(f"no code at {text[at:at + 2].hex()}")
            yield code
            at += length

    def cid(self, code):
        for low, high, first in self.cids:
            if low <= code <= high:
                return first + code - low
        return None


class Font:
    """A composite font of the document."""

    def __init__(self, document, reference):
        self.document = document
        self.font = document.get(reference)
        self.own = document.get(document.get(self.font["/DescendantFonts"])[0])
        encoding = self.font["/Encoding"]
        self.encoding = CodeMap(None if encoding == "/Identity-H" else document.data(encoding))
        self.unicode = CodeMap(document.data(self.font["/ToUnicode"])) if "/ToUnicode" in self.font else None
        self.descriptor = document.get(self.own["/FontDescriptor"])
        self.widths = self._widths()
        self._open()

    def _widths(self):
        widths = {}
        array = self.document.get(self.own.get("/W", []))
        at = 0
        while at < len(array):
            first, second = array[at], self.document.get(array[at + 1])
            if isinstance(second, list):
                widths.update({first + i: width for i, width in enumerate(second)})
                at += 2
            else:
                widths.update({cid: array[at + 2] for cid in range(first, second + 1)})
                at += 3
        return widths

    def _open(self):
        if "/FontFile3" in self.descriptor:
            self.cff = CFFFontSet()
            self.cff.decompile(io.BytesIO(self.document.data(self.descriptor["/FontFile3"])), None)
            self.top = self.cff[0]
            self.names = self.top.charset
            return
        self.cff = None
        self.program = TTFont(io.BytesIO(self.document.data(self.descriptor["/FontFile2"])), lazy=True)
        self.scale = 1000 / self.program["head"].unitsPerEm
        gids = self.own["/CIDToGIDMap"]
        self.gids = None if gids == "/Identity" else self.document.data(gids)

    def glyph(self, cid):
        """The number of a glyph in the program; None where there is none."""
        if self.cff is None:
            if self.gids is None:
                gid = cid
            else:
                gid = int.from_bytes(self.gids[2 * cid:2 * cid + 2], "big")
            return gid if gid < self.program["maxp"].numGlyphs else None
        if hasattr(self.top, "ROS"):
            name = f"cid{cid:05d}" if cid else ".notdef"
            return self.names.index(name) if name in self.names else None
        return cid if cid < len(self.names) else None

    def program_width(self, gid):
        if self.cff is None:
            return self.program["hmtx"].metrics[self.program.getGlyphName(gid)][0] * self.scale
        name = self.names[gid]
        glyph = self.top.CharStrings[name]
        glyph.draw(NullPen())
        return glyph.width * self._scale_of(gid)

    def _scale_of(self, gid):
        """Of CFF outlines; where glyphs have dictionaries of their own, these scale them."""
        own = self.top.FDArray[self.top.FDSelect[gid]].rawDict if hasattr(self.top, "ROS") else {}
        top = self.top.rawDict.get("FontMatrix")
        scale = own["FontMatrix"][0] * (top[0] if top else 1) if "FontMatrix" in own else (top or [0.001])[0]
        return 1000 * scale

    def width(self, cid):
        return self.widths.get(cid, self.own.get("/DW", 1000))

    def faults(self, codes, part, level):
        """The rules that a font breaks of which these codes are drawn."""
        start = {1: "6.3", 2: "6.2.11", 3: "6.2.11"}[part]
        for code in codes:
            cid = self.encoding.cid(code)
            gid = self.glyph(cid)
            if gid is None:
                yield (f"{start}.5-1" if part == 1 else f"{start}.4.1-2"), f"no glyph for code {code:x}"
                continue
            if gid == 0 and part > 1:
                yield f"{start}.8-1", f"code {code:x} draws .notdef"
            if abs(self.program_width(gid) - self.width(cid)) > 1:
                yield (f"{start}.6-1" if part == 1 else f"{start}.5-1"), \
                    f"width of {code:x}: {self.width(cid)}, not {self.program_width(gid)}"
            text = self.unicode.texts.get(code) if self.unicode else None
            if level != "B" and not text:
                yield f"{start}.7.2-1", f"code {code:x} stands for no character"
            if level != "B" and text and any(c in text for c in "\0\ufeff\ufffe"):
                yield f"{start}.7.2-2", f"code {code:x} stands for {text!r}"
        yield from self._dictionary_faults(part, start)
        if part == 1:
            yield from self._set_faults()

    def _dictionary_faults(self, part, start):
        place = "3" if part == 1 else "4.1"
        if self.font["/Encoding"] != "/Identity-H":
            stream = self.document.data(self.font["/Encoding"])
            map_ = self.document.get(self.font["/Encoding"])
            info = self.document.get(map_["/CIDSystemInfo"])
            own = self.document.get(self.own["/CIDSystemInfo"])
            if info != own or b"/Ordering(Identity)" not in stream or b"/Registry(Adobe)" not in stream:
                yield f"{start}.3.1-1", "the CIDSystemInfo differ"
            if b"WMode" in stream or "/WMode" in map_:
                yield f"{start}.3.3-2", "it states a direction"
        if self.own["/Subtype"] == "/CIDFontType2" and "/CIDToGIDMap" not in self.own:
            yield f"{start}.3.2-1", "no CIDToGIDMap"
        if not {"/FontFile2", "/FontFile3"} & set(self.descriptor):
            yield f"{start}.{place}-1", "not embedded"
        for font in (self.font, self.own):
            if font.get("/Type") != "/Font" or "/BaseFont" not in font:
                yield f"{start}.2-1", "no font"

    def _set_faults(self):
        if "/CIDSet" not in self.descriptor:
            yield "6.3.5-3", "no CIDSet"
            return
        bits = self.document.data(self.descriptor["/CIDSet"])
        stated = {8 * i + bit for i, byte in enumerate(bits) for bit in range(8) if byte & 0x80 >> bit}
        if self.cff is None:
            there = {cid for cid in range(len(self.gids) // 2) if self.glyph(cid)} | {0}
        elif hasattr(self.top, "ROS"):
            there = {int(name[3:]) if name != ".notdef" else 0 for name in self.names}
        else:
            there = set(range(len(self.names)))
        if stated != there:
            yield "6.3.5-3", f"CIDSet states {sorted(stated ^ there)[:5]} otherwise"
