#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace folioforge {

/// Holds made data until the document is written: in memory while there is little of it, then in
/// an anonymous file that no one else can open and that is gone when this object is.
class Spool {
  public:
    /// A place in the spool, in bytes.
    struct Place {
        qint64 offset = 0;
        qint64 length = 0;
    };

    Spool() = default;
    ~Spool();
    Spool(const Spool &) = delete;
    Spool &operator=(const Spool &) = delete;

    /// Keeps a copy of `data`. Throws Error when the temporary file cannot take it.
    Place add(QByteArrayView data);
    /// The data at `place`. Throws Error when it cannot be read back.
    [[nodiscard]] QByteArray at(Place place) const;

  private:
    void moveToFile();
    void writeAt(qint64 offset, QByteArrayView data);

    QByteArray m_memory;
    qint64 m_size = 0;
    int m_fd = -1;
};

} // namespace folioforge
