// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArray>
#include <QString>

namespace folioforge {

class StreamData;
class SystemCalls;
struct SourceOriginal;

/// The file specification of a source, embedded byte for byte (ISO 19005-3, 6.8). Its bytes are
/// read once now and once when the document is written. Throws Error, also where it has changed.
QPDFObjectHandle sourceAttachment(const SourceOriginal &source, StreamData &streams,
                                  SystemCalls &calls);

/// The file specification of `data`, which tells of the whole document. Throws Error.
QPDFObjectHandle dataAttachment(const QString &name, const QByteArray &type, const QByteArray &data,
                                StreamData &streams);

} // namespace folioforge
