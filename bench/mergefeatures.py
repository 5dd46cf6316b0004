# SPDX-License-Identifier: Apache-2.0
"""What bench/merging asks: documents that have a feature, and what is left of it in a merge of them."""

import json
import os
import pathlib
import random
import re
import tempfile


def pdf(objects):
    """A file of `objects`, by number; 1 is the catalog. A pair is a stream."""
    data, places = b"%PDF-1.7\n", {}
    for number, body in objects.items():
        places[number] = len(data)
        if isinstance(body, tuple):
            keys, content = body
            body = f"<< {keys} /Length {len(content)} >>\nstream\n{content}\nendstream"
        data += f"{number} 0 obj\n{body}\nendobj\n".encode("latin-1")
    table = len(data)
    data += f"xref\n0 {max(places) + 1}\n0000000000 65535 f \n".encode()
    for number in range(1, max(places) + 1):
        data += (f"{places[number]:010} 00000 n \n" if number in places
                 else "0000000000 65535 f \n").encode()
    return data + (f"trailer << /Size {max(places) + 1} /Root 1 0 R >>\n"
                   f"startxref\n{table}\n%%EOF\n").encode()


def document(word, catalog="", page="", more=None, content=None, last="",
             resources="/Properties << /Layer 20 0 R >>"):
    """Two pages, 4 and 5, with the keys `page` and `last`; 6 and 7 are what they show."""
    shown = content or f"BT /F 20 Tf 20 100 Td ({word}) Tj ET"
    objects = {1: f"<< /Type /Catalog /Pages 2 0 R {catalog} >>",
               2: "<< /Type /Pages /Kids [4 0 R 5 0 R] /Count 2 /MediaBox [0 0 300 200] >>",
               3: "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"}
    for number, keys in ((4, page), (5, last)):
        objects[number] = (f"<< /Type /Page /Parent 2 0 R /Contents {number + 2} 0 R /Resources "
                           f"<< /Font << /F 3 0 R >> {resources} >> {keys} >>")
        objects[number + 2] = ("", shown if number == 4 else f"BT /F 20 Tf 20 100 Td ({word} end) Tj ET")
    return pdf(objects | (more or {20: "null"}))


def pair(make):
    return [make("alpha"), make("beta")]


FEATURES = []


def feature(name, sources):
    """The question `kept` gives how much of both, or of the only one, there is: 1 is all of it."""
    def declare(kept):
        FEATURES.append((name, sources, kept))
        return kept
    return declare


def share(found, wanted):
    return sum(1 for item in wanted if item in found) / len(wanted)


def annotation(keys):
    return f"/Annots [<< /Type /Annot /Rect [0 0 90 40] {keys} >>]"


@feature("text and pages", pair(document))
def _(result):
    return share(result.tool("pdftotext", result.path, "-").split(), ["alpha", "beta"])


def linked(word, catalog, end, begin):
    return document(word, catalog, annotation(f"/Subtype /Link /Dest {end}"),
                    last=annotation(f"/Subtype /Link /Dest {begin}"))


@feature("links forwards and backwards", pair(lambda word: linked(
    word, "", "[5 0 R /Fit]", "[4 0 R /Fit]")))
def _(result):
    return share(list(result.jumps()), [(0, 1), (1, 0), (2, 3), (3, 2)])


@feature("links by names that both have", pair(lambda word: linked(
    word, "/Names << /Dests << /Names [(a) [4 0 R /Fit] (end) [5 0 R /Fit]] >> >>", "(end)", "(a)")))
def _(result):
    return share(list(result.jumps()), [(0, 1), (1, 0), (2, 3), (3, 2)])


@feature("names that other files link to", pair(lambda word: document(
    word, f"/Names << /Dests << /Names [({word}) [5 0 R /Fit]] >> >>")))
def _(result):
    return share(result.tool("pdfinfo", "-dests", result.path), ['"alpha"', '"beta"'])


@feature("bookmarks", pair(lambda word: document(
    word, "/Outlines 20 0 R", more={20: "<< /First 21 0 R /Last 21 0 R /Count 1 >>",
                                    21: f"<< /Title ({word}) /Parent 20 0 R /Dest [5 0 R /Fit] >>"})))
def _(result):
    return share(result.tool("mutool", "show", result.path, "outline"), ["alpha", "beta"])


@feature("page labels", pair(lambda word: document(
    word, f"/PageLabels << /Nums [0 << /S /D /P ({word}-) >>] >>")))
def _(result):
    return share(json.dumps(result.json["pagelabels"]), ["alpha-", "beta-"])


@feature("comments", pair(lambda word: document(word, page=annotation(f"/Subtype /Text /Contents ({word})"))))
def _(result):
    return share([result.page(index, "/Annots", 0, "/Contents") for index in (0, 2)],
                 ["u:alpha", "u:beta"])


