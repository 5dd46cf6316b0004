# SPDX-License-Identifier: Apache-2.0
"""What each object has, and the colours, pages and pictures."""

import re
import struct

from content import operations
from document import string_bytes
from fonts import Font
from structure import is_private

FILTERS = {"/ASCIIHexDecode", "/ASCII85Decode", "/FlateDecode", "/RunLengthDecode", "/CCITTFaxDecode",
           "/JBIG2Decode", "/DCTDecode", "/JPXDecode"}
ANNOTATIONS = {"/Text", "/Link", "/FreeText", "/Line", "/Square", "/Circle", "/Highlight", "/Underline",
               "/Squiggly", "/StrikeOut", "/Stamp", "/Ink", "/Popup", "/Widget"}
ACTIONS = {"/GoTo", "/GoToR", "/GoToE", "/Thread", "/URI", "/Named", "/SubmitForm"}


def limit_faults(document, part):
    section = "6.1.12" if part == 1 else "6.1.13"
    for reference, value in document.values():
        if isinstance(value, bool) or value is None:
            continue
        if isinstance(value, int) and not -2147483648 <= value <= 2147483647:
            yield f"{section}-1", f"{reference}: {value}"
        elif isinstance(value, float) and part == 1 and abs(value) > 32767:
            yield f"{section}-2", f"{reference}: {value}"
        elif isinstance(value, float) and value != 0 and abs(value) < 1.175e-38:
            yield f"{section}-5", f"{reference}: {value}"
        elif isinstance(value, str) and value.startswith("/") and len(value) > 128:
            yield f"{section}-4", f"{reference}: {value}"
        elif isinstance(value, str) and value[:2] in ("u:", "b:"):
            if len(string_bytes(value)) > (65535 if part == 1 else 32767):
                yield f"{section}-3", reference
        elif isinstance(value, list) and part == 1 and len(value) > 8191:
            yield f"{section}-5", f"{reference}: an array of {len(value)}"
    if part == 1:
        for reference, dictionary in document.dictionaries():
            if len(dictionary) > 4095:
                yield f"{section}-6", reference


def filter_faults(document, part):
    for reference, value in document.objects.items():
        if "stream" not in value:
            continue
        dictionary = value["stream"]["dict"]
        if {"/F", "/FFilter", "/FDecodeParms"} & set(dictionary):
            yield ("6.1.7-3" if part == 1 else "6.1.7.1-3"), reference
        filters = document.get(dictionary.get("/Filter", []))
        for name in filters if isinstance(filters, list) else [filters]:
            if name not in FILTERS or (part == 1 and name == "/JPXDecode"):
                yield ("6.1.10-1" if part == 1 else "6.1.7.2-1"), f"{reference}: {name}"


def catalog_faults(document, part):
    names = document.at(document.root, "/Names") or {}
    form = document.at(document.root, "/AcroForm") or {}
    checks = [
        ("/AA" in document.root, "6.6.2-3", "6.5.2-1"),
        ("/OCProperties" in document.root, "6.1.13-1", None),
        ("/EmbeddedFiles" in names, "6.1.11-2", "6.8-5" if part == 2 else None),
        ("/AlternatePresentations" in names, None, "6.10-1"),
        ("/NeedsRendering" in document.root, None, "6.4.2-2"),
        ("/Requirements" in document.root, None, "6.11-1"),
        (form.get("/NeedAppearances") is True, "6.9-1", "6.4.1-3"),
        ("/XFA" in form, None, "6.4.2-1"),
        (bool(set(document.at(document.root, "/Perms") or {}) - {"/UR3", "/DocMDP"}), None, "6.1.12-1"),
    ]
    for broken, old, new in checks:
        rule = old if part == 1 else new
        if broken and rule:
            yield rule, "the catalog"


