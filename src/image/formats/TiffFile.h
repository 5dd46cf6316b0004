#pragma once

#include "files/SourceFile.h"

#include <tiffio.h>

#include <memory>

namespace folioforge {

/// A TIFF file opened with libtiff over a view: it reads by position, prints nothing, and keeps
/// the first message of an error.
class TiffFile {
  public:
    /// Opens the first directory; throws Error when it cannot be read.
    explicit TiffFile(const FileView &file);

    [[nodiscard]] TIFF *handle() const { return m_handle.get(); }
    [[nodiscard]] const FileView &file() const { return m_state->file; }

    /// The value of a tag of 16 bits, `missing` where it is absent and has no default.
    [[nodiscard]] int number(uint32_t tag, int missing) const;
    /// Throws the Error that libtiff reported last.
    [[noreturn]] void fail() const;

  private:
    struct State {
        FileView file;
        qint64 at = 0;
        QString message;
    };
    struct Close {
        void operator()(TIFF *tif) const { TIFFClose(tif); }
    };

    static tmsize_t read(thandle_t handle, void *target, tmsize_t size);
    static tmsize_t refuseWrite(thandle_t handle, void *source, tmsize_t size);
    static toff_t seek(thandle_t handle, toff_t offset, int whence);
    static int close(thandle_t handle);
    static toff_t size(thandle_t handle);
    static int keepMessage(TIFF *tif, void *data, const char *module, const char *format,
                           va_list arguments);
    static int ignoreMessage(TIFF *tif, void *data, const char *module, const char *format,
                             va_list arguments);

    std::unique_ptr<State> m_state; ///< libtiff holds its address.
    std::unique_ptr<TIFF, Close> m_handle;
};

} // namespace folioforge