def form(word, name, keys=""):
    return document(word, f"/AcroForm << /Fields [20 0 R] /DA (/F 9 Tf) /DR << /Font << /F 3 0 R >> >> "
                          f"{keys} >>", "/Annots [20 0 R]",
                    {20: "<< /Type /Annot /Subtype /Widget /Rect [0 0 90 40] /FT /Tx /P 4 0 R "
                         f"/T ({name}) /V ({word}) >>"})


def field_rows(result):
    return [(field["fullname"], field["value"]) for field in result.json["acroform"]["fields"]]


@feature("form fields", [form("alpha", "one"), form("beta", "two")])
def _(result):
    return share(field_rows(result), [("one", "u:alpha"), ("two", "u:beta")])


@feature("form fields of one name, apart and listed", pair(lambda word: form(word, "same")))
def _(result):
    rows = field_rows(result)
    listed = len(result.root("/AcroForm", "/Fields") or []) == 2
    apart = len({name for name, _ in rows}) == 2
    return share([value for _, value in rows], ["u:alpha", "u:beta"]) if listed and apart else 0


@feature("order of calculation", pair(lambda word: form(word, word, "/CO [20 0 R]")))
def _(result):
    order = result.root("/AcroForm", "/CO") or []
    return share([result.get(field, "/V") for field in order], ["u:alpha", "u:beta"])


@feature("document scripts", pair(lambda word: document(
    word, f"/Names << /JavaScript << /Names [({word}) << /S /JavaScript /JS (app.alert\\({word}\\)) >>] "
          ">> >>")))
def _(result):
    return share(result.tool("pdfinfo", "-js", result.path), ["alert(alpha)", "alert(beta)"])


@feature("layers, hidden as before", pair(lambda word: document(
    word, "/OCProperties << /OCGs [20 0 R] /D << /OFF [20 0 R] /Order [20 0 R] >> >>",
    more={20: f"<< /Type /OCG /Name ({word}) >>"},
    content="/OC /Layer BDC 0 0 300 200 re f EMC")))
def _(result):
    hidden = [result.get(group, "/Name") for group in result.root("/OCProperties", "/D", "/OFF") or []]
    return share(hidden, ["u:alpha", "u:beta"])


def attached(word, name):
    return document(word, f"/Names << /EmbeddedFiles << /Names [({name}) 20 0 R] >> >> /AF [20 0 R]", "",
                    {20: f"<< /Type /Filespec /F ({name}) /UF ({name}) /EF << /F 21 0 R >> "
                         "/AFRelationship /Data >>", 21: ("/Type /EmbeddedFile", f"{word} data")})


def attachments(result):
    with tempfile.TemporaryDirectory() as folder:
        result.tool("pdfdetach", "-saveall", "-o", folder, result.path)
        return [file.read_text() for file in pathlib.Path(folder).iterdir()]


@feature("attachments", [attached("alpha", "a.xml"), attached("beta", "b.xml")])
def _(result):
    return share(attachments(result), ["alpha data", "beta data"])


@feature("attachments of one name", pair(lambda word: attached(word, "same.xml")))
def _(result):
    return share(attachments(result), ["alpha data", "beta data"])


@feature("associated files", pair(lambda word: attached(word, f"{word}.xml")))
def _(result):
    return share([result.get(file, "/UF") for file in result.root("/AF") or []],
                 ["u:alpha.xml", "u:beta.xml"])


def tagged(word, role="P"):
    return document(
        word, "/MarkInfo << /Marked true >> /StructTreeRoot 20 0 R /Lang (en)", "/StructParents 0",
        {20: f"<< /Type /StructTreeRoot /K 21 0 R /ParentTree 22 0 R /RoleMap << /Own /{role} >> >>",
         21: f"<< /Type /StructElem /S /Own /P 20 0 R /Pg 4 0 R /K 0 /Alt ({word} alt) >>",
         22: "<< /Nums [0 [21 0 R]] >>"},
        f"/Own << /MCID 0 >> BDC BT /F 20 Tf 20 100 Td ({word}) Tj ET EMC")


@feature("structure tags", pair(tagged))
def _(result):
    return share(result.tool("pdfinfo", "-struct-text", result.path), ['"alpha"', '"beta"'])


@feature("roles of tags that differ", [tagged("alpha", "H1"), tagged("beta", "P")])
def _(result):
    lines = [line.strip() for line in result.tool("pdfinfo", "-struct-text", result.path).splitlines()]
    found = {lines[at]: lines[:at] for at in range(len(lines)) if lines[at].startswith('"')}
    return sum(any(line.startswith(role) for line in found.get(word, []))
               for word, role in (('"alpha"', "H1"), ('"beta"', "P"))) / 2


