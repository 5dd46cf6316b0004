#include "compress/LosslessCodec.h"

#include "compress/BoundedText.h"
#include "error/Error.h"
#include "image/Deflate.h"
#include "image/RowFilter.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

using namespace Qt::StringLiterals;

namespace folioforge {

std::string decodeLossless(const std::string &data, const std::string &filter,
                           const std::string &parameters, std::size_t mostBytes) {
    if (filter.empty()) {
        return data;
    }
    std::string decoded;
    try {
        // A document of its own for each call: libqpdf's objects belong to one thread.
        QPDF scratch;
        scratch.emptyPDF();
        scratch.setSuppressWarnings(true);
        QPDFObjectHandle stream = scratch.newStream();
        const auto parsed = [](const std::string &text) {
            return text.empty() ? QPDFObjectHandle::newNull() : QPDFObjectHandle::parse(text);
        };
        stream.replaceStreamData(data, parsed(filter), parsed(parameters));
        BoundedText target(decoded, mostBytes);
        bool filtered = false;
        const bool whole = stream.pipeStreamData(&target, &filtered, 0, qpdf_dl_specialized, true);
        if (!filtered || !whole || scratch.anyWarnings()) {
            throw Error(u"damaged compressed data"_s);
        }
    } catch (const TooLong &) {
        throw Error(u"more data than the image's size allows"_s);
    } catch (const Error &) {
        throw;
    } catch (const std::exception &) {
        throw Error(u"damaged compressed data"_s);
    }
    return decoded;
}

std::string encodeFlate(const Plane &plane) {
    const auto rows = QByteArray::fromRawData(reinterpret_cast<const char *>(plane.row(0)),
                                              static_cast<qsizetype>(plane.size()));
    return deflateBytes(filterRows(rows, plane.width(), 1)).toStdString();
}

} // namespace folioforge
