// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"
#include "files/Spool.h"
#include "pdf/DeflateBatches.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArrayView>

#include <memory>
#include <vector>

class QPDF;

namespace folioforge {

struct FileSlice;

/// Makes the streams of a document. Their data is compressed and waits in the spool or in a source
/// file until the document is written.
class StreamData {
  public:
    /// `calls` are the spool's.
    StreamData(QPDF &document, std::shared_ptr<SourceReader> reader,
               SystemCalls &calls = SystemCalls::system());

    /// A stream with `data`, which is already compressed as `dictionary` says.
    QPDFObjectHandle fromBytes(const QPDFObjectHandle &dictionary, QByteArrayView data);
    /// A stream with `data`, which this compresses.
    QPDFObjectHandle deflated(QPDFObjectHandle dictionary, QByteArrayView data);
    /// A stream with a page's `content`, which another core compresses while the caller goes on.
    /// Throws Error when an earlier one cannot be stored.
    QPDFObjectHandle pageContent(QByteArrayView content);
    /// Waits until all page contents are stored; throws Error when one cannot be.
    void waitForPages() { m_pages.wait(); }
    /// Bytes stored so far; all, after waitForPages().
    [[nodiscard]] qint64 stored() const;
    /// Gives up the data that came after the first `stored` bytes: their streams must not be
    /// written. Returns whether there was any.
    bool rollBack(qint64 stored);
    /// A stream with slices of a source file, one after another.
    QPDFObjectHandle fromFile(const QPDFObjectHandle &dictionary,
                              std::shared_ptr<const SourceFile> file,
                              std::vector<FileSlice> slices);

  private:
    class SpooledData;
    class SlicedData;

    QPDFObjectHandle make(const QPDFObjectHandle &dictionary,
                          const std::shared_ptr<QPDFObjectHandle::StreamDataProvider> &provider);

    QPDF &m_document;
    std::shared_ptr<SourceReader> m_reader;
    std::shared_ptr<SpooledData> m_spooled;
    DeflateBatches m_pages;
    QPDFObjectHandle m_flateName; ///< One for all streams: a document of pages has many.
};

} // namespace folioforge