@feature("article threads", pair(lambda word: document(
    word, "/Threads [20 0 R]", "/B [21 0 R]",
    {20: f"<< /Type /Thread /F 21 0 R /I << /Title ({word}) >> >>",
     21: "<< /Type /Bead /T 20 0 R /N 21 0 R /V 21 0 R /P 4 0 R /R [0 0 99 99] >>"})))
def _(result):
    return share([result.get(thread, "/I", "/Title") for thread in result.root("/Threads") or []],
                 ["u:alpha", "u:beta"])


INTENT = ("/OutputIntents [<< /Type /OutputIntent /S /GTS_PDFA1 /OutputConditionIdentifier (sRGB) "
          "/DestOutputProfile 20 0 R >>]")


@feature("output intents on which all agree", pair(lambda word: document(
    word, INTENT, more={20: ("/N 3", "profile")})))
def _(result):
    return float(bool(result.root("/OutputIntents")))


SIGNED = document("alpha", "/AcroForm << /Fields [20 0 R] /SigFlags 3 >>", "/Annots [20 0 R]",
                  {20: "<< /Type /Annot /Subtype /Widget /Rect [0 0 9 9] /FT /Sig /T (s) /V 21 0 R >>",
                   21: "<< /Type /Sig /Filter /Adobe.PPKLite /SubFilter /adbe.pkcs7.detached /Contents "
                       "<3000> /ByteRange [0 9 9 9] >>"})


@feature("no signature that holds no longer", [SIGNED, document("beta")])
def _(result):
    return float("/ByteRange" not in json.dumps(result.json["qpdf"]))


@feature("a page that is missing is named", [
    document("alpha").replace(b"4 0 R 5 0 R", b"4 0 R 9 0 R"), document("beta")])
def _(result):
    return float(bool(result.said))


SAMPLES = random.Random(1).randbytes(50000).decode("latin-1")


def with_picture(word):
    return document(word, more={20: ("/Type /XObject /Subtype /Image /Width 250 /Height 200 /ColorSpace "
                                     "/DeviceGray /BitsPerComponent 8", SAMPLES)},
                    content="q 99 0 0 99 0 0 cm /Im Do Q", resources="/XObject << /Im 20 0 R >>")


def picture_kept_once(result):
    size = os.path.getsize(result.path)
    return 0 if size < 50000 else float(size < 100000)


FEATURES.append(("one file twice, its picture once", [with_picture("alpha")] * 2, picture_kept_once))
FEATURES.append(("a picture that two files have, once", pair(with_picture), picture_kept_once))


@feature("PDF 2.0 stays PDF 2.0", [document(word).replace(b"%PDF-1.7", b"%PDF-2.0") for word in ("a", "b")])
def _(result):
    return float("2.0" in re.search(r"PDF version: *(\S+)", result.tool("pdfinfo", result.path))[1])


ENCRYPTED = "encrypted"  # Stands for a document that opens without a password.


@feature("an encrypted document that needs no password", [ENCRYPTED])
def _(result):
    return share(result.tool("pdftotext", result.path, "-").split(), ["alpha"])


SOLE = {
    "viewer preferences": ("/ViewerPreferences << /HideToolbar true >>", "/ViewerPreferences"),
    "page mode and layout": ("/PageMode /UseThumbs /PageLayout /TwoColumnLeft", "/PageLayout"),
    "action on opening": ("/OpenAction [5 0 R /Fit]", "/OpenAction"),
    "language": ("/Lang (de)", "/Lang"),
    "portfolio": ("/Collection << /View /T >> /Names << /EmbeddedFiles << /Names [] >> >>", "/Collection"),
}


def declare_sole(name, keys, kept):
    @feature(f"one source: {name}", [document("alpha", keys)])
    def _(result):
        return float(result.root(kept) is not None)


for title, (catalog_keys, key) in SOLE.items():
    declare_sole(title, catalog_keys, key)


@feature("one source: XFA beside the fields", [form("alpha", "one", "/XFA [(a) (<a/>)]")])
def _(result):
    return float(result.root("/AcroForm", "/XFA") is not None)


@feature("one source: its title", [document("alpha", more={20: "<< /Title (Some title) >>"}).replace(
    b"/Root 1 0 R", b"/Root 1 0 R /Info 20 0 R")])
def _(result):
    return float("Some title" in result.tool("pdfinfo", result.path))


PACKET = ('<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-'
          'syntax-ns#"><rdf:Description rdf:about="" xmlns:r="http://ns.adobe.com/xap/1.0/rights/" '
          'r:Marked="True"/></rdf:RDF></x:xmpmeta>')


@feature("one source: metadata", [document("alpha", "/Metadata 20 0 R", "", {
    20: ("/Type /Metadata /Subtype /XML", PACKET)})])
def _(result):
    return float("Marked" in result.tool("pdfinfo", "-meta", result.path))
