// SPDX-License-Identifier: Apache-2.0

// Stands in for OpenJpeg.cpp where the program is built without OpenJPEG.

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/formats/OpenJpeg.h"

namespace folioforge {

struct OpenJpegPicture::Library {};

OpenJpegPicture::OpenJpegPicture(std::unique_ptr<Library> library)
    : m_library(std::move(library)) {}
OpenJpegPicture::OpenJpegPicture(OpenJpegPicture &&) noexcept = default;
OpenJpegPicture &OpenJpegPicture::operator=(OpenJpegPicture &&) noexcept = default;
OpenJpegPicture::~OpenJpegPicture() = default;

std::optional<OpenJpegPicture> OpenJpegPicture::open(const Jpeg2000Source & /*source*/,
                                                     bool /*isCodestream*/) {
    throw Error(Reasons::tr("This program was built without the means to decode JPEG 2000"));
}

bool OpenJpegPicture::isThere() {
    return false;
}

// Without open() there is no picture of which to ask what follows.
qint64 OpenJpegPicture::width() const {
    return 0;
}

qint64 OpenJpegPicture::height() const {
    return 0;
}

Jpeg2000Color OpenJpegPicture::color() const {
    return Jpeg2000Color::Other;
}

bool OpenJpegPicture::hasProfile() const {
    return false;
}

int OpenJpegPicture::componentCount() const {
    return 0;
}

Jpeg2000Component OpenJpegPicture::component(int /*index*/) const {
    return {};
}

void OpenJpegPicture::allowGaps() {}

void OpenJpegPicture::useAllCores() {}

bool OpenJpegPicture::reduceTo(double /*scale*/) {
    return false;
}

bool OpenJpegPicture::decode() {
    return false;
}

bool OpenJpegPicture::finish() {
    return false;
}

} // namespace folioforge
