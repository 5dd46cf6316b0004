// SPDX-License-Identifier: Apache-2.0

#include "cli/OptionValues.h"

#include "cli/Lengths.h"
#include "filelist/FileKind.h"
#include "text/TextDecoder.h"

#include <QFile>

#include <cmath>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// A length in whole points, as pages are measured; `rounded` takes what had to be rounded. The
/// checks of the settings refuse lengths that no page can have.
qint64 wholeLength(const QString &text, const QString &fault, QStringList &rounded) {
    const auto points = pointsOf(text);
    if (!points) {
        throw ArgumentFault(fault);
    }
    constexpr double kUnseen = 0.005; // Far less than a printer shows.
    const qint64 whole = wholePoints(*points);
    if (std::abs(*points - static_cast<double>(whole)) > kUnseen) {
        rounded += u"%1 is %2 points"_s.arg(text).arg(whole);
    }
    return whole;
}

/// Puts a paper or a size as WxH into `setup`, in `customMode`.
void takeSize(const QString &text, int customMode, const QString &fault, PageSetup &setup,
              QStringList &rounded) {
    setup.sizeMode = customMode;
    if (const auto paper = paperSize(text)) {
        setup.customWidth = wholePoints(paper->width());
        setup.customHeight = wholePoints(paper->height());
        return;
    }
    QStringList sides = text.split(u'x', Qt::KeepEmptyParts, Qt::CaseInsensitive);
    if (sides.size() != 2) {
        throw ArgumentFault(fault);
    }
    if (unitOf(sides[0]).isEmpty()) { // As in "148x210mm".
        sides[0] += unitOf(sides[1]);
    }
    setup.customWidth = wholeLength(sides[0], fault, rounded);
    setup.customHeight = wholeLength(sides[1], fault, rounded);
    for (const qint64 side : {setup.customWidth, setup.customHeight}) {
        if (side < kShortestSide || side > kMaxSide) {
            throw ArgumentFault(u"\"%1\" is no page: its sides are %2 to %3 points long"_s.arg(
                text, QString::number(kShortestSide), QString::number(kMaxSide)));
        }
    }
}

} // namespace

QString textOf(const QByteArray &bytes) {
    QString text = decodeText(bytes);
    if (text.isNull()) {
        throw ArgumentFault(u"\"%1\" is not valid UTF-8"_s.arg(QString::fromUtf8(bytes)));
    }
    return text;
}

QByteArray contentsOf(const QByteArray &name, QLatin1StringView option, qint64 most) {
    QFile file(QFile::decodeName(name));
    const bool isOpen =
        name == "-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const auto fault = [&](const QString &reason) {
        return ArgumentFault(
            u"%1: \"%2\" cannot be read: %3"_s.arg(option, QString::fromUtf8(name), reason));
    };
    QByteArray contents;
    constexpr qint64 kPiece = 1 << 16;
    while (isOpen && contents.size() <= most) {
        const QByteArray piece = file.read(kPiece); // A pipe gives what is in it now.
        if (piece.isEmpty()) {
            break;
        }
        contents += piece;
    }
    if (file.error() != QFileDevice::NoError) {
        throw fault(file.errorString());
    }
    if (contents.size() > most) {
        throw fault(u"It has more than %1 bytes"_s.arg(most));
    }
    return contents;
}

QString textContentsOf(const QByteArray &name, QLatin1StringView option) {
    if (QString text = decodeText(contentsOf(name, option)); !text.isNull()) {
        return text;
    }
    throw ArgumentFault(
        u"%1: \"%2\" cannot be read as UTF-8"_s.arg(option, QString::fromUtf8(name)));
}

QByteArrayList linesIn(const QByteArray &contents) {
    QByteArrayList lines = contents.split('\n');
    for (QByteArray &line : lines) {
        if (line.endsWith('\r')) {
            line.chop(1);
        }
    }
    return lines;
}

PageMargins parseMargins(const QString &text, QStringList &rounded) {
    const QString fault =
        u"\"%1\" is not one length for all sides, nor two, three or four as T,R,B,L"_s.arg(text);
    std::vector<qint64> given;
    for (const QString &word : text.split(u',')) {
        given.push_back(wholeLength(word, fault, rounded));
    }
    constexpr std::size_t kSides = 4;
    const std::size_t count = given.size();
    if (count > kSides) {
        throw ArgumentFault(fault);
    }
    // As in style sheets: what is not given is as the other side.
    const qint64 top = given[0];
    const qint64 right = count > 1 ? given[1] : top;
    return {.left = count > 3 ? given[3] : right,
            .right = right,
            .top = top,
            .bottom = count > 2 ? given[2] : top};
}

void parseTextPageSize(const QString &text, PageSetup &setup, QStringList &rounded) {
    takeSize(text, TextPageCustom,
             u"\"%1\" is no paper such as A4 or Letter^T and no size as WxH"_s.arg(text), setup,
             rounded);
}

void parseImagePageSize(const QString &text, PageSetup &setup, QStringList &rounded) {
    if (text == u"image") {
        setup.sizeMode = ImagePageFollowsImage;
        return;
    }
    takeSize(
        text, ImagePageCustom,
        u"\"%1\" is not \"image\", no paper such as A4 or Letter^T and no size as WxH"_s.arg(text),
        setup, rounded);
}

QString parseFolder(const QString &text) {
    if (text.isEmpty()) {
        throw ArgumentFault(u"\"\" is no folder; \".\" is the current one"_s);
    }
    qsizetype length = text.size();
    while (length > 1 && text[length - 1] == u'/') {
        --length;
    }
    return text.first(length);
}

QByteArray parseInputType(const QString &text) {
    const QString type = text.toLower();
    if (fileKind(u"stdin."_s + type) == FileKind::Other) {
        const QStringList known = extensionsOf(FileKind::Text) + extensionsOf(FileKind::Image) +
                                  extensionsOf(FileKind::FurtherImage) +
                                  extensionsOf(FileKind::Pdf);
        throw ArgumentFault(u"\"%1\" is none of %2"_s.arg(text, known.join(u", "_s)));
    }
    return type.toLatin1();
}

double parseNumber(const QString &text, double least, double most) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !(number >= least && number <= most)) {
        throw ArgumentFault(u"\"%1\" is no number from %2 to %3"_s.arg(text, QString::number(least),
                                                                       QString::number(most)));
    }
    return number;
}

QByteArray parsePageRange(const QString &text) {
    const auto range = pageRange(text.toUtf8());
    if (!range) {
        throw ArgumentFault(
            u"\"%1\" is no range of pages such as 1-3,7,z-10 or 1-z:odd"_s.arg(text));
    }
    return *range;
}

PageTurn parsePageTurn(const QString &text) {
    const auto turn = pageTurn(text.toUtf8());
    if (!turn) {
        throw ArgumentFault(u"\"%1\" is no turn by 90, 180 or 270 degrees such as +90, "
                            "180:1-3 or -90:z"_s.arg(text));
    }
    return *turn;
}

int parseWhole(const QString &text, int least, int most) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < least || number > most) {
        throw ArgumentFault(u"\"%1\" is no whole number from %2 to %3"_s.arg(
            text, QString::number(least), QString::number(most)));
    }
    return number;
}

} // namespace folioforge
