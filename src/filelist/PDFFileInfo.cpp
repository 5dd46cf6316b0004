// SPDX-License-Identifier: Apache-2.0

#include "filelist/PDFFileInfo.h"

#include "error/Error.h"
#include "filelist/FileKind.h"
#include "filelist/TextSource.h"
#include "files/PathNames.h"
#include "text/FontCascade.h"

#include <QDateTime>
#include <QFileInfo>
#include <QList>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr int kHeadLength = 8;
constexpr int kTailLength = 10;

/// The look of a state that is told in words, for whose translation the window asks.
RichText inWords(const char *state) {
    return {QString::fromLatin1(state), false, {}};
}

/// Whole points of a length, cut off; a length beyond 32 bits counts as the largest number.
int wholePoints(double length) {
    return static_cast<int>(std::min<double>(length, std::numeric_limits<int>::max()));
}

QString dimensionsText(QSizeF size) {
    return u"%1 \u00d7 %2"_s.arg(wholePoints(size.width())).arg(wholePoints(size.height()));
}

/// Width in points of `name` on one line in "Lucida Grande" at 11 points; where the system lacks
/// that font, in the free fonts that stand in for it.
double nameWidth(const QString &name) {
    constexpr double kSize = 11;
    // The window's font metrics need a running window system, which the command line lacks.
    static const auto font = FontCascade::load({u"Lucida Grande"_s}, kSize);
    double width = 0;
    const auto characters = name.toUcs4();
    for (const uint character : characters) {
        width += font->glyph(character).advance;
    }
    return width;
}

QVariant dateOrNothing(const QDateTime &date) {
    return date.isValid() ? QVariant(date) : QVariant();
}

} // namespace

PDFFileInfo::PDFFileInfo(const QString &path, SourceReading reading, FurtherTypes further)
    : m_filePathName(path)
    , m_kind(fileKind(path, further)) {
    readSource(reading);
    setStateIndex(Waiting);
}

void PDFFileInfo::setFilePathName(const QString &path) {
    m_filePathName = path;
    m_kind = fileKind(path);
    readSource(SourceReading::WhenListed);
}

void PDFFileInfo::readSource(SourceReading reading) {
    m_fileName = lastPathComponent(m_filePathName);
    m_fileString = QString();
    m_textIsHeld = false;
    m_srcImage.reset();
    m_readError.clear();
    m_readWarnings.clear();
    m_remarks.reset();
    switch (m_kind) {
    case FileKind::Text:
        m_textIsHeld = reading == SourceReading::WhenListed;
        readText();
        break;
    case FileKind::Pdf:
        break;
    case FileKind::Image:
    case FileKind::FurtherImage:
    case FileKind::Other:
        readImage();
        break;
    }
}

void PDFFileInfo::readText() {
    try {
        if (m_textIsHeld) {
            SourceText source = SourceText::open(m_filePathName);
            m_fileString = source.rest();
            m_readWarnings = source.warnings();
        } else {
            requireReadableText(m_filePathName);
        }
    } catch (const Error &error) {
        m_readError = error.reason();
    }
}

SourceText PDFFileInfo::sourceText(SystemCalls &calls, const QString &encoding) const {
    if (!m_textIsHeld) {
        return SourceText::open(m_filePathName, calls, encoding);
    }
    Warnings warnings = m_readWarnings;
    if (!m_readError.isEmpty()) {
        warnings.push_back({WarningCode::TextUnreadable, m_readError});
    }
    return SourceText(m_fileString, std::move(warnings));
}

void PDFFileInfo::readImage() {
    try {
        m_srcImage = SourceImage{m_filePathName, readImageHeader(m_filePathName)};
    } catch (const Error &error) {
        m_readError = error.reason();
    }
    m_fileSize = dimensionsText(m_srcImage ? m_srcImage->sizeInPoints() : QSizeF(0, 0));
}

QString PDFFileInfo::bookmarkTitle() const {
    return m_bookmarkTitle.isEmpty() ? withoutExtension(m_fileName) : m_bookmarkTitle;
}

QStringList PDFFileInfo::remarks() const {
    if (m_remarks) {
        return *m_remarks;
    }
    QStringList remarks;
    if (!m_readError.isEmpty()) {
        remarks += m_readError;
    }
    for (const Warning &warning : m_readWarnings) {
        remarks += warning.text;
    }
    return remarks;
}

void PDFFileInfo::setDestFilePathName(const QString &path) {
    m_destFilePathName = path;
    m_destFileName = lastPathComponent(path);
}

void PDFFileInfo::setStateIndex(int code) {
    m_stateIndex = code;
    switch (code) {
    case Waiting:
        m_state = inWords(QT_TRANSLATE_NOOP("States", "Waiting..."));
        break;
    case Converting:
        m_state = inWords(QT_TRANSLATE_NOOP("States", "Converting..."));
        break;
    case FinishedAsLink:
        m_state = linkText();
        break;
    case Finished:
        m_state = inWords(QT_TRANSLATE_NOOP("States", "Finished"));
        break;
    case Failed:
        m_state = inWords(QT_TRANSLATE_NOOP("States", "Failed"));
        break;
    default:
        m_state.reset();
    }
}

/// A name whose last ten characters are wider than the column keeps them once its head is gone.
RichText PDFFileInfo::linkText() const {
    constexpr float kColumnWidth = 100;
    int shrink = 0;
    while (shrink < kHeadLength && GetWidthOfName(getShortDestFileName(shrink)) > kColumnWidth) {
        ++shrink;
    }
    return {getShortDestFileName(shrink), true, Qt::blue};
}

QString PDFFileInfo::getShortDestFileName(int shrink) const {
    if (m_destFileName.size() <= kHeadLength + kTailLength - shrink) {
        return m_destFileName;
    }
    return m_destFileName.first(std::clamp<qsizetype>(kHeadLength - shrink, 0, kHeadLength)) +
           u"..."_s + m_destFileName.right(kTailLength);
}

float PDFFileInfo::GetWidthOfName(const QString &name) {
    return static_cast<float>(std::trunc(nameWidth(name)));
}

QVariant PDFFileInfo::valueForUndefinedKey(const QString &key) const {
    if (key == kMDItemFSName) {
        return m_fileName.toLower();
    }
    const QFileInfo info(m_filePathName);
    if (!info.exists()) {
        return {};
    }
    if (key == kMDItemFSSize) {
        return info.size();
    }
    if (key == kMDItemFSCreationDate) {
        return dateOrNothing(info.birthTime());
    }
    if (key == kMDItemFSContentChangeDate) {
        return dateOrNothing(info.lastModified());
    }
    return {};
}

} // namespace folioforge
