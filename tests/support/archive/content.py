# SPDX-License-Identifier: Apache-2.0
"""The operators of a content stream, with their operands."""

import re

TOKEN = re.compile(rb"""
    (?P<space>[\s\0]+|%[^\r\n]*)
  | (?P<string>\()
  | (?P<hex><[0-9A-Fa-f\s]*>)
  | (?P<mark><<|>>|\[|\])
  | (?P<name>/[^\s\0()<>\[\]{}/%]*)
  | (?P<number>[+-]?(?:\d+\.?\d*|\.\d+)(?![^\s\0()<>\[\]{}/%]))
  | (?P<word>[^\s\0()<>\[\]{}/%]+)
""", re.X)

ESCAPES = {ord("n"): 10, ord("r"): 13, ord("t"): 9, ord("b"): 8, ord("f"): 12}


def literal(data, at):
    """The string behind a parenthesis, and where it ends."""
    out = bytearray()
    depth = 1
    while True:
        byte = data[at]
        at += 1
        if byte == 0x5C:
            octal = re.compile(rb"[0-7]{1,3}").match(data, at)
            if octal:
                out.append(int(octal[0], 8) & 255)
                at = octal.end()
            elif data[at] in b"\r\n":
                at += 2 if data[at:at + 2] == b"\r\n" else 1
            else:
                out.append(ESCAPES.get(data[at], data[at]))
                at += 1
            continue
        depth += (byte == 0x28) - (byte == 0x29)
        if depth == 0:
            return bytes(out), at
        out.append(byte)


def operations(data):
    """Each operator with its operands: bytes for strings, str for names, lists for arrays."""
    operands = []
    at = 0
    while at < len(data):
        token = TOKEN.match(data, at)
        assert token, data[at:at + 40]
        at = token.end()
        kind = token.lastgroup
        if kind == "string":
            text, at = literal(data, at)
            operands.append(text)
        elif kind == "hex":
            digits = re.sub(rb"\s", b"", token[0][1:-1])
            operands.append(bytes.fromhex((digits + b"0" * (len(digits) % 2)).decode()))
        elif kind == "name":
            operands.append(token[0].decode("latin-1"))
        elif kind == "number":
            operands.append(float(token[0]))
        elif kind == "mark":
            operands.append(token[0].decode())
        elif kind == "word":
            yield token[0].decode("latin-1"), operands
            operands = []
