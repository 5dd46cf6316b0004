// SPDX-License-Identifier: Apache-2.0

#include "pdf/ImageEmbedder.h"

#include "image/Raster.h"

#include <qpdf/QPDF.hh>

#include <QCryptographicHash>

namespace folioforge {

namespace {

const char *filterName(ImageFilter filter) {
    switch (filter) {
    case ImageFilter::Dct:
        return "/DCTDecode";
    case ImageFilter::Jpx:
        return "/JPXDecode";
    case ImageFilter::CcittFax:
        return "/CCITTFaxDecode";
    case ImageFilter::Flate:
        break;
    }
    return "/FlateDecode";
}

void addDecodeParms(QPDFObjectHandle &dictionary, const PdfImage &image) {
    auto parms = QPDFObjectHandle::newDictionary();
    if (image.filter == ImageFilter::CcittFax) {
        parms.replaceKey("/K", QPDFObjectHandle::newInteger(image.ccittK));
        parms.replaceKey("/Columns", QPDFObjectHandle::newInteger(image.width));
        parms.replaceKey("/Rows", QPDFObjectHandle::newInteger(image.height));
        parms.replaceKey("/BlackIs1", QPDFObjectHandle::newBool(image.ccittBlackIs1));
    } else if (image.filter == ImageFilter::Flate && image.predictor > 1) {
        parms.replaceKey("/Predictor", QPDFObjectHandle::newInteger(image.predictor));
        parms.replaceKey("/Colors", QPDFObjectHandle::newInteger(channelCount(image.color)));
        parms.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(image.bitsPerComponent));
        parms.replaceKey("/Columns", QPDFObjectHandle::newInteger(image.width));
    } else if (image.filter == ImageFilter::Dct && image.isPlainRgb) {
        parms.replaceKey("/ColorTransform", QPDFObjectHandle::newInteger(0));
    } else {
        return;
    }
    dictionary.replaceKey("/DecodeParms", parms);
}

QPDFObjectHandle labSpace() {
    // D50, the white point of ICC's connection space, and the range of signed 8-bit samples.
    return QPDFObjectHandle::parse(
        "[/Lab << /WhitePoint [0.9642 1 0.8249] /Range [-128 127 -128 127] >>]");
}

std::string sourceKey(const PdfImage &image) {
    std::string key = image.source->version().key();
    for (const FileSlice &slice : image.slices) {
        key += ' ' + std::to_string(slice.offset) + '+' + std::to_string(slice.length);
    }
    return key;
}

} // namespace

ImageEmbedder::ImageEmbedder(QPDF &document, StreamData &streams)
    : m_document(document)
    , m_streams(streams) {}

QPDFObjectHandle ImageEmbedder::profiled(const PdfImage &image, int components,
                                         const char *device) {
    if (image.iccProfile.isEmpty()) {
        return QPDFObjectHandle::newName(device);
    }
    const QByteArray digest =
        QCryptographicHash::hash(image.iccProfile, QCryptographicHash::Sha256);
    auto known = m_profileIndex.constFind(digest);
    if (known == m_profileIndex.constEnd()) {
        auto dictionary = QPDFObjectHandle::newDictionary();
        dictionary.replaceKey("/N", QPDFObjectHandle::newInteger(components));
        dictionary.replaceKey("/Alternate", QPDFObjectHandle::newName(device));
        auto space = QPDFObjectHandle::newArray();
        space.appendItem(QPDFObjectHandle::newName("/ICCBased"));
        space.appendItem(m_streams.deflated(dictionary, image.iccProfile));
        m_profiles.push_back(m_document.makeIndirectObject(space));
        known = m_profileIndex.insert(digest, m_profiles.size() - 1);
    }
    return m_profiles[known.value()];
}

QPDFObjectHandle ImageEmbedder::colorSpace(const PdfImage &image) {
    switch (image.color) {
    case ImageColor::Gray:
        return profiled(image, 1, "/DeviceGray");
    case ImageColor::Cmyk:
        return profiled(image, 4, "/DeviceCMYK");
    case ImageColor::Lab:
        return labSpace();
    case ImageColor::FromJpx:
        return QPDFObjectHandle::newNull();
    case ImageColor::Rgb:
    case ImageColor::Indexed:
        break;
    }
    const auto rgb = profiled(image, 3, "/DeviceRGB");
    if (image.color == ImageColor::Rgb) {
        return rgb;
    }
    auto indexed = QPDFObjectHandle::newArray();
    indexed.appendItem(QPDFObjectHandle::newName("/Indexed"));
    indexed.appendItem(rgb);
    indexed.appendItem(QPDFObjectHandle::newInteger(image.palette.size() / 3 - 1));
    indexed.appendItem(QPDFObjectHandle::newString(image.palette.toStdString()));
    return indexed;
}

QPDFObjectHandle ImageEmbedder::makeStream(const QPDFObjectHandle &dictionary,
                                           const PdfImage &image) {
    if (image.slices.empty()) {
        return m_streams.fromBytes(dictionary, image.data);
    }
    return m_streams.fromFile(dictionary, image.source, image.slices);
}

QPDFObjectHandle ImageEmbedder::makeImage(const PdfImage &image) {
    auto dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Image"));
    dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(image.width));
    dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(image.height));
    dictionary.replaceKey("/Filter", QPDFObjectHandle::newName(filterName(image.filter)));
    if (image.filter != ImageFilter::Jpx) {
        dictionary.replaceKey("/BitsPerComponent",
                              QPDFObjectHandle::newInteger(image.bitsPerComponent));
    }
    auto space = colorSpace(image);
    if (!space.isNull()) {
        dictionary.replaceKey("/ColorSpace", space);
    }
    if (!image.decode.empty()) {
        auto decode = QPDFObjectHandle::newArray();
        for (const double value : image.decode) {
            decode.appendItem(QPDFObjectHandle::newReal(value));
        }
        dictionary.replaceKey("/Decode", decode);
    }
    addDecodeParms(dictionary, image);
    if (image.softMask) {
        dictionary.replaceKey("/SMask", makeImage(*image.softMask));
    }
    return makeStream(dictionary, image);
}

QPDFObjectHandle ImageEmbedder::embed(const PdfImage &image) {
    if (image.slices.empty()) {
        return makeImage(image);
    }
    const std::string key = sourceKey(image);
    const auto known = m_embedded.find(key);
    if (known != m_embedded.end()) {
        return known->second;
    }
    return m_embedded.emplace(key, makeImage(image)).first->second;
}

void ImageEmbedder::forget() {
    m_profileIndex.clear();
    m_embedded.clear();
}

} // namespace folioforge
