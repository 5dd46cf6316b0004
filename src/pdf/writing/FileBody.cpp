// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/FileBody.h"

#include "pdf/BoundedBuffer.h"
#include "pdf/QpdfErrors.h"
#include "pdf/writing/CrossReferences.h"
#include "pdf/writing/ObjectStreams.h"
#include "pdf/writing/OutputPipeline.h"
#include "pdf/writing/StreamCipher.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <limits>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace folioforge {

namespace {

/// Whether the data of `stream` may be compressed. Metadata that is not encrypted stays readable
/// for programs that know nothing of the format (ISO 32000-1, 14.3.2).
bool isToBeCompressed(QPDFObjectHandle stream, bool isEncrypted) {
    auto dictionary = stream.getDict();
    return stream.getFilterOnWrite() && !dictionary.hasKey("/Filter") &&
           (isEncrypted || !dictionary.isDictionaryOfType("/Metadata"));
}

std::vector<QPDFObjectHandle> listOf(QPDFObjectHandle oneOrMore) {
    return oneOrMore.isArray() ? oneOrMore.getArrayAsVector()
                               : std::vector<QPDFObjectHandle>{oneOrMore};
}

bool isCompression(QPDFObjectHandle filter) {
    constexpr std::array<std::string_view, 6> kNames{
        "/FlateDecode", "/Fl", "/LZWDecode", "/LZW", "/RunLengthDecode", "/RL"};
    return filter.isName() && std::ranges::find(kNames, filter.getName()) != kNames.end();
}

/// Whether Flate may take the place of other lossless filters. What is compressed twice may unfold
/// a thousandfold each time: decoding a few kilobytes would never end.
bool isToBeRepacked(QPDFObjectHandle stream) {
    const auto filters = listOf(stream.getDict().getKey("/Filter"));
    const auto isFlate = [](QPDFObjectHandle filter) {
        return filter.isNameAndEquals("/FlateDecode");
    };
    const bool isAsItShouldBe =
        std::ranges::all_of(filters, [](QPDFObjectHandle filter) { return filter.isNull(); }) ||
        (filters.size() == 1 && isFlate(filters.front()));
    return stream.getFilterOnWrite() && !isAsItShouldBe &&
           std::ranges::count_if(filters, isCompression) <= 1 &&
           stream.pipeStreamData(nullptr, nullptr, 0, qpdf_dl_generalized);
}

/// Puts `list` under `key`, or nothing where it is empty.
void putList(QPDFObjectHandle dictionary, const char *key,
             const std::vector<QPDFObjectHandle> &list) {
    dictionary.replaceKey(key, list.empty() ? QPDFObjectHandle::newNull()
                                            : QPDFObjectHandle::newArray(list));
}

/// Takes what tells how a stream was encrypted in its source out of its filters. There are readers
/// that stumble over an empty list of parameters.
void dropCrypt(QPDFObjectHandle dictionary) {
    const auto filters = listOf(dictionary.getKey("/Filter"));
    const auto parameters = listOf(dictionary.getKey("/DecodeParms"));
    const auto isCrypt = [](QPDFObjectHandle filter) { return filter.isNameAndEquals("/Crypt"); };
    if (!parameters.empty() && std::ranges::none_of(filters, isCrypt)) {
        return;
    }
    std::vector<QPDFObjectHandle> keptFilters;
    std::vector<QPDFObjectHandle> keptParameters;
    for (std::size_t i = 0; i < filters.size(); ++i) {
        if (!isCrypt(filters[i])) {
            keptFilters.push_back(filters[i]);
            keptParameters.push_back(i < parameters.size() ? parameters[i]
                                                           : QPDFObjectHandle::newNull());
        }
    }
    if (std::ranges::all_of(keptParameters, [](QPDFObjectHandle kept) { return kept.isNull(); })) {
        keptParameters.clear();
    }
    if (keptFilters.size() < filters.size()) {
        putList(dictionary, "/Filter", keptFilters);
    }
    putList(dictionary, "/DecodeParms", keptParameters);
}

/// Takes the data of a stream, up to a limit.
class DataPipeline final : public Pipeline {
  public:
    DataPipeline(QByteArray &data, std::size_t maxBytes)
        : Pipeline("data", nullptr)
        , m_data(data)
        , m_left(maxBytes) {}

    void write(unsigned char const *data, size_t length) override {
        if (length > m_left) {
            throw TooLong();
        }
        m_left -= length;
        m_data.append(reinterpret_cast<const char *>(data), static_cast<qsizetype>(length));
    }
    void finish() override {}

  private:
    QByteArray &m_data;
    std::size_t m_left;
};

} // namespace

FileBody::FileBody(QPDF &document, OutputPipeline &file, CrossReferences &references,
                   ObjectStreams *streams, const StreamCipher *cipher, bool repacks)
    : m_document(document)
    , m_file(file)
    , m_references(references)
    , m_streams(streams)
    , m_cipher(cipher)
    , m_repacks(repacks)
    , m_numberOf([this](const QPDFObjGen &object) { return numberOf(object); }) {}

int FileBody::numberOf(const QPDFObjGen &object) {
    const auto index = static_cast<std::size_t>(object.getObj());
    if (index >= m_numbers.size()) {
        m_numbers.resize(index + 1);
    }
    int &number = object.getGen() == 0 ? m_numbers[index] : m_laterNumbers[object];
    if (number == 0) {
        number = m_references.newNumber();
        m_waiting.push_back(object);
    }
    return number;
}