def layer_faults(document, part):
    layers = document.at(document.root, "/OCProperties")
    if part == 1 or not layers:
        return
    configurations = [document.get(layers["/D"])] + [document.get(c) for c in document.get(layers.get("/Configs", []))]
    names = [document.get(c.get("/Name")) for c in configurations]
    if not all(names):
        yield "6.9-1", "a configuration without a name"
    if len(set(names)) < len(names):
        yield "6.9-2", "two of one name"
    for configuration in configurations:
        if "/AS" in configuration:
            yield "6.9-4", "an automatic state"
        listed, pending = set(), [configuration.get("/Order", [])]
        while pending:
            item = pending.pop()
            if isinstance(document.get(item), list):
                pending.extend(document.get(item))
            else:
                listed.add(item)
        if "/Order" in configuration and set(document.get(layers["/OCGs"])) - listed:
            yield "6.9-3", "a layer is not in the order"


def part_faults(document, part):
    """Dictionaries of every kind."""
    new = part != 1
    for reference, d in document.dictionaries():
        kind, sub = d.get("/Type"), d.get("/Subtype")
        if sub == "/Image" and document.is_stream(reference):
            yield from image_faults(document, reference, d, part)
        if sub == "/Form" or kind == "/XObject":
            if "/OPI" in d or "/PS" in d or d.get("/Subtype2") == "/PS":
                yield ("6.2.9-1" if new else "6.2.5-1"), reference
            if "/Ref" in d:
                yield ("6.2.9-2" if new else "6.2.6-1"), reference
        if sub == "/PS":
            yield ("6.2.9-3" if new else "6.2.7-1"), reference
        if not new and ("/SMask" in d and d["/SMask"] != "/None"):
            yield "6.4-2", reference
        if not new and d.get("/S") == "/Transparency":
            yield "6.4-3", reference
        if kind == "/ExtGState":
            yield from state_faults(document, reference, d, part)
        if kind == "/Annot" or ("/Rect" in d and sub in ANNOTATIONS):
            yield from annotation_faults(document, reference, d, part)
        if kind in ("/Filespec", "/F") or "/EF" in d:
            yield from file_faults(document, reference, d, part)
        if d.get("/S") in ("/JavaScript", "/Launch", "/Sound", "/Movie", "/ResetForm", "/ImportData", "/Hide",
                           "/SetOCGState", "/Rendition", "/Trans", "/GoTo3DView"):
            yield ("6.5.1-1" if new else "6.6.1-1"), f"{reference}: {d['/S']}"
        if kind == "/Page" and "/AA" in d:
            yield "6.5.2-2", reference
        if kind == "/Page" and "/PresSteps" in d:
            yield "6.10-2", reference
        intent = document.get(d.get("/Intent"))
        if sub == "/Image" and intent and intent not in (
                "/RelativeColorimetric", "/AbsoluteColorimetric", "/Perceptual", "/Saturation"):
            yield ("6.2.6-1" if new else "6.2.9-1"), reference


def state_faults(document, reference, d, part):
    new = part != 1
    if "/TR" in d or d.get("/TR2", "/Default") != "/Default":
        yield ("6.2.5-1" if new else "6.2.8-1"), reference
    if not new and (d.get("/BM", "/Normal") not in ("/Normal", "/Compatible") or d.get("/CA", 1) != 1 or d.get("/ca", 1) != 1):
        yield "6.4-4", reference


def annotation_faults(document, reference, d, part):
    new = part != 1
    flags = document.get(d.get("/F"))
    if flags is None and d["/Subtype"] != "/Popup":
        yield ("6.3.2-1" if new else "6.5.3-2"), reference
    elif flags is not None and (flags & 4 == 0 or flags & (1 | 2 | 32)):
        yield ("6.3.2-2" if new else "6.5.3-2"), reference
    appearance = document.get(d.get("/AP"))
    if appearance is not None and set(appearance) != {"/N"}:
        yield ("6.3.3-2" if new else "6.5.3-4"), reference


def file_faults(document, reference, d, part):
    if part == 1 and "/EF" in d:
        yield "6.1.11-1", reference
    if part > 1 and "/EF" in d and not {"/F", "/UF"} <= set(d):
        yield "6.8-2", reference
    if part == 3 and "/EF" in d:
        if "/AFRelationship" not in d:
            yield "6.8-3", reference
        if reference not in (document.get(document.root.get("/AF", [])) or []):
            yield "6.8-4", reference
        for stream in document.get(d["/EF"]).values():
            kind = document.get(stream).get("/Subtype", "")
            if not re.fullmatch(r"/[-\w+.]+/[-\w+.]+", kind.replace("#2f", "/")):
                yield "6.8-1", f"{stream}: {kind}"


