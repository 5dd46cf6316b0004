// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/FileBody.h"

#include "image/Deflate.h"
#include "pdf/writing/CrossReferences.h"
#include "pdf/writing/ObjectStreams.h"
#include "pdf/writing/OutputPipeline.h"
#include "pdf/writing/StreamCipher.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>

#include <new>

namespace folioforge {

namespace {

QByteArrayView viewOf(const std::string &bytes) {
    return {bytes.data(), std::ssize(bytes)};
}

/// Whether the data of `stream` may be compressed. Metadata that is not encrypted stays readable
/// for programs that know nothing of the format (ISO 32000-1, 14.3.2).
bool isToBeCompressed(QPDFObjectHandle stream, bool isEncrypted) {
    auto dictionary = stream.getDict();
    return stream.getFilterOnWrite() && !dictionary.hasKey("/Filter") &&
           (isEncrypted || !dictionary.isDictionaryOfType("/Metadata"));
}

/// Takes the filter that names how a stream was encrypted in its source out of `dictionary`.
void dropCrypt(QPDFObjectHandle dictionary) {
    auto filters = dictionary.getKey("/Filter");
    auto parameters = dictionary.getKey("/DecodeParms");
    if (filters.isNameAndEquals("/Crypt")) {
        dictionary.removeKey("/Filter");
        dictionary.removeKey("/DecodeParms");
        return;
    }
    for (int i = 0; filters.isArray() && i < filters.getArrayNItems(); ++i) {
        if (filters.getArrayItem(i).isNameAndEquals("/Crypt")) {
            filters = filters.shallowCopy();
            filters.eraseItem(i);
            dictionary.replaceKey("/Filter", filters);
            if (parameters.isArray()) {
                parameters = parameters.shallowCopy();
                parameters.eraseItem(i);
                dictionary.replaceKey("/DecodeParms", parameters);
            }
            return;
        }
    }
}

/// Takes all data of a stream. The library hides what is thrown at it.
class DataPipeline final : public Pipeline {
  public:
    explicit DataPipeline(QByteArray &data)
        : Pipeline("data", nullptr)
        , m_data(data) {}

    void write(unsigned char const *data, size_t length) override {
        try {
            m_data.append(reinterpret_cast<const char *>(data), static_cast<qsizetype>(length));
        } catch (const std::bad_alloc &) {
            m_lacksMemory = true;
        }
    }
    void finish() override {}
    [[nodiscard]] bool lacksMemory() const { return m_lacksMemory; }

  private:
    QByteArray &m_data;
    bool m_lacksMemory = false;
};

} // namespace

FileBody::FileBody(QPDF &document, OutputPipeline &file, CrossReferences &references,
                   ObjectStreams *streams, const StreamCipher *cipher)
    : m_document(document)
    , m_file(file)
    , m_references(references)
    , m_streams(streams)
    , m_cipher(cipher) {}

int FileBody::numberOf(int object) {
    const auto index = static_cast<std::size_t>(object);
    if (index >= m_numbers.size()) {
        m_numbers.resize(index + 1);
    }
    int &number = m_numbers[index];
    if (number == 0) {
        number = m_references.newNumber();
        m_waiting.push_back(object);
    }
    return number;
}

int FileBody::numberOf(const QPDFObjectHandle &object) {
    return numberOf(object.getObjectID());
}

void FileBody::write() {
    while (!m_waiting.empty()) {
        const int object = m_waiting.front();
        m_waiting.pop_front();
        writeObject(m_document.getObjectByID(object, 0), numberOf(object));
        m_file.throwFailure();
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
    appendObject(m_text, object.unparseResolved(), *this, isAlone ? m_cipher : nullptr);
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
    m_file.append(viewOf(begin));
}

void FileBody::writeAlone(int number, const std::string &object) {
    beginAlone(number, object);
    m_file.append("\nendobj\n");
}

void FileBody::writeStream(QPDFObjectHandle stream, int number) {
    auto dictionary = stream.getDict().shallowCopy();
    const bool compresses = isToBeCompressed(stream, m_cipher != nullptr);
    auto length = dictionary.getKey("/Length");
    if (!compresses && !m_cipher && length.isInteger()) {
        beginStream(number, dictionary, length.getIntValue());
        stream.pipeStreamData(&m_file, 0, qpdf_dl_none); // The library checks the length.
    } else {
        readData(stream);
        if (compresses) {
            m_data = deflateBytes(m_data);
            dictionary.replaceKey("/Filter", QPDFObjectHandle::newName("/FlateDecode"));
            dictionary.removeKey("/DecodeParms");
        }
        if (m_cipher) {
            m_data = m_cipher->encrypted(m_data);
        }
        beginStream(number, dictionary, m_data.size());
        m_file.append(m_data);
    }
    m_file.append("\nendstream\nendobj\n");
}

void FileBody::readData(QPDFObjectHandle stream) {
    m_data.resize(0); // It keeps its memory.
    DataPipeline data(m_data);
    stream.pipeStreamData(&data, 0, qpdf_dl_none);
    if (data.lacksMemory()) {
        throw std::bad_alloc();
    }
}

void FileBody::beginStream(int number, QPDFObjectHandle dictionary, qint64 length) {
    dropCrypt(dictionary);
    dictionary.removeKey("/Length");
    m_text.clear();
    appendObject(m_text, dictionary.unparse(), *this, m_cipher);
    m_text.resize(m_text.rfind(">>"));
    beginAlone(number, m_text + "/Length " + std::to_string(length) + " >>\nstream\n");
}

} // namespace folioforge
