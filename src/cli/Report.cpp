// SPDX-License-Identifier: Apache-2.0

#include "cli/Report.h"

#include "cli/Versions.h"
#include "files/Printable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QString nameOf(InputResult::State state) {
    switch (state) {
    case InputResult::State::Finished:
        return u"finished"_s;
    case InputResult::State::Failed:
        return u"failed"_s;
    case InputResult::State::Kept:
        return u"kept"_s;
    case InputResult::State::Planned:
        return u"planned"_s;
    case InputResult::State::Listed:
        return u"listed"_s;
    case InputResult::State::Enclosed:
        return u"enclosed"_s;
    case InputResult::State::Verified:
        return u"verified"_s;
    case InputResult::State::Rejected:
        break;
    }
    return u"rejected"_s;
}

QString nameOf(EmbeddedAs embedded) {
    return embedded == EmbeddedAs::OwnBytes ? u"own bytes"_s : u"recompressed"_s;
}

void addTo(QJsonObject &object, const CompressionOutcome &compression) {
    QJsonArray left;
    for (const KeptImage &image : compression.imagesKept) {
        left.append(QJsonObject{
            {u"page"_s, image.page}, {u"object"_s, image.object}, {u"reason"_s, image.reason}});
    }
    object.insert(u"bytesBefore"_s, compression.bytesBefore);
    object.insert(u"bytesAfter"_s, compression.bytesAfter);
    object.insert(u"imagesReduced"_s, compression.imagesReduced);
    object.insert(u"imagesLeft"_s, left);
}

QJsonArray toJson(const Warnings &warnings) {
    QJsonArray array;
    for (const Warning &warning : warnings) {
        array.append(QJsonObject{{u"code"_s, warning.name()}, {u"text"_s, warning.text}});
    }
    return array;
}

QJsonObject toJson(const PartCounts &parts) {
    QJsonObject object;
    for (const auto &[kind, count] : parts) {
        object.insert(nameOf(kind), static_cast<qint64>(count));
    }
    return object;
}

QString nameOf(PageProof proof) {
    switch (proof) {
    case PageProof::Bytes:
        return u"bytes"_s;
    case PageProof::Pixels:
        return u"pixels"_s;
    case PageProof::Characters:
        return u"characters"_s;
    case PageProof::Objects:
        return u"objects"_s;
    case PageProof::Likeness:
        return u"likeness"_s;
    case PageProof::Differs:
        break;
    }
    return u"differs"_s;
}

/// Runs of pages that were shown alike; each page that differs by itself, as far as it has a
/// reason.
QJsonArray toJson(const EntryVerification &verification) {
    QJsonArray runs;
    const auto &pages = verification.pages;
    auto fault = verification.faults.begin();
    for (std::size_t first = 0, end = 0; first < pages.size(); first = end) {
        const int number = verification.firstPage + 1 + static_cast<int>(first);
        const bool hasReason = fault != verification.faults.end() && fault->page == number;
        for (end = first + 1; !hasReason && end < pages.size() && pages[end] == pages[first];) {
            ++end;
        }
        QJsonObject run{{u"first"_s, number},
                        {u"last"_s, number + static_cast<int>(end - first) - 1},
                        {u"by"_s, nameOf(pages[first])}};
        if (hasReason) {
            run.insert(u"reason"_s, (fault++)->reason);
        }
        runs.append(run);
    }
    return runs;
}

QByteArray escapedUnits(const QString &text) {
    QByteArray result;
    for (const QChar unit : text) {
        constexpr int kDigits = 4;
        constexpr int kHexadecimal = 16;
        const QByteArray digits = QByteArray::number(unit.unicode(), kHexadecimal);
        result += "\\u" + digits.rightJustified(kDigits, '0');
    }
    return result;
}

/// Escapes the control characters that a terminal may obey, though JSON allows most of them.
QByteArray escaped(const QString &json) {
    QByteArray result;
    const auto characters = json.toUcs4();
    for (const char32_t character : characters) {
        const QString text = QString::fromUcs4(&character, 1);
        result += isPrintable(character) ? text.toUtf8() : escapedUnits(text);
    }
    return result;
}

/// The page numbers in ascending order, each once, the first ten at most.
QString pagesInWords(std::vector<int> pages) {
    constexpr std::size_t kMax = 10;
    std::sort(pages.begin(), pages.end());
    pages.erase(std::unique(pages.begin(), pages.end()), pages.end());
    QStringList numbers;
    for (std::size_t i = 0; i < std::min(pages.size(), kMax); ++i) {
        numbers += QString::number(pages[i]);
    }
    if (pages.size() > kMax) {
        numbers += u"..."_s;
    }
    return (pages.size() == 1 ? u"page "_s : u"pages "_s) + numbers.join(u", "_s);
}

