#include "pdf/StreamData.h"

#include "error/Error.h"
#include "image/EncodedImage.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>

#include <libdeflate.h>

#include <algorithm>
#include <map>

namespace folioforge {

namespace {

struct CompressorDeleter {
    void operator()(libdeflate_compressor *compressor) const {
        libdeflate_free_compressor(compressor);
    }
};
using Compressor = std::unique_ptr<libdeflate_compressor, CompressorDeleter>;

/// Making a compressor costs more than compressing a page of text, so each thread keeps its own.
libdeflate_compressor *compressorFor(Effort effort) {
    constexpr int kQuickLevel = 1;
    constexpr int kThoroughLevel = 6;
    thread_local const Compressor quick(libdeflate_alloc_compressor(kQuickLevel));
    thread_local const Compressor thorough(libdeflate_alloc_compressor(kThoroughLevel));
    return effort == Effort::Quick ? quick.get() : thorough.get();
}

} // namespace

QByteArray zlibCompressed(QByteArrayView data, Effort effort) {
    libdeflate_compressor *compressor = compressorFor(effort);
    if (!compressor) {
        throw Error(QStringLiteral("There is not enough memory"));
    }
    const auto size = static_cast<std::size_t>(data.size());
    const auto bound = libdeflate_zlib_compress_bound(compressor, size);
    QByteArray compressed(static_cast<qsizetype>(bound), Qt::Uninitialized);
    const auto length =
        libdeflate_zlib_compress(compressor, data.data(), size, compressed.data(), bound);
    compressed.truncate(static_cast<qsizetype>(length));
    return compressed;
}

/// One provider for all spooled streams: it knows the place of each by its object number.
class StreamData::SpooledData final : public QPDFObjectHandle::StreamDataProvider {
  public:
    explicit SpooledData(std::shared_ptr<Spool> spool)
        : m_spool(std::move(spool)) {}

    void remember(const QPDFObjGen &object, Spool::Place place) {
        m_places.insert_or_assign(m_places.end(), object, place);
    }

    void provideStreamData(QPDFObjGen const &object, Pipeline *pipeline) override {
        const QByteArrayView data = m_spool->at(m_places.at(object));
        pipeline->write(data.data(), static_cast<std::size_t>(data.size()));
        pipeline->finish();
    }

  private:
    std::shared_ptr<Spool> m_spool;
    std::map<QPDFObjGen, Spool::Place> m_places;
};

class StreamData::SlicedData final : public QPDFObjectHandle::StreamDataProvider {
  public:
    SlicedData(std::shared_ptr<SourceReader> reader, SourceFile file, std::vector<FileSlice> slices)
        : m_reader(std::move(reader))
        , m_file(std::move(file))
        , m_slices(std::move(slices)) {}

    void provideStreamData([[maybe_unused]] QPDFObjGen const &object, Pipeline *pipeline) override {
        // Whole in one piece where it is not huge: the library's buffer then need not grow.
        constexpr qint64 kPiece = 16 << 20;
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
    SourceFile m_file;
    std::vector<FileSlice> m_slices;
};

StreamData::StreamData(QPDF &document, std::shared_ptr<SourceReader> reader, SystemCalls &calls)
    : m_document(document)
    , m_reader(std::move(reader))
    , m_spool(std::make_shared<Spool>(calls))
    , m_spooled(std::make_shared<SpooledData>(m_spool))
    , m_flateName(QPDFObjectHandle::newName("/FlateDecode")) {}

QPDFObjectHandle
StreamData::make(const QPDFObjectHandle &dictionary,
                 const std::shared_ptr<QPDFObjectHandle::StreamDataProvider> &provider) {
    QPDFObjectHandle stream = m_document.newStream();
    stream.replaceDict(dictionary);
    // The dictionary has the filter and its parameters already.
    stream.replaceStreamData(provider, QPDFObjectHandle(), QPDFObjectHandle());
    // Otherwise the library decodes and encodes again what is compressed best already.
    stream.setFilterOnWrite(false);
    return stream;
}

QPDFObjectHandle StreamData::fromBytes(const QPDFObjectHandle &dictionary, QByteArrayView data) {
    const auto place = m_spool->add(data);
    QPDFObjectHandle stream = make(dictionary, m_spooled);
    m_spooled->remember(stream.getObjGen(), place);
    return stream;
}

QPDFObjectHandle StreamData::deflated(QPDFObjectHandle dictionary, QByteArrayView data,
                                      Effort effort) {
    dictionary.replaceKey("/Filter", m_flateName);
    return fromBytes(dictionary, zlibCompressed(data, effort));
}

QPDFObjectHandle StreamData::fromFile(const QPDFObjectHandle &dictionary, SourceFile file,
                                      std::vector<FileSlice> slices) {
    return make(dictionary,
                std::make_shared<SlicedData>(m_reader, std::move(file), std::move(slices)));
}

} // namespace folioforge
