# SPDX-License-Identifier: Apache-2.0
"""The bytes of the file around its objects."""

import re


def faults(document, part):
    data = document.bytes
    header = re.match(rb"%PDF-1\.[0-7]\n%(....)", data, re.S)
    if not header:
        yield "6.1.2-1", repr(data[:12])
    elif min(header[1]) <= 127:
        yield "6.1.2-2", repr(header[1])
    if "/ID" not in document.trailer:
        yield "6.1.3-1", "no identifier"
    if "/Encrypt" in document.trailer:
        yield "6.1.3-2", "encrypted"
    if not re.search(rb"%%EOF[\r\n]{0,2}\Z", data):
        yield "6.1.3-3", repr(data[-20:])
    yield from object_faults(document, part)
    if part == 1:
        yield from table_faults(document)
    # Outside of objects and streams there is no hexadecimal string but the identifier.
    if len(document.objects) > 8388607:
        yield ("6.1.12-7" if part == 1 else "6.1.13-7"), "too many objects"


def object_faults(document, part):
    spacing = "6.1.8-1" if part == 1 else "6.1.9-1"
    lengths = "6.1.7-1" if part == 1 else "6.1.7.1-1"
    ends = "6.1.7-2" if part == 1 else "6.1.7.1-2"
    data = document.bytes
    for number, offset in document.places.items():
        lead = re.compile(rb"\d+ \d+ obj\n").match(data, offset)
        if not lead or data[offset - 1:offset] not in (b"\n", b"\r"):
            yield spacing, f"object {number}: {data[offset - 1:offset + 12]!r}"
            continue
        reference = f"{number} 0 R"
        if document.is_stream(reference) or b"/Type /XRef" in data[offset:offset + 200]:
            begin = re.compile(rb"\d+ \d+ obj\n<<.*?>>\nstream\n", re.S).match(data, offset)
            length = stated_length(document, data, offset)
            behind = data[begin.end() + length:begin.end() + length + 18] if begin else b""
            if not behind.startswith(b"\nendstream\n"):
                yield (lengths if b"endstream" in behind else ends), f"object {number}: {behind!r}"
            elif not behind.startswith(b"\nendstream\nendobj\n"[:18]):
                yield spacing, f"object {number}: {behind!r}"
        for digits in re.findall(rb"[^<]<([^<>]*)>[^>]", data[offset:data.index(b"endobj", offset)][:2000]):
            if not document.is_stream(reference) and (len(digits) % 2 or not re.fullmatch(rb"[0-9A-Fa-f]*", digits)):
                yield "6.1.6-1", f"object {number}: {digits[:20]!r}"


def stated_length(document, data, offset):
    length = re.compile(rb".*?/Length (\d+)( 0 R)?", re.S).match(data, offset)
    return document.get(f"{int(length[1])} 0 R") if length[2] else int(length[1])


def table_faults(document):
    start = int(re.search(rb"startxref\n(\d+)\n", document.bytes[-60:])[1])
    table = document.bytes[start:]
    if not table.startswith(b"xref\n"):
        yield "6.1.4-3", "a cross-reference stream"
    elif not re.match(rb"xref\n\d+ \d+\n", table):
        yield "6.1.4-1", repr(table[:20])
