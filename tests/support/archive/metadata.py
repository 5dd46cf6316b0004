# SPDX-License-Identifier: Apache-2.0
"""The XMP packet, held against the document information."""

import datetime
import re
import xml.etree.ElementTree as ElementTree

from document import text_of

RDF = "{http://www.w3.org/1999/02/22-rdf-syntax-ns#}"
DC = "{http://purl.org/dc/elements/1.1/}"
PDF = "{http://ns.adobe.com/pdf/1.3/}"
XMP = "{http://ns.adobe.com/xap/1.0/}"
ID = "{http://www.aiim.org/pdfa/ns/id/}"
EXTENSION = "{http://www.aiim.org/pdfa/ns/extension/}"
UA = "{http://www.aiim.org/pdfua/ns/id/}"
KNOWN = (DC, PDF, XMP, ID, EXTENSION)


def pdf_date(text):
    parts = re.fullmatch(r"D:(\d{14})(Z|[+-]\d\d'\d\d')?", text)
    offset = (parts[2] or "Z").replace("'", "")
    return datetime.datetime.strptime(parts[1] + (offset if offset != "Z" else "+0000"), "%Y%m%d%H%M%S%z")


def properties(data):
    packet = ElementTree.fromstring(data)
    found = {}
    for node in packet.iter(RDF + "Description"):
        found.update({key: value for key, value in node.attrib.items() if not key.startswith(RDF)})
        for item in node:
            listed = [li.text or "" for li in item.iter(RDF + "li")]
            found[item.tag] = listed or (item.text or "")
    return found


def faults(document, part, level):
    new = part != 1
    stream = document.root.get("/Metadata")
    if not stream:
        yield ("6.6.2.1-1" if new else "6.7.2-1"), "no metadata"
        return
    dictionary = document.get(stream)
    if dictionary.get("/Type") != "/Metadata" or dictionary.get("/Subtype") != "/XML":
        yield ("6.6.2.1-1" if new else "6.7.2-1"), "no metadata"
    if "/Filter" in dictionary:
        yield "6.7.2-2", "the metadata is filtered"
    data = document.data(stream)
    head = data[:data.index(b"?>")]
    if b"bytes=" in head or b"encoding=" in head:
        yield ("6.6.2.1-2" if new else "6.7.5-1"), "an old attribute of the packet"
    try:
        data.decode("utf-8")
        found = properties(data)
    except (ValueError, ElementTree.ParseError) as error:
        yield ("6.6.2.1-4" if new else "6.7.9-1"), str(error)
        return
    for name in found:
        known = name.startswith(KNOWN) or (name.startswith(UA) and EXTENSION + "schemas" in found)
        if not known and EXTENSION + "schemas" not in found:
            yield ("6.6.2.3.1-1" if new else "6.7.9-2"), name
    if found.get(ID + "part") != str(part) or found.get(ID + "conformance") != level:
        yield ("6.6.4-2" if new else "6.7.11-2"), f"{found.get(ID + 'part')}{found.get(ID + 'conformance')}"
    yield from differences(document, found)


def differences(document, found):
    """The rules of part 1, which the others recommend."""
    info = document.get(document.trailer.get("/Info")) or {}
    pairs = {"/Title": (DC + "title", list, "2"), "/Author": (DC + "creator", list, "3"),
             "/Subject": (DC + "description", list, "4"), "/Keywords": (PDF + "Keywords", str, "5"),
             "/Creator": (XMP + "CreatorTool", str, "6"), "/Producer": (PDF + "Producer", str, "7")}
    for key, (name, kind, rule) in pairs.items():
        said = text_of(document.get(info.get(key)))
        value = found.get(name)
        if said is not None and value != ([said] if kind is list else said):
            yield f"6.7.3-{rule}", f"{key}: {said!r}, not {value!r}"
    created = text_of(document.get(info.get("/CreationDate")))
    if created and pdf_date(created) != datetime.datetime.fromisoformat(
            found.get(XMP + "CreateDate", "1900-01-01T00:00:00+00:00").replace("Z", "+00:00")):
        yield "6.7.3-1", f"{created}, not {found.get(XMP + 'CreateDate')}"
    if "/ModDate" in info and XMP + "ModifyDate" not in found:
        yield "6.7.3-8", "a date of change in one place alone"
