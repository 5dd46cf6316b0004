// SPDX-License-Identifier: Apache-2.0

// folioforge-page FILE PAGE WIDTH HEIGHT: draws a page of a PDF, see PageDrawing.h. What a file
// makes of this process, the window outlives.

#include "drawing/FormFields.h"
#include "drawing/PageDrawing.h"
#include "files/ProcessSetup.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfDocument>
#include <QPdfDocumentRenderOptions>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>

namespace folioforge {
namespace {

template<typename Resource> void limit(Resource resource, rlim_t most) {
    const rlimit limits{most, most};
    ::setrlimit(resource, &limits);
}

/// Takes from this process what drawing a page does not need.
void limitResources() {
    constexpr rlim_t kSeconds = 20;
    limit(RLIMIT_CPU, kSeconds);
    limit(RLIMIT_FSIZE, 0);
#ifndef FOLIOFORGE_SANITIZED // AddressSanitizer maps terabytes that it may write to.
    // Not of all addresses: PDFium sets many gigabytes of them apart, of which it uses few.
    constexpr rlim_t kMemory = rlim_t(1536) << 20; // Bytes.
    limit(RLIMIT_DATA, kMemory);
#endif
}

int failure(DrawingFailure failure) {
    return static_cast<int>(failure);
}

DrawingFailure failureOf(QPdfDocument::Error error) {
    return error == QPdfDocument::Error::IncorrectPassword ||
                   error == QPdfDocument::Error::UnsupportedSecurityScheme
               ? DrawingFailure::NeedsPassword
               : DrawingFailure::NotReadable;
}

/// The size in pixels of a page of so many points in `room`; empty where it has none.
QSize sizeIn(QSize room, QSizeF points) {
    if (points.isEmpty()) {
        return {};
    }
    const QSizeF scaled = points.scaled(QSizeF(room), Qt::KeepAspectRatio);
    return scaled.toSize().expandedTo({1, 1}).boundedTo(room);
}

/// The page on white paper; null where it cannot be drawn.
QImage drawOnPaper(QPdfDocument &document, int page, QSize size) {
    QPdfDocumentRenderOptions options;
    options.setRenderFlags(QPdfDocumentRenderOptions::RenderFlag::Annotations);
    const QImage drawn = document.render(page, size, options);
    if (drawn.isNull()) {
        return {};
    }
    QImage paper(size, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, drawn);
    return paper;
}

/// The page with its form fields.
QImage draw(QPdfDocument &document, const QString &file, int page, QSize size,
            const QByteArray &password) {
    auto fields = pageWithFields(file, page, password);
    QBuffer buffer(fields ? &*fields : nullptr);
    QPdfDocument withFields;
    if (fields && buffer.open(QIODevice::ReadOnly)) {
        withFields.load(&buffer);
    }
    return withFields.status() == QPdfDocument::Status::Ready ? drawOnPaper(withFields, 0, size)
                                                              : drawOnPaper(document, page, size);
}

int drawPage(const PageRequest &request, const QByteArray &password) {
    QPdfDocument document;
    document.setPassword(QString::fromUtf8(password));
    const QPdfDocument::Error error = document.load(request.file);
    if (error != QPdfDocument::Error::None) {
        return failure(failureOf(error));
    }
    const int page = std::min(request.page, document.pageCount() - 1);
    const QSize size = page < 0 ? QSize() : sizeIn(request.room, document.pagePointSize(page));
    if (size.isEmpty()) {
        return failure(DrawingFailure::NoPage);
    }
    const QImage image = draw(document, request.file, page, size, password);
    if (image.isNull()) {
        return failure(DrawingFailure::NoPage);
    }
    const QByteArray pixels(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes());
    QFile out;
    return out.open(stdout, QIODevice::WriteOnly) &&
                   out.write(toBytes({page, document.pageCount(), size, pixels})) > 0
               ? 0
               : failure(DrawingFailure::NoPage);
}

} // namespace
} // namespace folioforge

int main(int argc, char *argv[]) {
    using namespace folioforge;
    prepareProcess();
    forbidCoreDumps();
    limitResources();
    const QCoreApplication application(argc, argv);
    const auto request = toPageRequest(QCoreApplication::arguments().sliced(1));
    QFile in;
    if (!request || !in.open(stdin, QIODevice::ReadOnly)) {
        return failure(DrawingFailure::WrongArguments);
    }
    return drawPage(*request, in.readAll());
}
