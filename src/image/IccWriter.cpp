// SPDX-License-Identifier: Apache-2.0

#include "image/IccWriter.h"

#include <QtEndian>

#include <cmath>

namespace folioforge {

namespace {

/// A number as profiles hold it, with 16 bits behind the point (ICC.1, 4.6).
void appendFixed(QByteArray &bytes, double number) {
    appendIccNumber(bytes, static_cast<quint32>(static_cast<qint32>(std::lround(number * 65536))));
}

} // namespace

void appendIccNumber(QByteArray &bytes, quint32 number) {
    const quint32 big = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char *>(&big), sizeof big);
}

QByteArray iccNumbers(const char *type, const std::vector<double> &values) {
    QByteArray bytes = type + QByteArray(4, '\0');
    for (const double value : values) {
        appendFixed(bytes, value);
    }
    return bytes;
}

QByteArray iccProfile(int version, const IccTags &tags, const char *colors) {
    constexpr qsizetype kHeader = 128;
    QByteArray table;
    QByteArray contents;
    appendIccNumber(table, static_cast<quint32>(tags.size()));
    const qsizetype first = kHeader + 4 + 12 * static_cast<qsizetype>(tags.size());
    for (const auto &[name, content] : tags) {
        table += name;
        appendIccNumber(table, static_cast<quint32>(first + contents.size()));
        appendIccNumber(table, static_cast<quint32>(content.size()));
        contents += content + QByteArray((4 - content.size() % 4) % 4, '\0');
    }
    QByteArray header;
    appendIccNumber(header, static_cast<quint32>(first + contents.size()));
    header += QByteArray(4, '\0');
    header += version == 2 ? QByteArray("\2\x10\0\0", 4) : QByteArray("\4\x20\0\0", 4);
    header += QByteArray("mntr") + colors + "XYZ ";
    header += QByteArray("\x07\xE8\0\1\0\1\0\0\0\0\0\0", 12) + "acsp"; // 1 January 2024.
    header += QByteArray(28, '\0');
    for (const double part : kIccWhite) {
        appendFixed(header, part);
    }
    return header + QByteArray(kHeader - header.size(), '\0') + table + contents;
}

} // namespace folioforge