def image_faults(document, reference, d, part):
    new = part != 1
    place = "6.2.8" if new else "6.2.4"
    if "/Alternates" in d:
        yield f"{place}-1", reference
    if "/OPI" in d:
        yield f"{place}-2", reference
    if d.get("/Interpolate"):
        yield f"{place}-3", reference
    if d.get("/BitsPerComponent", 8) not in ((1, 2, 4, 8, 16) if new else (1, 2, 4, 8)):
        yield f"{place}-4", reference
    if d.get("/Filter") == "/JPXDecode":
        yield from jpeg2000_faults(document, reference, d)


def jpeg2000_faults(document, reference, d):
    data = document.data(reference)
    boxes = dict(boxes_of(data))
    header = dict(boxes_of(boxes[b"jp2h"]))
    components = struct.unpack(">H", header[b"ihdr"][8:10])[0]
    if components not in (1, 3, 4):
        yield "6.2.8.3-1", f"{reference}: {components} channels"
    if b"bpcc" in header:
        yield "6.2.8.3-5", reference
    if "/ColorSpace" not in d:
        yield "6.2.8.3-2", f"{reference}: the colours are said by its data alone"


def boxes_of(data):
    at = 0
    while at + 8 <= len(data):
        length, kind = struct.unpack(">I4s", data[at:at + 8])
        length = length or len(data) - at
        yield kind, data[at + 8:at + length]
        at += length


class Colors:
    """The colours of pages and pictures, held against the output intent."""

    def __init__(self, document, part):
        self.document = document
        self.part = part
        self.intent = None
        self.faults = []
        for intent in document.get(document.root.get("/OutputIntents", [])) or []:
            intent = document.get(intent)
            if intent.get("/S") == "/GTS_PDFA1":
                profile = document.data(intent["/DestOutputProfile"])
                self.intent = profile[16:20].decode()
                self.check_profile(intent["/DestOutputProfile"], ("prtr", "mntr"), "6.2.2-1" if part == 1 else "6.2.3-1")

    def check_profile(self, reference, kinds, rule):
        data = self.document.data(reference)
        channels = {"GRAY": 1, "RGB ": 3, "CMYK": 4, "Lab ": 3}.get(data[16:20].decode("latin-1"))
        right = data[12:16].decode("latin-1") in kinds and data[8] < (3 if self.part == 1 else 5)
        if not right or channels != self.document.get(reference).get("/N") or len(data) != struct.unpack(">I", data[:4])[0]:
            self.faults.append((rule, f"{reference}: {data[:40]!r}"))

    def use(self, space, where):
        space = self.document.get(space)
        name = space[0] if isinstance(space, list) else space
        place = "6.2.3.3" if self.part == 1 else "6.2.4.3"
        number = 1 if self.part == 1 else 2
        if name == "/DeviceRGB" and self.intent != "RGB ":
            self.faults.append((f"{place}-{number}", where))
        elif name == "/DeviceCMYK" and self.intent != "CMYK":
            self.faults.append((f"{place}-{number + 1}", where))
        elif name == "/DeviceGray" and self.intent is None:
            self.faults.append((f"{place}-{number + 2}", where))
        elif name == "/ICCBased":
            self.check_profile(space[1], ("prtr", "mntr", "scnr", "spac"), "6.2.3.2-1" if self.part == 1 else "6.2.4.2-1")
        elif name in ("/Indexed", "/Separation", "/DeviceN"):
            self.use(space[1 if name == "/Indexed" else 2], where)
        elif name not in ("/CalGray", "/CalRGB", "/Lab", "/Pattern", "/DeviceRGB", "/DeviceCMYK", "/DeviceGray"):
            self.faults.append(("colour", f"{where}: {space}"))


OPERATORS = set("""b B b* B* BDC BI BMC BT BX c cm CS cs d d0 d1 Do DP EI EMC ET EX f F f* G g gs h i ID j J K k l m
M MP n q Q re RG rg ri s S SC sc SCN scn sh T* Tc Td TD Tf Tj TJ TL Tm Tr Ts Tw Tz v w W W* y ' \"""".split())


