// SPDX-License-Identifier: Apache-2.0

#include "pdf/DocumentWriter.h"

#include "error/Reasons.h"
#include "pdf/Password.h"
#include "pdf/QpdfErrors.h"
#include "pdf/XmpPacket.h"
#include "pdf/tags/CrossReferences.h"
#include "pdf/tags/ObjectStreams.h"
#include "pdf/tags/StreamCipher.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <QCryptographicHash>

#include <libdeflate.h>

#include <algorithm>

namespace folioforge {

namespace {

/// Hexadecimal digits of an identifier.
constexpr qsizetype kIdDigits = 32;

/// The end of a written file, from its cross-reference section on.
struct Trailer {
    qint64 start = 0;
    QByteArray bytes;
};

Trailer readTrailer(OutputFile &file) {
    constexpr qint64 kTail = 64;
    const qint64 tailSize = std::min(kTail, file.size());
    const QByteArray tail = file.read(file.size() - tailSize, tailSize);
    const QByteArray keyword("startxref\n");
    const auto found = tail.lastIndexOf(keyword);
    const auto digits = found < 0 ? QByteArray() : tail.sliced(found + keyword.size());
    const qint64 start = digits.left(digits.indexOf('\n')).toLongLong();
    return {start, file.read(start, file.size() - start)};
}

/// Writes `id` in the place of both identifiers of `trailer`.
void putId(Trailer &trailer, const QByteArray &id) {
    const QByteArray key("/ID [<");
    const auto first = trailer.bytes.indexOf(key) + key.size();
    const auto second = first + id.size() + 2; // Behind "><".
    if (first < key.size() || trailer.bytes.mid(second + id.size(), 2) != ">]") {
        throw Error(Reasons::tr("The document's identifier cannot be written"));
    }
    trailer.bytes.replace(first, id.size(), id);
    trailer.bytes.replace(second, id.size(), id);
}

std::uint32_t crcOf(const QByteArray &bytes) {
    return libdeflate_crc32(0, bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

/// The CRC-32 of a file without `tail`, with which it has the CRC-32 `checksum`: each step of the
/// sum is taken back.
std::uint32_t crcBefore(std::uint32_t checksum, const QByteArray &tail) {
    constexpr std::uint32_t kPolynomial = 0xEDB88320;
    constexpr unsigned kBits = 8;
    std::uint32_t sum = ~checksum;
    for (auto byte = tail.crbegin(); byte != tail.crend(); ++byte) {
        for (unsigned bit = 0; bit < kBits; ++bit) {
            const bool wasOdd = (sum & 0x80000000U) != 0;
            sum = (wasOdd ? sum ^ kPolynomial : sum) << 1U | (wasOdd ? 1U : 0U);
        }
        sum ^= static_cast<unsigned char>(*byte);
    }
    return ~sum;
}

std::string infoText(QPDF &document) {
    return document.getTrailer().getKey("/Info").unparseResolved();
}

/// Puts zeros in the place of the identifier of `trailer`. Returns the checksum of the file as it
/// then is.
std::uint32_t clearId(Trailer &trailer, std::uint32_t checksum) {
    // CRC-32 is linear, so two sums over the trailer replace the library's digits by zeros in it.
    checksum ^= crcOf(trailer.bytes);
    putId(trailer, QByteArray(kIdDigits, '0'));
    return checksum ^ crcOf(trailer.bytes);
}

/// Replaces the identifier, which the library derives from the time, by one that follows from the
/// document. `checksum` is the CRC-32 of the file; the library's deterministic identifier is an
/// MD5 over all bytes, which takes as long as reading them from a disk. Gives that of the file
/// then.
std::uint32_t replaceId(QPDF &document, OutputFile &file, std::uint32_t checksum) {
    Trailer trailer = readTrailer(file);
    checksum = clearId(trailer, checksum);
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(QByteArray::fromStdString(infoText(document)));
    hash.addData(QByteArray::number(file.size()) + ' ' + QByteArray::number(checksum));
    checksum ^= crcOf(trailer.bytes);
    putId(trailer, hash.result().toHex());
    file.overwrite(trailer.start, trailer.bytes);
    return checksum ^ crcOf(trailer.bytes);
}

} // namespace

OutputPipeline::OutputPipeline(OutputFile &file)
    : Pipeline("output", nullptr)
    , m_file(file) {}

void OutputPipeline::write(unsigned char const *data, size_t length) {
    if (m_failure) {
        return;
    }
    m_checksum = libdeflate_crc32(m_checksum, data, length);
    try {
        m_file.write({reinterpret_cast<const char *>(data), length});
    } catch (const Error &error) {
        m_failure = error;
    }
}

void OutputPipeline::throwFailure() const {
    if (m_failure) {
        throw Error(*m_failure);
    }
}

void applyEncryption(QPDFWriter &writer, const Encryption &encryption) {
    const PreparedPasswords passwords = preparedPasswords(encryption);
    const bool allowed = true;
    writer.setR6EncryptionParameters(
        passwords.user.constData(), passwords.owner.constData(), allowed, !encryption.refuseCopy,
        allowed, allowed, allowed, allowed, encryption.refusePrint ? qpdf_r3p_none : qpdf_r3p_full,
        allowed);
}

DocumentForm formFor(const Claims &claims) {
    // PDF/A-1 stands on PDF 1.4, which knows no object streams.
    return {{}, claims.pdfA == u"1", !claims.pdfA.isEmpty()};
}

void applyForm(QPDFWriter &writer, const DocumentForm &form) {
    writer.setObjectStreamMode(form.classic ? qpdf_o_disable : qpdf_o_generate);
    writer.setNewlineBeforeEndstream(form.endsStreamLines);
    writer.setMinimumPDFVersion(form.version);
}

namespace {

/// Writes `further` objects in the place of the library's cross-reference stream, and their own
/// behind them.
void writeFurther(QPDFWriter &writer, OutputFile &file, OutputPipeline &pipeline,
                  const StreamCipher *cipher, const FurtherObjects &further) {
    Trailer trailer = readTrailer(file);
    CrossReferences references(trailer.bytes);
    pipeline.setChecksum(crcBefore(pipeline.checksum(), trailer.bytes));
    file.cutTo(trailer.start);
    ObjectStreams streams(pipeline, trailer.start, references, cipher);
    const auto numberOf = [&writer](const QPDFObjectHandle &object) {
        return writer.getRenumberedObjGen(object.getObjGen()).getObj();
    };
    further(numberOf, streams);
    streams.finish();
}

} // namespace

std::uint32_t writeDocument(QPDF &document, OutputFile &file, const Encryption *encryption,
                            const DocumentForm &form, const FurtherObjects &further) {
    OutputPipeline pipeline(file);
    translateQpdfErrors([&] {
        const auto model = further && encryption ? encryptedLike(*encryption) : nullptr;
        QPDFWriter writer(document);
        writer.setOutputPipeline(&pipeline);
        applyForm(writer, form);
        writer.setCompressStreams(true);
        writer.setDecodeLevel(qpdf_dl_none);
        if (model) {
            writer.copyEncryptionParameters(*model);
        } else if (encryption) {
            applyEncryption(writer, *encryption);
        }
        writer.registerProgressReporter(std::make_shared<QPDFWriter::FunctionProgressReporter>(
            [&](int) { pipeline.throwFailure(); }));
        writer.write();
        pipeline.throwFailure();
        if (further) {
            const auto cipher =
                model ? std::optional(StreamCipher(model->getEncryptionKey())) : std::nullopt;
            writeFurther(writer, file, pipeline, cipher ? &*cipher : nullptr, further);
        }
    });
    pipeline.throwFailure();
    return replaceId(document, file, pipeline.checksum());
}

} // namespace folioforge
