#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes PDFs of 20 pages of text, each of other words.

    bench/documents.py FOLDER COUNT [KIND...]

What a kind puts on each page beside the text, N of it where it says so:

    photo=FILE   a JPEG, a stream of its own
    links=N      links to other pages of the document
    bookmark     a bookmark to it
    objects=N    small dictionaries, as the properties of marked content
    stream=N     an image of so many bytes that cannot be compressed
"""

import random
import sys
import zlib

PAGES = 20
WORDS = "quay harbour ledger cargo tide anchor rope sail lantern pier gull crate tar keel mast".split()


class Document:
    def __init__(self, seed, kinds):
        self.random = random.Random(seed)
        self.seed, self.kinds = seed, kinds
        self.bodies = []

    def reserve(self):
        self.bodies.append(None)
        return len(self.bodies)

    def add(self, body, data=None):
        """A new object, a stream where there is data; gives its number."""
        number = self.reserve()
        self.put(number, body, data)
        return number

    def put(self, number, body, data=None):
        if data is None:
            self.bodies[number - 1] = f"<< {body} >>".encode()
        else:
            head = f"<< {body} /Length {len(data)} >>\nstream\n".encode()
            self.bodies[number - 1] = head + data + b"\nendstream"

    def text(self):
        """The content of a page: 45 lines, compressed as most programs do it."""
        lines = (" ".join(self.random.choices(WORDS, k=14)) for _ in range(45))
        shown = "".join(f"({line}) Tj T*\n" for line in lines)
        return f"BT /F 11 Tf 13 TL 60 780 Td\n{shown}ET\n"

    def page(self, index, pages):
        """Fills the page of this index."""
        content, xobjects, properties, links = self.text(), "", "", ""
        if photo := self.kinds.get("photo"):
            mark = bytes([0xFF, 0xFE, 0, 6]) + self.seed.to_bytes(2, "big") + index.to_bytes(2, "big")
            image = self.add("/Type /XObject /Subtype /Image /Width 1000 /Height 750 /BitsPerComponent 8 "
                             "/ColorSpace /DeviceRGB /Filter /DCTDecode", photo[:2] + mark + photo[2:])
            content += "q 200 0 0 150 300 40 cm /P Do Q\n"
            xobjects += f"/P {image} 0 R "
        if size := self.kinds.get("stream"):
            image = self.add(f"/Type /XObject /Subtype /Image /Width 1000 /Height {size // 1000} "
                             "/BitsPerComponent 8 /ColorSpace /DeviceGray /Filter /FlateDecode",
                             zlib.compress(self.random.randbytes(size // 1000 * 1000), 1))
            content += "q 200 0 0 150 60 40 cm /S Do Q\n"
            xobjects += f"/S {image} 0 R "
        for at in range(self.kinds.get("objects", 0)):
            one = self.add(f"/Kind /Mark /At {at} /Box [{at} {index} {at + 9} {index + 9}] /By (quay)")
            content += f"/Mark /M{at} BDC EMC\n"
            properties += f"/M{at} {one} 0 R "
        for at in range(self.kinds.get("links", 0)):
            box = f"[{60 + at % 8 * 60} {20 + at // 8 * 20} {110 + at % 8 * 60} {35 + at // 8 * 20}]"
            to = pages[(index + 1 + at) % PAGES]
            links += f"{self.add(f'/Type /Annot /Subtype /Link /Rect {box} /Dest [{to} 0 R /Fit]')} 0 R "
        stream = self.add("/Filter /FlateDecode", zlib.compress(content.encode()))
        self.put(pages[index], f"/Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents {stream} 0 R "
                 f"/Resources << /Font << /F 3 0 R >> /XObject << {xobjects}>> "
                 f"/Properties << {properties}>> >>" + (f" /Annots [{links}]" if links else ""))

    def bookmarks(self, pages):
        """A bookmark for each page; gives the number of their root."""
        root = self.reserve()
        items = [self.reserve() for _ in pages]
        for at, (item, page) in enumerate(zip(items, pages)):
            before = f"/Prev {items[at - 1]} 0 R" if at else ""
            after = f"/Next {items[at + 1]} 0 R" if at + 1 < PAGES else ""
            self.put(item, f"/Title (Page {at + 1}) /Parent {root} 0 R /Dest [{page} 0 R /Fit] {before} {after}")
        self.put(root, f"/Type /Outlines /First {items[0]} 0 R /Last {items[-1]} 0 R /Count {PAGES}")
        return root

    def write(self, path):
        catalog, tree, font = self.reserve(), self.reserve(), self.reserve()
        pages = [self.reserve() for _ in range(PAGES)]
        for index in range(PAGES):
            self.page(index, pages)
        outlines = f"/Outlines {self.bookmarks(pages)} 0 R" if "bookmark" in self.kinds else ""
        self.put(catalog, f"/Type /Catalog /Pages {tree} 0 R {outlines}")
        self.put(tree, f"/Type /Pages /Count {PAGES} /Kids [{' '.join(f'{page} 0 R' for page in pages)}]")
        self.put(font, "/Type /Font /Subtype /Type1 /BaseFont /Helvetica")
        self.save(path)

    def save(self, path):
        with open(path, "wb") as file:
            file.write(b"%PDF-1.5\n%\xe2\xe3\xcf\xd3\n")
            table = "0000000000 65535 f \n"
            for number, body in enumerate(self.bodies, 1):
                table += f"{file.tell():010} 00000 n \n"
                file.write(f"{number} 0 obj\n".encode() + body + b"\nendobj\n")
            place, size = file.tell(), len(self.bodies) + 1
            file.write(f"xref\n0 {size}\n{table}trailer << /Size {size} /Root 1 0 R >>\n"
                       f"startxref\n{place}\n%%EOF\n".encode())


def kind(word):
    name, _, value = word.partition("=")
    if name == "photo":
        with open(value, "rb") as file:
            return name, file.read()
    return name, int(value or 1)


def main():
    folder, count, *words = sys.argv[1:]
    kinds = dict(map(kind, words))
    for seed in range(int(count)):
        Document(seed, kinds).write(f"{folder}/document{seed:03}.pdf")


main()