void FileBody::write(const std::function<void()> &eachObject) {
    while (!m_waiting.empty()) {
        const QPDFObjGen object = m_waiting.front();
        m_waiting.pop_front();
        writeObject(m_document.getObjectByObjGen(object), numberOf(object));
        m_file.throwFailure();
        if (eachObject) {
            eachObject();
        }
    }
}

void FileBody::writeObject(QPDFObjectHandle object, int number) {
    if (object.isStream()) {
        writeStream(object, number);
        return;
    }
    m_text.clear();
    // Readers of encrypted documents expect the catalog outside of object streams.
    const bool isAlone = !m_streams || (m_cipher && object.isDictionaryOfType("/Catalog"));
    appendObject(m_text, object.unparseResolved(), m_numberOf, isAlone ? m_cipher : nullptr);
    if (isAlone) {
        writeAlone(number, m_text);
    } else {
        m_streams->add(ObjectStreams::Objects, number, m_text);
    }
}

int FileBody::writeAsIs(const std::string &object) {
    const int number = m_references.newNumber();
    writeAlone(number, object);
    return number;
}

void FileBody::beginAlone(int number, const std::string &object) {
    m_references.putAt(number, m_file.position());
    const std::string begin = std::to_string(number) + " 0 obj\n" + object;
    m_file.append(begin);
}

void FileBody::writeAlone(int number, const std::string &object) {
    beginAlone(number, object);
    m_file.append("\nendobj\n");
}

void FileBody::writeStream(QPDFObjectHandle stream, int number) {
    auto length = stream.getDict().getKey("/Length");
    // Of a stream that was read, /Length is that in its file, encrypted and perhaps wrong.
    if (!stream.getFilterOnWrite() && length.isInteger()) {
        const qint64 size =
            beginStream(number, stream.getDict().shallowCopy(), length.getIntValue());
        const qint64 begin = m_file.position();
        writeData([&stream](Pipeline &target) { stream.pipeStreamData(&target, 0, qpdf_dl_none); });
        if (m_file.position() - begin != size) {
            throw std::runtime_error("a stream is not as long as it states");
        }
    } else {
        const auto dictionary = readPacked(stream);
        beginStream(number, dictionary, m_data.size());
        writeData([this](Pipeline &target) {
            target.write(reinterpret_cast<const unsigned char *>(m_data.constData()),
                         static_cast<std::size_t>(m_data.size()));
        });
    }
    m_file.append("\nendstream\nendobj\n");
}

template<typename Work> void FileBody::writeData(const Work &work) {
    if (!m_cipher) {
        work(m_file);
        return;
    }
    CipherPipeline pipeline(*m_cipher, m_file);
    work(pipeline);
    pipeline.end();
}

/// Reads the data of `stream`, compressed, and its dictionary, which may change with that.
QPDFObjectHandle FileBody::readPacked(QPDFObjectHandle stream) {
    const bool isUnpacked =
        m_repacks && isToBeRepacked(stream) && readData(stream, qpdf_dl_generalized);
    if (!isUnpacked) {
        readData(stream, qpdf_dl_none);
    }
    auto dictionary = stream.getDict().shallowCopy();
    if (!isUnpacked && !isToBeCompressed(stream, m_cipher != nullptr)) {
        return dictionary;
    }
    QByteArray packed = deflated(m_data);
    if (packed.size() < (isUnpacked ? statedLength(dictionary.getKey("/Length")) : m_data.size())) {
        m_data = std::move(packed);
        dictionary.replaceKey("/Filter", QPDFObjectHandle::newName("/FlateDecode"));
        dictionary.removeKey("/DecodeParms");
    } else if (isUnpacked) {
        readData(stream, qpdf_dl_none);
    }
    return dictionary;
}

QByteArray FileBody::deflated(QByteArrayView bytes) {
    if (!m_deflater) {
        m_deflater.emplace();
    }
    QByteArray packed;
    m_deflater->append(packed, bytes);
    return packed;
}

/// Whether the data was unpacked as far as `level` says. What unfolds into a machine's memory is
/// not.
bool FileBody::readData(QPDFObjectHandle stream, qpdf_stream_decode_level_e level) {
    constexpr std::size_t kMaxUnpacked = 256 << 20;
    constexpr qsizetype kMaxKept = 8 << 20;
    const bool unpacks = level != qpdf_dl_none;
    if (m_data.capacity() > kMaxKept) {
        m_data = {};
    }
    m_data.resize(0); // It keeps its memory.
    DataPipeline data(m_data, unpacks ? kMaxUnpacked : std::numeric_limits<std::size_t>::max());
    bool isUnpacked = false;
    bool isWhole = false;
    try {
        isWhole = stream.pipeStreamData(&data, &isUnpacked, 0, level, unpacks);
    } catch (const TooLong &) {
        return false;
    }
    return isWhole && isUnpacked;
}

qint64 FileBody::beginStream(int number, QPDFObjectHandle dictionary, qint64 length) {
    dropCrypt(dictionary);
    dictionary.removeKey("/Length");
    m_text.clear();
    appendObject(m_text, dictionary.unparse(), m_numberOf, m_cipher);
    m_text.resize(m_text.rfind(">>"));
    const qint64 size = m_cipher ? StreamCipher::encryptedSize(length) : length;
    beginAlone(number, m_text + "/Length " + std::to_string(size) + " >>\nstream\n");
    return size;
}

} // namespace folioforge
