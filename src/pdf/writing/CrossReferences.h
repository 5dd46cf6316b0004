// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace folioforge {

/// Where each object of a file stands (ISO 32000-1, 7.5.4 and 7.5.8).
class CrossReferences {
  public:
    CrossReferences();

    /// Objects that have a number.
    [[nodiscard]] qsizetype count() const;
    /// A number that no object has yet, from 1. The object is to get its place.
    int newNumber();
    /// The object begins at `offset`, in bytes.
    void putAt(int number, qint64 offset);
    /// The object is that at `index` in the object stream `stream`. Both may stand for another
    /// place.
    void putInStream(int number, int stream, int index);

    /// The end of a file that is `offset` bytes long without it: a cross-reference stream, with a
    /// number of its own, whose dictionary has these further `keys`. No object comes behind it.
    [[nodiscard]] QByteArray endAsStream(qint64 offset, const QByteArray &keys);
    /// The same for readers of PDF 1.4: a table and a trailer. No object is in an object stream.
    [[nodiscard]] QByteArray endAsTable(qint64 offset, const QByteArray &keys) const;

  private:
    void put(int number, int type, quint64 second, quint64 third);
    [[nodiscard]] QByteArray size() const;

    QByteArray m_rows; ///< Of the entries.
};

} // namespace folioforge
