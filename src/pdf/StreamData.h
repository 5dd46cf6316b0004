#pragma once

#include "pdf/SourceReader.h"
#include "pdf/Spool.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArrayView>

#include <memory>
#include <vector>

class QPDF;

namespace folioforge {

struct FileSlice;

/// How hard to compress.
enum class Effort {
    Quick,   ///< For pages of text: half the time for one per cent more bytes.
    Thorough ///< For what a document has once.
};

/// Makes the streams of a document whose data is read only while the document is written, already
/// compressed: from the spool, or from where it lies in a source file.
class StreamData {
  public:
    /// `calls` write what does not fit into memory.
    StreamData(QPDF &document, std::shared_ptr<SourceReader> reader,
               SystemCalls &calls = SystemCalls::system());

    /// A stream with `data`, which is compressed as `dictionary` says.
    QPDFObjectHandle fromBytes(const QPDFObjectHandle &dictionary, QByteArrayView data);
    /// A stream with `data`, compressed here.
    QPDFObjectHandle deflated(QPDFObjectHandle dictionary, QByteArrayView data,
                              Effort effort = Effort::Thorough);
    /// A stream with slices of a source file, one after another.
    QPDFObjectHandle fromFile(const QPDFObjectHandle &dictionary, SourceFile file,
                              std::vector<FileSlice> slices);

  private:
    class SpooledData;
    class SlicedData;

    QPDFObjectHandle make(const QPDFObjectHandle &dictionary,
                          const std::shared_ptr<QPDFObjectHandle::StreamDataProvider> &provider);

    QPDF &m_document;
    std::shared_ptr<SourceReader> m_reader;
    std::shared_ptr<Spool> m_spool;
    std::shared_ptr<SpooledData> m_spooled;
    QPDFObjectHandle m_flateName; ///< One for all streams: a document of pages has many.
};

/// `data` compressed in the zlib format (RFC 1950), as FlateDecode reads it.
QByteArray zlibCompressed(QByteArrayView data, Effort effort = Effort::Thorough);

} // namespace folioforge
