// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/DocumentWriter.h"

#include "error/Error.h"
#include "files/OutputFile.h"
#include "pdf/QpdfErrors.h"
#include "pdf/XmpPacket.h"
#include "pdf/writing/CrossReferences.h"
#include "pdf/writing/FileBody.h"
#include "pdf/writing/ObjectStreams.h"
#include "pdf/writing/OutputPipeline.h"
#include "pdf/writing/StreamCipher.h"

#include <qpdf/QPDF.hh>

#include <QCryptographicHash>

#include <optional>

namespace folioforge {

namespace {

/// That of the form, or the first that knows what the file is made of.
PDFVersion versionFor(const DocumentForm &form, bool isEncrypted) {
    constexpr int kAes256 = 8; // The extension level of PDF 1.7.
    PDFVersion version = form.version;
    version.updateIfGreater(form.classic ? PDFVersion(1, 4) : PDFVersion(1, 5));
    if (isEncrypted) {
        version.updateIfGreater(PDFVersion(1, 7, kAes256));
    }
    return version;
}

std::string numberOf(const PDFVersion &version) {
    return std::to_string(version.getMajor()) + '.' + std::to_string(version.getMinor());
}

/// States in the catalog which extensions of the format the document has (ISO 32000-1, 7.12).
void stateExtensions(QPDF &document, const PDFVersion &version) {
    auto catalog = document.getRoot();
    auto extensions = catalog.getKey("/Extensions");
    extensions =
        extensions.isDictionary() ? extensions.shallowCopy() : QPDFObjectHandle::newDictionary();
    extensions.removeKey("/ADBE");
    if (version.getExtensionLevel() > 0) {
        extensions.replaceKey(
            "/ADBE",
            QPDFObjectHandle::parse("<< /BaseVersion /" + numberOf(version) + " /ExtensionLevel " +
                                    std::to_string(version.getExtensionLevel()) + " >>"));
    }
    if (extensions.getKeys().empty()) {
        catalog.removeKey("/Extensions");
    } else {
        catalog.replaceKey("/Extensions", extensions);
    }
}

/// An identifier that follows from the file as it is up to its end. An MD5 over all bytes takes as
/// long as reading them from a disk.
QByteArray identifierOf(QPDF &document, OutputPipeline &output) {
    const auto info = document.getTrailer().getKey("/Info").unparseResolved();
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(QByteArray::fromStdString(info));
    hash.addData(QByteArray::number(output.position()) + ' ' + QByteArray::number(output.drain()));
    return '<' + hash.result().toHex() + '>';
}

/// Throws Error where a file of so many objects and bytes is no PDF/A (ISO 19005-1, 6.1.12, and
/// ISO 19005-2, 6.1.13), or its table of cross-references has no room for its offsets.
void requireWithinLimits(const DocumentForm &form, qsizetype objects, qint64 bytes) {
    constexpr qsizetype kMaxObjects = 8'388'607;
    constexpr qint64 kMaxOffset = 9'999'999'999;
    if ((form.archive && objects > kMaxObjects) || (form.classic && bytes > kMaxOffset)) {
        throw Error(Reasons::tr("The document is too large for PDF/A"));
    }
}

} // namespace

DocumentForm formFor(const Claims &claims) {
    // PDF/A-1 stands on PDF 1.4, which knows no object streams.
    return {.version = {}, .classic = claims.pdfA == u"1", .archive = !claims.pdfA.isEmpty()};
}

namespace {

void write(QPDF &document, OutputPipeline &output, const DocumentForm &form, QPDF *encryption,
           const WriteSteps &steps) {
    const auto cipher =
        encryption ? std::optional(StreamCipher(encryption->getEncryptionKey())) : std::nullopt;
    const StreamCipher *cipherOrNone = cipher ? &*cipher : nullptr;
    const PDFVersion version = versionFor(form, encryption != nullptr);
    stateExtensions(document, version);
    // Bytes that are no text make programs take the file for binary.
    output.append(QByteArray::fromStdString("%PDF-" + numberOf(version) + "\n%\xbf\xf7\xa2\xfe\n"));

    CrossReferences references;
    ObjectStreams streams(output, references, cipherOrNone);
    FileBody body(document, output, references, form.classic ? nullptr : &streams, cipherOrNone,
                  form.repacks);
    QByteArray keys;
    for (const char *key : {"/Root", "/Info"}) {
        const auto object = document.getTrailer().getKey(key);
        if (object.isIndirect()) {
            keys += key + (' ' + QByteArray::number(body.numberOf()(object.getObjGen()))) + " 0 R ";
        }
    }
    body.write(steps.eachObject);
    if (steps.further) {
        steps.further(body.numberOf(), streams);
        body.write(steps.eachObject); // What only they refer to.
    }
    streams.finish();
    if (encryption) {
        const int number =
            body.writeAsIs(encryption->getTrailer().getKey("/Encrypt").unparseResolved());
        keys += "/Encrypt " + QByteArray::number(number) + " 0 R ";
    }
    const qsizetype ownObjects = form.classic ? 0 : 1; // The stream of cross-references.
    requireWithinLimits(form, references.count() + ownObjects, output.position());
    const QByteArray identifier = identifierOf(document, output);
    keys += "/ID [" + identifier + identifier + ']';
    const qint64 end = output.position();
    output.append(form.classic ? references.endAsTable(end, keys)
                               : references.endAsStream(end, keys));
}

} // namespace

std::uint32_t writeDocument(QPDF &document, OutputFile &file, const Encryption *encryption,
                            const DocumentForm &form, const WriteSteps &steps) {
    OutputPipeline output(file);
    translateQpdfErrors([&] {
        const auto model = encryption ? encryptedLike(*encryption) : nullptr;
        write(document, output, form, model.get(), steps);
    });
    return output.drain();
}

} // namespace folioforge
