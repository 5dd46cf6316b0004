// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace folioforge {

// What the window and the program that draws pages say to each other. The window starts it with a
// request as arguments and the document's password on standard input; it answers with a page on
// standard output, or with one of the exit statuses below.

/// A page that is to be drawn.
struct PageRequest {
    QString file; ///< The path of a PDF.
    int page = 0; ///< Counts from 0. Beyond the last, the last is meant.
    QSize room;   ///< Pixels into which the page has to fit.
};

QStringList toArguments(const PageRequest &request);
/// Nothing where `arguments` are no request.
std::optional<PageRequest> toPageRequest(const QStringList &arguments);

/// A page as it was drawn.
struct DrawnPage {
    int page = 0;
    int pages = 0;     ///< Of the document.
    QSize size;        ///< Pixels.
    QByteArray pixels; ///< Rows from the top, four bytes a pixel: blue, green, red and one unused.
};

QByteArray toBytes(const DrawnPage &page);
/// Nothing where `bytes` are no page, or one that does not fit into `room`.
std::optional<DrawnPage> toDrawnPage(const QByteArray &bytes, QSize room);
/// The most bytes that a page in `room` has.
qsizetype maxBytes(QSize room);

/// How the program ends without a page.
enum class DrawingFailure { WrongArguments = 2, NotReadable = 3, NeedsPassword = 4, NoPage = 5 };

} // namespace folioforge
