// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/Deflate.h"
#include "pdf/writing/ObjectText.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArray>

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

class CrossReferences;
class ObjectStreams;
class OutputPipeline;

/// Writes the objects of a document to a file (ISO 32000-1, 7.5.3), in the order in which they are
/// referred to and with numbers from 1.
class FileBody {
  public:
    /// Places go to `references`. Null `streams` mean that all objects stand by themselves, a null
    /// `cipher` that none is encrypted. `repacks` is as in DocumentForm.
    FileBody(QPDF &document, OutputPipeline &file, CrossReferences &references,
             ObjectStreams *streams, const StreamCipher *cipher, bool repacks);

    /// Gives the number in the file of an object, which the next write() writes if none did.
    [[nodiscard]] const NumberOf &numberOf() const { return m_numberOf; }
    /// Writes the objects that have got numbers, and all that they refer to. Calls `eachObject`,
    /// if any, when one is written. Throws Error, and what that and libqpdf throw.
    void write(const std::function<void()> &eachObject);
    /// Writes an object by itself, as it is given. Returns its number.
    int writeAsIs(const std::string &object);

  private:
    int numberOf(const QPDFObjGen &object);
    void writeObject(QPDFObjectHandle object, int number);
    void writeStream(QPDFObjectHandle stream, int number);
    void writeAlone(int number, const std::string &object);
    void beginAlone(int number, const std::string &object);
    bool readData(QPDFObjectHandle stream, qpdf_stream_decode_level_e level);
    template<typename Work> void writeData(const Work &work);
    QPDFObjectHandle readPacked(QPDFObjectHandle stream);
    QByteArray deflated(QByteArrayView bytes);
    /// `length` is that before it is encrypted. Returns that in the file.
    qint64 beginStream(int number, QPDFObjectHandle dictionary, qint64 length);

    QPDF &m_document;
    OutputPipeline &m_file;
    CrossReferences &m_references;
    ObjectStreams *m_streams;
    const StreamCipher *m_cipher;
    bool m_repacks;
    NumberOf m_numberOf;
    std::vector<int> m_numbers; ///< In the file, by those in the document; 0 for none.
    std::map<QPDFObjGen, int> m_laterNumbers; ///< The same for generations other than 0.
    std::deque<QPDFObjGen> m_waiting;         ///< Objects that are not written yet.
    std::string m_text;                       ///< Of the object that is being written.
    QByteArray m_data;                        ///< Of the stream that is being written.
    std::optional<Deflater> m_deflater;       ///< From the first stream on that needs one.
};

} // namespace folioforge
