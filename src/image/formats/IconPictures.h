// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/ImageHeader.h"
#include "image/MorePictures.h"

#include <optional>
#include <tuple>

namespace folioforge {

/// The picture of an icon file that is shown: the largest, of several the deepest. A Picture has a
/// `header` and its `bits` a pixel.
template<typename Picture> class LargestPicture {
  public:
    /// Takes the optional picture that `read` gives. Where it throws Error, the others are left.
    template<typename Read> void offer(const Read &read) {
        try {
            if (const std::optional<Picture> picture = read()) {
                ++m_readable;
                if (!m_largest || rank(*picture) > rank(*m_largest)) {
                    m_largest = picture;
                }
            }
        } catch (const Error &) {
            ++m_unreadable;
        }
    }

    [[nodiscard]] int readable() const { return m_readable; }
    [[nodiscard]] int unreadable() const { return m_unreadable; }

    /// Throws Error where no picture could be read.
    [[nodiscard]] const Picture &picture() const {
        if (!m_largest) {
            throw Error(Reasons::tr("The icon file holds no picture that can be read"));
        }
        return *m_largest;
    }

  private:
    static std::tuple<qint64, int> rank(const Picture &picture) {
        return {qint64(picture.header.width) * picture.header.height, picture.bits};
    }

    std::optional<Picture> m_largest;
    int m_readable = 0;
    int m_unreadable = 0;
};

/// What is said of an icon file's `pictures` beside the one that is shown, so many of them damaged.
/// The largest may be among those.
inline Warnings otherPictures(int pictures, int unreadable) {
    Warnings warnings;
    addMorePictures(warnings, pictures - 1, kFurtherPictures);
    if (unreadable > 0) {
        warnings.push_back(
            {WarningCode::PictureDamaged, Reasons::tr("%1 of the icon's %2 pictures cannot be read")
                                              .arg(unreadable)
                                              .arg(pictures)});
    }
    return warnings;
}

} // namespace folioforge
