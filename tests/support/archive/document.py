# SPDX-License-Identifier: Apache-2.0
"""A PDF as qpdf reads it, with the streams unpacked, and its bytes."""

import base64
import json
import re
import subprocess


class Document:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.bytes = file.read()
        command = ["qpdf", "--json=2", "--json-stream-data=inline", "--decode-level=generalized", path]
        made = subprocess.run(command, capture_output=True, check=False)
        self.objects = {}
        for key, value in json.loads(made.stdout)["qpdf"][1].items():
            if key == "trailer":
                self.trailer = value["value"]
            else:
                self.objects[key[4:]] = value
        self.places = self._places(path)
        self.root = self.get(self.trailer["/Root"])
        self.pages = list(self._pages(self.trailer["/Root"], "/Pages"))

    @staticmethod
    def _places(path):
        """Where each object that is in no other begins, by its number."""
        shown = subprocess.run(["qpdf", "--show-xref", path], capture_output=True, text=True, check=False)
        return {int(number): int(offset)
                for number, offset in re.findall(r"^(\d+)/\d+: uncompressed; offset = (\d+)", shown.stdout, re.M)}

    def get(self, value):
        """What a value is, with the dictionary of a stream for a stream."""
        seen = 0
        while isinstance(value, str) and re.fullmatch(r"\d+ \d+ R", value) and seen < 100:
            found = self.objects.get(value)
            value = None if found is None else found.get("value", found.get("stream", {}).get("dict"))
            seen += 1
        return value

    def data(self, reference):
        """The bytes of a stream, as far as qpdf unpacks them."""
        found = self.objects.get(reference, {}).get("stream")
        return base64.b64decode(found["data"]) if found else b""

    def is_stream(self, reference):
        return isinstance(reference, str) and "stream" in self.objects.get(reference, {})

    def at(self, holder, *keys):
        value = self.get(holder)
        for key in keys:
            value = self.get(value.get(key)) if isinstance(value, dict) else None
        return value

    def _pages(self, holder, key, inherited=None):
        node = self.at(holder, key) if key else self.get(holder)
        inherited = dict(inherited or {})
        for name in ("/Resources", "/MediaBox", "/CropBox"):
            if name in node:
                inherited[name] = node[name]
        if "/Kids" not in node:
            yield {**inherited, **node}
            return
        for kid in self.get(node["/Kids"]):
            yield from self._pages(kid, None, inherited)

    def dictionaries(self):
        """Every dictionary, those in others too, with the object that it stands in."""
        for reference, value in self.objects.items():
            top = value.get("value", value.get("stream", {}).get("dict"))
            pending = [top]
            while pending:
                part = pending.pop()
                if isinstance(part, dict):
                    yield reference, part
                    pending.extend(part.values())
                elif isinstance(part, list):
                    pending.extend(part)

    def values(self):
        """Every value that is no dictionary and no array, and every array."""
        for reference, value in [*self.objects.items(), ("trailer", {"value": self.trailer})]:
            pending = [value.get("value", value.get("stream", {}).get("dict"))]
            while pending:
                part = pending.pop()
                if isinstance(part, dict):
                    yield from ((reference, key) for key in part)
                    pending.extend(part.values())
                else:
                    yield reference, part
                    pending.extend(part if isinstance(part, list) else [])


def string_bytes(value):
    """The bytes of a string as qpdf shows it: b:68656c or u:hello."""
    return bytes.fromhex(value[2:]) if value.startswith("b:") else value[2:].encode("utf-16-be")


def text_of(value):
    if value is None:
        return None
    if value.startswith("u:"):
        return value[2:]
    raw = bytes.fromhex(value[2:])
    return raw.decode("utf-16") if raw.startswith(b"\xfe\xff") else raw.decode("latin-1")
