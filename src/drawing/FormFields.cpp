// SPDX-License-Identifier: Apache-2.0

#include "drawing/FormFields.h"

#include <QFile>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <exception>

namespace folioforge {
namespace {

QByteArray writtenBytes(QPDF &document) {
    QPDFWriter writer(document);
    writer.setOutputMemory();
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char *>(buffer->getBuffer()),
            static_cast<qsizetype>(buffer->getSize())};
}

/// Which layers are hidden.
void copyLayers(QPDF &from, QPDF &to) {
    QPDFObjectHandle layers = from.getRoot().getKey("/OCProperties");
    if (layers.isDictionary()) {
        to.getRoot().replaceKey("/OCProperties",
                                to.copyForeignObject(from.makeIndirectObject(layers)));
    }
}

} // namespace

std::optional<QByteArray> pageWithFields(const QString &path, int page,
                                         const QByteArray &password) {
    try {
        QPDF source;
        source.setSuppressWarnings(true);
        source.processFile(QFile::encodeName(path).constData(), password.constData());
        if (!source.getRoot().hasKey("/AcroForm")) {
            return std::nullopt;
        }
        QPDFAcroFormDocumentHelper(source).generateAppearancesIfNeeded();
        QPDFPageDocumentHelper pages(source);
        pages.pushInheritedAttributesToPage();
        QPDF single;
        single.emptyPDF();
        QPDFPageDocumentHelper singlePage(single);
        singlePage.addPage(pages.getAllPages().at(static_cast<std::size_t>(page)), true);
        copyLayers(source, single);
        singlePage.flattenAnnotations();
        return writtenBytes(single);
    } catch (const std::exception &) {
        return std::nullopt; // The page is drawn without its fields.
    }
}

} // namespace folioforge
