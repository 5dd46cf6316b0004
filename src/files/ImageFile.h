#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <span>

#include <sys/stat.h>

namespace folioforge {

class FileView;

/// Time of the last change, in nanoseconds since 1970.
qint64 modifiedNanos(const struct stat &status);

/// A regular file open for reading, never for writing. Pipes, devices and folders are refused
/// before they are opened, because opening or reading one may wait for ever.
class ImageFile {
  public:
    /// Opens the file at `path`; throws Error when it is no regular file or cannot be opened.
    static ImageFile open(const QString &path);

    ImageFile(ImageFile &&other) noexcept;
    ImageFile &operator=(ImageFile &&) = delete;
    ImageFile(const ImageFile &) = delete;
    ImageFile &operator=(const ImageFile &) = delete;
    ~ImageFile();

    /// The path that was opened.
    [[nodiscard]] const QString &path() const { return m_path; }
    /// Bytes in the file when it was opened.
    [[nodiscard]] qint64 size() const { return m_size; }
    /// Time of the last change before it was opened, in nanoseconds since 1970.
    [[nodiscard]] qint64 modifiedNanos() const { return m_modifiedNanos; }
    /// Throws Error when the file has changed since it was opened.
    void requireUnchanged() const;
    /// Fills `target` from byte `at` on; returns the bytes read, fewer at the end of the file.
    /// Throws Error when the system cannot read. Safe to call from several threads at once.
    [[nodiscard]] qint64 readInto(qint64 at, std::span<uchar> target) const;
    /// The whole file as a view.
    [[nodiscard]] FileView view() const;

  private:
    ImageFile(QString path, int descriptor);

    QString m_path;
    int m_descriptor;
    qint64 m_size = 0;
    qint64 m_modifiedNanos = 0;
};

/// A run of bytes of a source file, read piece by piece as a decoder asks for it. A decoder sees
/// only a view, so an image inside a container (an entry of an icon file) is read as a file is.
class FileView {
  public:
    FileView(const ImageFile &file, qint64 offset, qint64 size);

    [[nodiscard]] const QString &path() const { return m_file->path(); }
    /// Bytes from the start of the file to the start of this view.
    [[nodiscard]] qint64 offset() const { return m_offset; }
    /// Bytes in this view.
    [[nodiscard]] qint64 size() const { return m_size; }
    /// Up to `length` bytes from byte `at` of the view on; fewer at its end.
    [[nodiscard]] QByteArray read(qint64 at, qint64 length) const;
    /// Exactly `length` bytes from byte `at` of the view on; throws Error when the view ends first.
    [[nodiscard]] QByteArray readExactly(qint64 at, qint64 length) const;
    /// Fills `target` from byte `at` of the view on; returns the bytes read, fewer at its end.
    [[nodiscard]] qint64 readInto(qint64 at, std::span<uchar> target) const;
    /// The `length` bytes from byte `at` on as a view; throws Error when they are not all there.
    [[nodiscard]] FileView part(qint64 at, qint64 length) const;

  private:
    const ImageFile *m_file;
    qint64 m_offset;
    qint64 m_size;
};

} // namespace folioforge
