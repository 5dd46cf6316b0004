// SPDX-License-Identifier: Apache-2.0

#include "compress/StreamFilters.h"

#include "error/Error.h"
#include "image/Deflate.h"
#include "image/RowFilter.h"
#include "pdf/QpdfErrors.h"

#include <QScopeGuard>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// What the end of a document may take, kept free for its destructor: a lack of memory there ends
/// the program.
constexpr qsizetype kSpareBytes = 2 << 20;

} // namespace

std::string decodeLossless(const std::string &data, const std::string &filter,
                           const std::string &parameters, std::size_t maxBytes) {
    std::string decoded;
    try {
        // A document of its own for each call: libqpdf's objects belong to one thread.
        QByteArray spare(kSpareBytes, Qt::Uninitialized);
        QPDF scratch;
        const auto release = qScopeGuard([&] { spare.clear(); });
        makeEmpty(scratch);
        QPDFObjectHandle stream = scratch.newStream();
        stream.replaceStreamData(data, QPDFObjectHandle::parse(filter),
                                 QPDFObjectHandle::parse(parameters));
        BoundedBuffer target(decoded, maxBytes);
        bool filtered = false;
        const bool whole = stream.pipeStreamData(&target, &filtered, 0, qpdf_dl_specialized, true);
        requireMemory(scratch);
        if (!filtered || !whole || scratch.anyWarnings()) {
            throw Error(u"damaged compressed data"_s);
        }
    } catch (const TooLong &) {
        throw Error(u"more data than the image's size allows"_s);
    } catch (const Error &) {
        throw;
    } catch (const std::exception &fault) {
        throw isLackOfMemory(fault) ? notEnoughMemory() : Error(u"damaged compressed data"_s);
    }
    return decoded;
}

std::string encodeFlate(const Plane &plane) {
    const auto rows = QByteArray::fromRawData(reinterpret_cast<const char *>(plane.row(0)),
                                              static_cast<qsizetype>(plane.size()));
    return deflateBytes(filterRows(rows, plane.width(), 1)).toStdString();
}

} // namespace folioforge