/// Adds the size and the checksum of a file under these keys.
void addTo(QJsonObject &object, const std::optional<FileDigest> &digest, const QString &bytes,
           const QString &sha256) {
    if (digest) {
        object.insert(bytes, digest->bytes);
        object.insert(sha256, QString::fromLatin1(digest->sha256));
    }
}

/// Microseconds suffice.
double rounded(double seconds) {
    constexpr double kParts = 1e6;
    return std::round(seconds * kParts) / kParts;
}

QByteArray toLine(const QJsonObject &object) {
    return escaped(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

/// The version of a format, that of the program and those of its libraries.
QJsonObject headOf(int version) {
    QJsonObject libraries;
    for (const auto &[library, number] : libraryVersions()) {
        libraries.insert(library, number);
    }
    return {{u"version"_s, version}, {u"tool"_s, toolVersion()}, {u"libraries"_s, libraries}};
}

/// To the millisecond, as far as dates are kept.
QString toText(const QDateTime &date) {
    return date.toUTC().toString(Qt::ISODateWithMs);
}

} // namespace

QByteArray manifestHead(const QStringList &options, const QDateTime &created) {
    QJsonObject head = headOf(1);
    head.insert(u"created"_s, toText(created));
    head.insert(u"options"_s, QJsonArray::fromStringList(options));
    return toLine(head);
}

QByteArray toJson(const QString &file, const FileDigest &digest) {
    return toLine({{u"file"_s, file},
                   {u"bytes"_s, digest.bytes},
                   {u"sha256"_s, QString::fromLatin1(digest.sha256)}});
}

QByteArray reportHead(const QStringList &rounded) {
    QJsonObject head = headOf(1);
    if (!rounded.isEmpty()) {
        head.insert(u"rounded"_s, QJsonArray::fromStringList(rounded));
    }
    return toLine(head);
}

QByteArray toJson(const InputResult &result) {
    QJsonObject object{
        {u"input"_s, result.input},
        {u"output"_s, result.output.isEmpty() ? QJsonValue() : QJsonValue(result.output)},
        {u"pages"_s, result.pages},
        {u"state"_s, nameOf(result.state)}};
    addTo(object, result.source, u"bytes"_s, u"sha256"_s);
    addTo(object, result.target, u"outputBytes"_s, u"outputSha256"_s);
    for (const auto &[key, date] :
         {std::pair(u"modified"_s, result.modified), std::pair(u"created"_s, result.created)}) {
        if (date.isValid()) {
            object.insert(key, toText(date));
        }
    }
    if (result.firstPage > 0) {
        object.insert(u"firstPage"_s, result.firstPage);
    }
    if (result.seconds && result.outputSeconds) {
        object.insert(u"seconds"_s, rounded(*result.seconds));
        object.insert(u"outputSeconds"_s, rounded(*result.outputSeconds));
    }
    if (!result.reason.isEmpty()) {
        object.insert(u"message"_s, result.reason);
    }
    object.insert(u"warnings"_s, toJson(result.warnings));
    if (result.pageSize.isValid()) {
        object.insert(u"pageSize"_s, QJsonArray{result.pageSize.width(), result.pageSize.height()});
    }
    if (!result.archive.isEmpty()) {
        object.insert(u"archive"_s, result.archive);
    }
    if (result.embedded) {
        object.insert(u"embedded"_s, nameOf(*result.embedded));
    }
    if (result.parts) {
        object.insert(u"carried"_s, toJson(result.parts->carried));
        object.insert(u"left"_s, toJson(result.parts->left));
    }
    if (result.verification) {
        object.insert(u"verified"_s, toJson(*result.verification));
    }
    if (result.compression && result.compression->error.isEmpty()) {
        addTo(object, *result.compression);
    } else if (result.compression) {
        object.insert(u"notCompressed"_s, result.compression->error);
    }
    return toLine(object);
}

QString toWords(const CompressionOutcome &compression) {
    QString words = u"%1 -> %2 bytes, images reduced: %3"_s.arg(compression.bytesBefore)
                        .arg(compression.bytesAfter)
                        .arg(compression.imagesReduced);
    std::map<QString, std::vector<int>> pagesByReason;
    for (const KeptImage &image : compression.imagesKept) {
        pagesByReason[image.reason].push_back(image.page);
    }
    for (const auto &[reason, pages] : pagesByReason) {
        words += u", left: %1 (%2; %3)"_s.arg(pages.size()).arg(reason, pagesInWords(pages));
    }
    return words;
}

} // namespace folioforge
