#include "pdf/DocumentWriter.h"

#include "pdf/OutputPipeline.h"
#include "pdf/PDFContext.h"
#include "pdf/Password.h"
#include "pdf/QpdfBorder.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <QCryptographicHash>

#include <algorithm>
#include <array>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// The identifier that the library writes when it is told to write a fixed one.
constexpr std::string_view kPlaceholder = "31415926535897932384626433832795";

qint64 lastXrefOffset(OutputFile &file) {
    constexpr qint64 kTail = 64;
    const qint64 tailSize = std::min(kTail, file.size());
    const QByteArray tail = file.read(file.size() - tailSize, tailSize);
    const QByteArray keyword("startxref\n");
    const auto found = tail.lastIndexOf(keyword);
    const auto digits = found < 0 ? QByteArray() : tail.sliced(found + keyword.size());
    return digits.left(digits.indexOf('\n')).toLongLong();
}

/// Replaces the placeholders in the trailer by `id`, 16 bytes in hexadecimal.
void replaceId(OutputFile &file, const QByteArray &id) {
    constexpr qint64 kDictionaryLimit = 4096;
    const qint64 start = lastXrefOffset(file);
    const QByteArray trailer = file.read(start, std::min(kDictionaryLimit, file.size() - start));
    const QByteArray placeholder(kPlaceholder.data(), kPlaceholder.size());
    const auto first = trailer.indexOf("<" + placeholder + ">");
    const auto second = first < 0 ? -1 : trailer.indexOf("<" + placeholder + ">", first + 1);
    if (second < 0) {
        throw Error(u"The document's identifier cannot be written"_s);
    }
    file.overwrite(start + first + 1, id);
    file.overwrite(start + second + 1, id);
}

std::string infoText(QPDF &document) {
    return document.getTrailer().getKey("/Info").unparseResolved();
}

/// A checksum instead of the library's MD5 over all bytes: reading a disk is no faster than that.
QByteArray makeId(QPDF &document, const OutputFile &file, std::uint32_t checksum) {
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(QByteArray::fromStdString(infoText(document)));
    hash.addData(QByteArray::number(file.size()) + ' ' + QByteArray::number(checksum));
    return hash.result().toHex();
}

/// The library takes and frees blocks of a stream's size several times a stream. Given back to the
/// system each time, their pages cost more than everything else the writing of photos does.
void keepFreedBlocks() {
#ifdef __GLIBC__
    constexpr int kMaxKept = 32 << 20;
    ::mallopt(M_MMAP_THRESHOLD, kMaxKept);
    ::mallopt(M_TRIM_THRESHOLD, 2 * kMaxKept);
#endif
}

} // namespace

void applyEncryption(QPDFWriter &writer, const Encryption &encryption) {
    const QByteArray user = preparedPassword(encryption.userPassword);
    QByteArray owner = preparedPassword(encryption.ownerPassword);
    if (owner.isEmpty()) {
        // Without one everybody would be the owner.
        owner = user;
    }
    const bool allowed = true;
    writer.setR6EncryptionParameters(
        user.constData(), owner.constData(), allowed, !encryption.refuseCopy, allowed, allowed,
        allowed, allowed, encryption.refusePrint ? qpdf_r3p_none : qpdf_r3p_full, allowed);
}

void writeDocument(QPDF &document, OutputFile &file, const Encryption *encryption,
                   const std::string &minimumVersion) {
    keepFreedBlocks();
    OutputPipeline pipeline(file);
    atQpdfBorder([&] {
        QPDFWriter writer(document);
        writer.setOutputPipeline(&pipeline);
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.setCompressStreams(true);
        writer.setDecodeLevel(qpdf_dl_none);
        writer.setStaticID(true);
        writer.setMinimumPDFVersion(minimumVersion);
        if (encryption) {
            applyEncryption(writer, *encryption);
        }
        writer.registerProgressReporter(std::make_shared<QPDFWriter::FunctionProgressReporter>(
            [&](int) { pipeline.throwFailure(); }));
        writer.write();
    });
    pipeline.throwFailure();
    replaceId(file, makeId(document, file, pipeline.checksum()));
}

} // namespace folioforge
