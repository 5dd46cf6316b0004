// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/writing/ObjectText.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArray>

#include <deque>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

class CrossReferences;
class ObjectStreams;
class OutputPipeline;

/// Writes the objects of a document to a file (ISO 32000-1, 7.5.3), in the order in which they are
/// referred to and with numbers from 1.
class FileBody final : public ObjectNumbers {
  public:
    /// Places go to `references`. Null `streams` mean that all objects stand by themselves, a null
    /// `cipher` that none is encrypted.
    FileBody(QPDF &document, OutputPipeline &file, CrossReferences &references,
             ObjectStreams *streams, const StreamCipher *cipher);

    /// That object is written with the next write().
    int numberOf(int object) override;
    int numberOf(const QPDFObjectHandle &object);
    /// Writes the objects that have got numbers, and all that they refer to. Throws Error, and
    /// what libqpdf throws.
    void write();
    /// Writes an object by itself, as it is given. Returns its number.
    int writeAsIs(const std::string &object);

  private:
    void writeObject(QPDFObjectHandle object, int number);
    void writeStream(QPDFObjectHandle stream, int number);
    void writeAlone(int number, const std::string &object);
    void beginAlone(int number, const std::string &object);
    void readData(QPDFObjectHandle stream);
    void beginStream(int number, QPDFObjectHandle dictionary, qint64 length);

    QPDF &m_document;
    OutputPipeline &m_file;
    CrossReferences &m_references;
    ObjectStreams *m_streams;
    const StreamCipher *m_cipher;
    std::vector<int> m_numbers; ///< In the file, by those in the document; 0 for none.
    std::deque<int> m_waiting;  ///< Objects of the document that are not written yet.
    std::string m_text;         ///< Of the object that is being written.
    QByteArray m_data;          ///< Of the stream that is being written.
};

} // namespace folioforge
