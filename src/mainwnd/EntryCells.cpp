// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/EntryCells.h"

#include "filelist/FileKind.h"
#include "files/Printable.h"
#include "mainwnd/FilesArray.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QStyle>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

bool isLink(const PDFFileInfo &entry, int column) {
    return column == FilesArray::DestinationColumn && entry.stateIndex() == FinishedAsLink;
}

/// The state in the user's language, or the name of the PDF.
QString stateOf(const PDFFileInfo &entry) {
    if (!entry.state()) {
        return {};
    }
    const QString &text = entry.state()->text;
    return isLink(entry, FilesArray::DestinationColumn)
               ? printable(text)
               : QCoreApplication::translate("States", text.toUtf8().constData());
}

/// "4 KB" and "595 × 842" as they are, in a text that is read from right to left, too.
QString leftToRight(const QString &text) {
    return QGuiApplication::isRightToLeft() ? u"\u2066%1\u2069"_s.arg(text) : text;
}

QString textOf(const PDFFileInfo &entry, int column) {
    switch (column) {
    case FilesArray::NumberColumn:
        return QString::number(entry.index());
    case FilesArray::NameColumn:
        return printable(entry.fileName());
    case FilesArray::SizeColumn:
        return leftToRight(entry.fileSize());
    default:
        return stateOf(entry);
    }
}

QString pagesOf(const PDFFileInfo &entry) {
    const int pages = entry.pageCount();
    if (pages == 0) {
        return {};
    }
    return pages == 1 ? QCoreApplication::translate("EntryCells", "1 page")
                      : QCoreApplication::translate("EntryCells", "%n pages", nullptr, pages);
}

/// What a cell tells where the entry needs no remark.
QString plainTipOf(const PDFFileInfo &entry, int column) {
    if (column == FilesArray::NameColumn) {
        return printable(entry.filePathName());
    }
    if (column == FilesArray::SizeColumn) {
        return pagesOf(entry);
    }
    return isLink(entry, column) ? printable(entry.destFilePathName()) : QString();
}

QString remarksOf(const PDFFileInfo &entry) {
    QStringList lines;
    for (const QString &remark : entry.remarks()) {
        lines += QCoreApplication::translate("EntryCells", "%1.").arg(printable(remark));
    }
    return lines.join(u'\n');
}

/// A tool tip in which nothing is read as HTML, and whose remarks are broken into lines.
QVariant toolTipOf(const PDFFileInfo &entry, int column) {
    const QString tip = plainTipOf(entry, column);
    const QString remarks = remarksOf(entry);
    if (remarks.isEmpty() && !Qt::mightBeRichText(tip)) {
        return tip.isEmpty() ? QVariant() : QVariant(tip);
    }
    const QString html = tip.isEmpty() ? QString() : Qt::convertFromPlainText(tip);
    return html + Qt::convertFromPlainText(remarks, Qt::WhiteSpaceNormal);
}

/// The mark of an entry of which there is something to say.
QVariant markOf(const PDFFileInfo &entry, int column) {
    if (column != FilesArray::NameColumn || entry.remarks().isEmpty()) {
        return {};
    }
    return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
}

QVariant fontOf(const RichText &text) {
    if (!text.underlined) {
        return {};
    }
    QFont font;
    font.setUnderline(true);
    return font;
}

QVariant colorOf(const RichText &text) {
    return text.color ? QVariant(QColor(*text.color)) : QVariant();
}

QVariant alignmentOf(int column) {
    const Qt::Alignment horizontal =
        column == FilesArray::NameColumn ? Qt::AlignLeft : Qt::AlignHCenter;
    return QVariant::fromValue(Qt::Alignment(horizontal | Qt::AlignVCenter));
}

} // namespace

QVariant entryCell(const PDFFileInfo &entry, int column, int role) {
    const bool hasLook = column == FilesArray::DestinationColumn && entry.state();
    switch (role) {
    case Qt::DisplayRole:
        return textOf(entry, column);
    case Qt::ToolTipRole:
        return toolTipOf(entry, column);
    case Qt::DecorationRole:
        return markOf(entry, column);
    case Qt::AccessibleDescriptionRole:
        return column == FilesArray::NameColumn ? remarksOf(entry) : QString();
    case Qt::TextAlignmentRole:
        return alignmentOf(column);
    case Qt::FontRole:
        return hasLook ? fontOf(*entry.state()) : QVariant();
    case Qt::ForegroundRole:
        return hasLook ? colorOf(*entry.state()) : QVariant();
    case FilesArray::kLinkRole:
        return isLink(entry, column);
    case FilesArray::kKindRole:
        return static_cast<int>(entry.kind());
    default:
        return {};
    }
}

} // namespace folioforge
