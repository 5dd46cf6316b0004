// SPDX-License-Identifier: Apache-2.0

#include "support/InkProfile.h"

#include <QtEndian>

#include <array>

namespace folioforge::test {

namespace {

QByteArray number(quint32 value) {
    const quint32 big = qToBigEndian(value);
    return {reinterpret_cast<const char *>(&big), sizeof big};
}

/// Tables of 8 bits from four inks to Lab (ICC.1:2001-04, 6.5.6), with two steps for each ink.
QByteArray inksToLab() {
    QByteArray tag = QByteArray("mft1\0\0\0\0\4\3\2\0", 12);
    for (int i = 0; i < 9; ++i) {
        tag += number(i % 4 == 0 ? 0x10000 : 0);
    }
    QByteArray straight;
    for (int i = 0; i < 256; ++i) {
        straight += static_cast<char>(i);
    }
    for (int ink = 0; ink < 4; ++ink) {
        tag += straight;
    }
    for (int corner = 0; corner < 16; ++corner) {
        const int inks = (corner >> 3 & 1) + (corner >> 2 & 1) + (corner >> 1 & 1);
        const int light = (corner & 1) != 0 ? 0 : 255 - 60 * inks;
        tag += static_cast<char>(light);
        tag += QByteArray("\x80\x80", 2);
    }
    for (int color = 0; color < 3; ++color) {
        tag += straight;
    }
    return tag;
}

} // namespace

QByteArray inkProfile() {
    const QByteArray words("text\0\0\0\0Free\0\0\0\0", 16);
    const QByteArray name =
        QByteArray("desc\0\0\0\0", 8) + number(5) + "Inks" + QByteArray(79, '\0');
    const QByteArray white =
        QByteArray("XYZ \0\0\0\0", 8) + number(0xF6D6) + number(0x10000) + number(0xD32D);
    const std::array<std::pair<const char *, QByteArray>, 5> tags{{{"desc", name},
                                                                   {"cprt", words},
                                                                   {"wtpt", white},
                                                                   {"A2B0", inksToLab()},
                                                                   {"A2B1", inksToLab()}}};
    QByteArray table = number(static_cast<quint32>(tags.size()));
    QByteArray contents;
    for (const auto &[signature, content] : tags) {
        table += signature;
        table += number(static_cast<quint32>(132 + 12 * tags.size() + contents.size()));
        table += number(static_cast<quint32>(content.size()));
        contents += content + QByteArray((4 - content.size() % 4) % 4, '\0');
    }
    QByteArray head = QByteArray(4, '\0') + QByteArray("\2\x10\0\0prtrCMYKLab ", 16);
    head += QByteArray("\x07\xE8\0\1\0\1\0\0\0\0\0\0acsp", 16) + QByteArray(28, '\0');
    head += number(0xF6D6) + number(0x10000) + number(0xD32D) + QByteArray(48, '\0');
    return number(static_cast<quint32>(head.size() + 4 + table.size() + contents.size())) + head +
           table + contents;
}

} // namespace folioforge::test