def page_faults(document, part, level, colors):
    drawn = {}
    fonts = {}
    for number, page in enumerate(document.pages, 1):
        resources = document.get(page.get("/Resources")) or {}
        contents = page.get("/Contents", [])
        streams = document.get(contents) if isinstance(document.get(contents), list) else [contents]
        data = b"\n".join(document.data(s) for s in streams)
        yield from content_faults(document, part, level, data, resources, colors, number, drawn, fonts)
        box = page["/MediaBox"]
        sides = [abs(document.get(box)[2] - document.get(box)[0]), abs(document.get(box)[3] - document.get(box)[1])]
        if part > 1 and not all(3 <= side <= 14400 for side in sides):
            yield "6.1.13-11", f"page {number}: {sides}"
        if part > 1 and not colors.intent and "/CS" not in (document.at(page, "/Group") or {}):
            yield "6.2.10-2", f"page {number}"
    for reference, codes in drawn.items():
        if document.get(reference).get("/Subtype") == "/Type0":
            try:
                for rule, what in Font(document, reference).faults(codes, part, level):
                    yield rule, f"{reference}: {what}"
            except KeyError as missing:
                yield "font", f"{reference}: {missing}"


def content_faults(document, part, level, data, resources, colors, number, drawn, fonts):
    depth = 0
    font = None
    spans = []
    seen = document.get(resources.get("/Font")) or {}
    pictures = document.get(resources.get("/XObject")) or {}
    colors.use("/DeviceGray", f"page {number}")  # What a page begins with.
    for operator, operands in operations(data):
        depth += (operator == "q") - (operator == "Q")
        if depth > 28:
            yield ("6.1.12-8" if part == 1 else "6.1.13-8"), f"page {number}"
        if operator not in OPERATORS:
            yield ("6.2.10-1" if part == 1 else "6.2.2-1"), f"page {number}: {operator}"
        if operator in ("BDC", "BMC"):
            spans.append("/ActualText" in operands)
        elif operator == "EMC":
            spans.pop()
        space = {"rg": "/DeviceRGB", "RG": "/DeviceRGB", "k": "/DeviceCMYK", "K": "/DeviceCMYK",
                 "g": "/DeviceGray", "G": "/DeviceGray"}.get(operator)
        if space:
            colors.use(space, f"page {number}: {operator}")
        if operator in ("cs", "CS") and operands:
            named = document.get(resources.get("/ColorSpace")) or {}
            colors.use(named.get(operands[0], operands[0]), f"page {number}: {operands[0]}")
        if operator == "Tf":
            font = seen.get(operands[0])
            if font is None:
                yield ("6.2.2-2" if part > 1 else "resources"), f"page {number}: {operands[0]}"
        if operator in ("Tj", "'", "TJ") and font and document.get(font)["/Subtype"] == "/Type0":
            if font not in fonts:
                fonts[font] = Font(document, font)
            for text in operands:
                if isinstance(text, bytes):
                    codes = set(fonts[font].encoding.codes(text))
                    drawn.setdefault(font, set()).update(codes)
                    texts = fonts[font].unicode.texts if fonts[font].unicode else {}
                    if level == "A" and not any(spans) and any(is_private(texts.get(c)) for c in codes):
                        yield "6.2.11.7.3-1", f"page {number}: {text!r}"
        if operator == "Do":
            picture = document.get(pictures.get(operands[0]))
            if picture and picture.get("/Subtype") == "/Image":
                use_image(document, pictures[operands[0]], colors)
        for text in operands:
            if isinstance(text, bytes) and len(text) > 32767:
                yield ("6.1.12-3" if part == 1 else "6.1.13-3"), f"page {number}"


def use_image(document, reference, colors):
    picture = document.get(reference)
    if "/ColorSpace" in picture and not picture.get("/ImageMask"):
        colors.use(picture["/ColorSpace"], reference)
    if document.is_stream(picture.get("/SMask")):
        use_image(document, picture["/SMask"], colors)
