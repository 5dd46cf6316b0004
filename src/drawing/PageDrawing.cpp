// SPDX-License-Identifier: Apache-2.0

#include "drawing/PageDrawing.h"

#include <QDataStream>
#include <QIODevice>

#include <utility>

namespace folioforge {
namespace {

constexpr qsizetype kHeaderBytes = 4 * sizeof(qint32);
constexpr int kPixelBytes = 4;
constexpr int kMaxPixels = 1 << 14; ///< On a side; more are on no screen.

bool isDrawable(QSize size) {
    return size.width() > 0 && size.height() > 0 && size.width() <= kMaxPixels &&
           size.height() <= kMaxPixels;
}

qsizetype pixelBytes(QSize size) {
    return qsizetype(size.width()) * size.height() * kPixelBytes;
}

} // namespace

QStringList toArguments(const PageRequest &request) {
    return {request.file, QString::number(request.page), QString::number(request.room.width()),
            QString::number(request.room.height())};
}

std::optional<PageRequest> toPageRequest(const QStringList &arguments) {
    if (arguments.size() != 4) {
        return std::nullopt;
    }
    bool isPage = false;
    const PageRequest request{
        arguments[0], arguments[1].toInt(&isPage), {arguments[2].toInt(), arguments[3].toInt()}};
    return isPage && request.page >= 0 && isDrawable(request.room) ? std::optional(request)
                                                                   : std::nullopt;
}

QByteArray toBytes(const DrawnPage &page) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const int number : {page.page, page.pages, page.size.width(), page.size.height()}) {
        stream << qint32(number);
    }
    return bytes + page.pixels;
}

std::optional<DrawnPage> toDrawnPage(const QByteArray &bytes, QSize room) {
    QDataStream stream(bytes);
    qint32 page = 0;
    qint32 pages = 0;
    qint32 width = 0;
    qint32 height = 0;
    stream >> page >> pages >> width >> height;
    const QSize size(width, height);
    if (stream.status() != QDataStream::Ok || page < 0 || page >= pages || !isDrawable(size) ||
        size.boundedTo(room) != size || bytes.size() != kHeaderBytes + pixelBytes(size)) {
        return std::nullopt;
    }
    return DrawnPage{page, pages, size, bytes.sliced(kHeaderBytes)};
}

qsizetype maxBytes(QSize room) {
    return kHeaderBytes + pixelBytes(room);
}

} // namespace folioforge
