// SPDX-License-Identifier: Apache-2.0

#include "pdf/StreamData.h"

#include "image/Deflate.h"
#include "image/PdfImage.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>

#include <algorithm>
#include <map>

namespace folioforge {

namespace {

/// With its length known, a stream is not gathered in memory when it is written.
void stateLength(QPDFObjectHandle stream, qint64 length) {
    stream.getDict().replaceKey("/Length", QPDFObjectHandle::newInteger(length));
}

} // namespace

/// One provider for all spooled streams. It finds the data of each by its object number.
class StreamData::SpooledData final : public QPDFObjectHandle::StreamDataProvider {
  public:
    explicit SpooledData(SystemCalls &calls)
        : m_spool(calls) {}

    void keep(const QPDFObjGen &object, QByteArrayView data) {
        m_places.insert_or_assign(m_places.end(), object, m_spool.add(data));
    }

    Spool &spool() { return m_spool; }

    void provideStreamData(QPDFObjGen const &object, Pipeline *pipeline) override {
        const Spool::Place place = m_places.at(object);
        const QByteArrayView data = m_spool.at(place);
        pipeline->write(data.data(), static_cast<std::size_t>(data.size()));
        pipeline->finish();
    }

  private:
    Spool m_spool;
    std::map<QPDFObjGen, Spool::Place> m_places;
};

class StreamData::SlicedData final : public QPDFObjectHandle::StreamDataProvider {
  public:
    SlicedData(std::shared_ptr<SourceReader> reader, FileVersion file,
               std::vector<FileSlice> slices)
        : m_reader(std::move(reader))
        , m_file(std::move(file))
        , m_slices(std::move(slices)) {}

    void provideStreamData([[maybe_unused]] QPDFObjGen const &object, Pipeline *pipeline) override {
        constexpr qint64 kPiece = 1 << 18; // It stays in the processor's cache while it passes.
        for (const FileSlice &slice : m_slices) {
            for (qint64 done = 0; done < slice.length; done += kPiece) {
                const auto size = std::min(kPiece, slice.length - done);
                const auto bytes = m_reader->view(m_file, slice.offset + done, size);
                pipeline->write(bytes.data(), bytes.size());
            }
        }
        pipeline->finish();
    }

  private:
    std::shared_ptr<SourceReader> m_reader;
    FileVersion m_file;
    std::vector<FileSlice> m_slices;
};

StreamData::StreamData(QPDF &document, std::shared_ptr<SourceReader> reader, SystemCalls &calls)
    : m_document(document)
    , m_reader(std::move(reader))
    , m_spooled(std::make_shared<SpooledData>(calls))
    , m_pages([spooled = m_spooled](const QPDFObjGen &stream, QByteArrayView compressed) {
        spooled->keep(stream, compressed);
    })
    , m_flateName(QPDFObjectHandle::newName("/FlateDecode")) {}

QPDFObjectHandle
StreamData::make(const QPDFObjectHandle &dictionary,
                 const std::shared_ptr<QPDFObjectHandle::StreamDataProvider> &provider) {
    QPDFObjectHandle stream = m_document.newStream();
    stream.replaceDict(dictionary);
    // The dictionary already has the filter and its parameters.
    stream.replaceStreamData(provider, QPDFObjectHandle(), QPDFObjectHandle());
    // It is written as it is.
    stream.setFilterOnWrite(false);
    return stream;
}

QPDFObjectHandle StreamData::fromBytes(const QPDFObjectHandle &dictionary, QByteArrayView data) {
    QPDFObjectHandle stream = make(dictionary, m_spooled);
    m_spooled->keep(stream.getObjGen(), data);
    stateLength(stream, data.size());
    return stream;
}

QPDFObjectHandle StreamData::deflated(QPDFObjectHandle dictionary, QByteArrayView data) {
    dictionary.replaceKey("/Filter", m_flateName);
    return fromBytes(dictionary, deflateBytes(data));
}

QPDFObjectHandle StreamData::pageContent(QByteArrayView content) {
    auto dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/Filter", m_flateName);
    QPDFObjectHandle stream = make(dictionary, m_spooled);
    m_pages.add(stream.getObjGen(), content);
    return stream;
}

qint64 StreamData::stored() const {
    return m_spooled->spool().size();
}

bool StreamData::rollBack(qint64 stored) {
    m_pages.drop();
    const bool any = this->stored() > stored;
    m_spooled->spool().cutTo(stored);
    return any;
}

QPDFObjectHandle StreamData::fromFile(const QPDFObjectHandle &dictionary,
                                      std::shared_ptr<const SourceFile> file,
                                      std::vector<FileSlice> slices) {
    const FileVersion version = file->version();
    const qint64 length = sizeOf(slices);
    m_reader->keepOpen(std::move(file));
    QPDFObjectHandle stream =
        make(dictionary, std::make_shared<SlicedData>(m_reader, version, std::move(slices)));
    stateLength(stream, length);
    return stream;
}

} // namespace folioforge
