// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace folioforge {

/// The cross-reference stream of a document that the library wrote (ISO 32000-1, 7.5.8), to which
/// further objects are added.
class CrossReferences {
  public:
    /// `section` are the bytes from the stream on to the end of the file. Throws what libqpdf
    /// throws, and std::runtime_error where the section is not as the library writes it.
    explicit CrossReferences(const QByteArray &section);

    /// The number of the stream, the highest of all so far.
    [[nodiscard]] int number() const { return m_number; }
    /// The object begins at `offset`.
    void putAt(int number, qint64 offset);
    /// The object is that at `index` in the object stream `stream`. Both may stand for another
    /// place.
    void putInStream(int number, int stream, int index);

    /// The section that takes the place of the library's, from `offset` on, with an identifier of
    /// zeros.
    [[nodiscard]] QByteArray section(qint64 offset);

  private:
    void put(int number, int type, quint64 second, quint64 third);

    int m_number = 0;
    QByteArray m_keys; ///< Of the trailer, that are not made anew.
    QByteArray m_rows; ///< Of the entries.
};

} // namespace folioforge
