// SPDX-License-Identifier: Apache-2.0

// Stands in for Exr.cpp where the program is built without OpenEXR.

#include "image/formats/Formats.h"

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

bool recognises(QByteArrayView head) {
    return head.startsWith(kExrSignature);
}

[[noreturn]] void refuse() {
    throw Error(u"This program was built without the means to read EXR files"_s);
}

ImageHeader readHeader(const FileView & /*file*/) {
    refuse();
}

PdfImage toPdfImage(const FileView & /*file*/) {
    refuse();
}

} // namespace

ImageFormat exrFormat() {
    return {ImageKind::Exr, {QLatin1StringView("exr")}, recognises, readHeader, toPdfImage};
}

} // namespace folioforge
