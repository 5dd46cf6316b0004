// SPDX-License-Identifier: Apache-2.0

#include "pdf/archive/SourceAttachment.h"

#include "image/PdfImage.h"
#include "pdf/DocumentInfo.h"
#include "pdf/StreamData.h"
#include "pdf/archive/SourceOriginal.h"

#include <QCryptographicHash>
#include <QDateTime>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

std::string checksumOf(const SourceFile &file) {
    constexpr qint64 kPiece = 1 << 20;
    QCryptographicHash hash(QCryptographicHash::Md5); // As the format wants it.
    std::vector<char> piece(kPiece);
    for (qint64 at = 0; at < file.version().size;) {
        const qint64 got = file.readAt(at, piece);
        if (got == 0) {
            throwFileChanged(file.version().path);
        }
        hash.addData(QByteArrayView(piece.data(), got));
        at += got;
    }
    file.requireUnchanged();
    return hash.result().toStdString();
}

QPDFObjectHandle parametersOf(const SourceFile &file) {
    const QDateTime modified = file.version().modified().toUTC();
    auto parameters = QPDFObjectHandle::newDictionary();
    parameters.replaceKey("/Size", QPDFObjectHandle::newInteger(file.version().size));
    parameters.replaceKey("/ModDate", QPDFObjectHandle::newString(pdfDate(modified).toStdString()));
    parameters.replaceKey("/CheckSum", QPDFObjectHandle::newString(checksumOf(file)));
    return parameters;
}

QPDFObjectHandle embeddedFile(const QByteArray &type) {
    auto dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/EmbeddedFile"));
    dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName('/' + type.toStdString()));
    return dictionary;
}

QPDFObjectHandle specificationOf(const QPDFObjectHandle &stream, const QString &name,
                                 const char *relationship) {
    auto files = QPDFObjectHandle::newDictionary();
    files.replaceKey("/F", stream);
    files.replaceKey("/UF", stream);
    auto specification = QPDFObjectHandle::newDictionary();
    specification.replaceKey("/Type", QPDFObjectHandle::newName("/Filespec"));
    specification.replaceKey("/UF", QPDFObjectHandle::newUnicodeString(name.toStdString()));
    specification.replaceKey("/EF", files);
    specification.replaceKey("/AFRelationship", QPDFObjectHandle::newName(relationship));
    return specification;
}

} // namespace

QPDFObjectHandle dataAttachment(const QString &name, const QByteArray &type, const QByteArray &data,
                                StreamData &streams) {
    const QDateTime made = sourceDate().value_or(QDateTime::currentDateTimeUtc());
    auto parameters = QPDFObjectHandle::newDictionary();
    parameters.replaceKey("/Size", QPDFObjectHandle::newInteger(data.size()));
    parameters.replaceKey("/ModDate", QPDFObjectHandle::newString(pdfDate(made).toStdString()));
    auto dictionary = embeddedFile(type);
    dictionary.replaceKey("/Params", parameters);
    return specificationOf(streams.deflated(dictionary, data), name, "/Supplement");
}

QPDFObjectHandle sourceAttachment(const SourceOriginal &source, StreamData &streams,
                                  SystemCalls &calls) {
    auto file = std::make_shared<const SourceFile>(SourceFile::open(source.file.path, calls));
    if (file->version() != source.file) {
        throwFileChanged(source.file.path);
    }
    auto dictionary = embeddedFile(source.type);
    dictionary.replaceKey("/Params", parametersOf(*file));
    const qint64 size = file->version().size;
    const auto stream = streams.fromFile(dictionary, std::move(file), {{0, size}});
    return specificationOf(stream, source.name, "/Source");
}

} // namespace folioforge
