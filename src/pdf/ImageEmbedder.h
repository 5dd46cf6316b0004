// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/PdfImage.h"
#include "pdf/StreamData.h"

#include <QByteArray>
#include <QHash>

#include <map>
#include <string>

namespace folioforge {

/// Makes image XObjects (ISO 32000-1, 8.9.5).
class ImageEmbedder {
  public:
    ImageEmbedder(QPDF &document, StreamData &streams);

    /// The XObject of `image`. The same part of the same source file is embedded once. Throws Error
    /// when the source file has changed since it was examined.
    QPDFObjectHandle embed(const PdfImage &image);
    /// Lets the images that follow share nothing with those before.
    void forget();

  private:
    QPDFObjectHandle makeStream(const QPDFObjectHandle &dictionary, const PdfImage &image);
    QPDFObjectHandle makeImage(const PdfImage &image);
    QPDFObjectHandle colorSpace(const PdfImage &image);
    QPDFObjectHandle profiled(const PdfImage &image, int components, const char *device);

    QPDF &m_document;
    StreamData &m_streams;
    QHash<QByteArray, std::size_t> m_profileIndex; ///< By the profile's digest.
    std::vector<QPDFObjectHandle> m_profiles;
    std::map<std::string, QPDFObjectHandle> m_embedded; ///< By source file and slices.
};

} // namespace folioforge
