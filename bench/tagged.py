# SPDX-License-Identifier: Apache-2.0
"""Writes a PDF of 20 pages and about 2,000 structure elements, and the same without its tags.

    python3 bench/tagged.py SEED TAGGED.pdf UNTAGGED.pdf

Each page is a section of a heading, paragraphs, a list, a table with attributes and a link.
"""

import random
import subprocess
import sys

PAGES = 20
WORDS = "quay harbour ledger cargo tide anchor rope sail lantern pier gull crate tar keel mast".split()


class Writer:
    def __init__(self, seed, is_tagged):
        self.random = random.Random(seed)
        self.is_tagged = is_tagged
        self.objects = {}
        self.next = 4  # 1 is the catalog, 2 the page tree, 3 the font.

    def reserve(self):
        self.next += 1
        return self.next - 1

    def add(self, body):
        number = self.reserve()
        self.objects[number] = body
        return number

    def element(self, role, parent, keys, number=None):
        number = number or self.reserve()
        self.objects[number] = f"<< /Type /StructElem /S /{role} /P {parent} 0 R {keys} >>"
        return number

    def page(self, section):
        """A page, its element below `section` and what each of its marks belongs to."""
        page, marks, lines, kids = self.reserve(), [], [], []

        def leaf(role, parent, keys=""):
            text = " ".join(self.random.choices(WORDS, k=8))
            mark = len(marks)
            y = 780 - mark * 9
            lines.append(f"/{role} << /MCID {mark} >> BDC BT /F 7 Tf 50 {y} Td ({text}) Tj ET EMC")
            marks.append(self.element(role, parent, f"/Pg {page} 0 R /K {mark} {keys}"))
            return marks[-1]

        def group(role, parent, count, make, keys=""):
            number = self.reserve()
            made = " ".join(f"{make(number)} 0 R" for _ in range(count))
            return self.element(role, parent, f"/K [{made}] {keys}", number)

        kids.append(leaf("H1", section))
        kids += [leaf("P", section, "/Lang (en)" if at % 9 == 0 else "") for at in range(38)]
        kids.append(group("L", section, 8, lambda up: group("LI", up, 1, lambda at: leaf("LBody", at)),
                          "/A << /O /List /ListNumbering /Disc >>"))
        kids.append(group("Table", section, 8, lambda up: group("TR", up, 4, lambda at: leaf(
            "TD", at, "/A << /O /Layout /TextAlign /End >>"))))
        link = self.element("Link", section, f"/Pg {page} 0 R /Alt (a link)")
        note = self.add(f"<< /Type /Annot /Subtype /Link /Rect [50 20 90 30] /Dest [{page} 0 R /Fit] "
                        + (f"/StructParent {PAGES + section}" if self.is_tagged else "") + " >>")
        self.objects[link] = self.objects[link].replace(
            "/Alt", f"/K << /Type /OBJR /Obj {note} 0 R >> /Alt")
        kids.append(link)
        content = "\n".join(lines)
        stream = self.add(f"<< /Length {len(content)} >>\nstream\n{content}\nendstream")
        return page, stream, note, link, marks, kids

    def write(self, path):
        document = self.reserve()
        root, tree, sections, pages, numbers = self.reserve(), self.reserve(), [], [], []
        for index in range(PAGES):
            section = self.reserve()
            page, stream, note, link, marks, kids = self.page(section)
            self.element("Sect", document, "/K [" + " ".join(f"{kid} 0 R" for kid in kids) + "]", section)
            tags = f"/StructParents {index}" if self.is_tagged else ""
            self.objects[page] = (f"<< /Type /Page /Parent 2 0 R /Contents {stream} 0 R /Annots [{note} 0 R] "
                                  f"/Resources << /Font << /F 3 0 R >> >> {tags} >>")
            pages.append(page)
            sections.append(section)
            numbers.append((index, "[" + " ".join(f"{mark} 0 R" for mark in marks) + "]"))
            numbers.append((PAGES + section, f"{link} 0 R"))
        self.element("Document", root, "/K [" + " ".join(f"{at} 0 R" for at in sections) + "]", document)
        self.objects[root] = f"<< /Type /StructTreeRoot /K {document} 0 R /ParentTree {tree} 0 R >>"
        self.objects[tree] = "<< /Nums [" + " ".join(f"{at} {to}" for at, to in sorted(numbers)) + "] >>"
        tags = f"/StructTreeRoot {root} 0 R /MarkInfo << /Marked true >>" if self.is_tagged else ""
        self.objects |= {1: f"<< /Type /Catalog /Pages 2 0 R /Lang (en) {tags} >>",
                         2: f"<< /Type /Pages /Count {PAGES} /MediaBox [0 0 595 842] /Kids ["
                            + " ".join(f"{page} 0 R" for page in pages) + "] >>",
                         3: "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"}
        self.save(path)

    def save(self, path):
        data, places = b"%PDF-1.7\n", {}
        for number, body in self.objects.items():
            places[number] = len(data)
            data += f"{number} 0 obj\n{body}\nendobj\n".encode()
        table = f"xref\n0 {self.next}\n0000000000 65535 f \n" + "".join(
            f"{places[number]:010} 00000 n \n" for number in range(1, self.next))
        end = f"trailer << /Size {self.next} /Root 1 0 R >>\nstartxref\n{len(data)}\n%%EOF\n"
        # As usual, its objects are compressed, and those that nothing leads to are not there.
        with open(path, "wb") as file:
            file.write(data + (table + end).encode())
        subprocess.run(["qpdf", "--object-streams=generate", "--replace-input", path], check=True)


for is_tagged, name in ((True, sys.argv[2]), (False, sys.argv[3])):
    Writer(int(sys.argv[1]), is_tagged).write(name)
