// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace folioforge {

/// What is decoded: `size` bytes, of which `read` fills its target from byte `at` on. It returns
/// the bytes read, fewer at the end; an Error it throws reads as the end.
struct Jpeg2000Source {
    std::function<qint64(qint64 at, std::span<uchar> target)> read;
    qint64 size = 0;
};

/// One component of a picture.
struct Jpeg2000Component {
    int width = 0;
    int height = 0;
    int bits = 0; ///< Of a sample.
    bool isSigned = false;
    bool isSubsampled = false;
    bool isOpacity = false;
    std::span<const int> samples; ///< Row after row from the top; none before they are decoded.
};

enum class Jpeg2000Color { Other, Srgb, Gray, Ycc };

/// A JPEG 2000 picture that OpenJPEG decodes. Nothing else in the program knows that library; a
/// build without it has OpenJpegMissing.cpp for OpenJpeg.cpp and refuses in words.
class OpenJpegPicture {
  public:
    /// Reads the header of a bare codestream or of a file of boxes around one. Nothing where it is
    /// damaged. Throws Error where the program was built without OpenJPEG.
    static std::optional<OpenJpegPicture> open(const Jpeg2000Source &source, bool isCodestream);

    /// Whether the program was built with OpenJPEG.
    static bool isThere();

    OpenJpegPicture(OpenJpegPicture &&) noexcept;
    OpenJpegPicture &operator=(OpenJpegPicture &&) noexcept;
    ~OpenJpegPicture();

    [[nodiscard]] qint64 width() const;
    [[nodiscard]] qint64 height() const;
    [[nodiscard]] Jpeg2000Color color() const;
    [[nodiscard]] bool hasProfile() const;
    [[nodiscard]] int componentCount() const;
    [[nodiscard]] Jpeg2000Component component(int index) const;

    /// Lets decode() go on where data are missing.
    void allowGaps();
    /// Lets decode() use all cores.
    void useAllCores();
    /// Leaves out the finest resolutions that the picture does not need at `scale` (0 to 1) of its
    /// size. False where it is damaged.
    bool reduceTo(double scale);
    /// Decodes the samples; false where they are damaged.
    bool decode();
    /// Reads what follows the samples; false where it is damaged.
    bool finish();

  private:
    struct Library;
    explicit OpenJpegPicture(std::unique_ptr<Library> library);

    std::unique_ptr<Library> m_library;
};

} // namespace folioforge
