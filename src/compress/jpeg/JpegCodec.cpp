// SPDX-License-Identifier: Apache-2.0

#include "compress/jpeg/JpegCodec.h"

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

extern "C" void leaveOnWarning(j_common_ptr codec, int level) {
    if (level < 0) {
        codec->err->error_exit(codec);
    }
}

} // namespace

jpeg_error_mgr *installStrictly(JpegEscape &escape) {
    install(escape)->emit_message = leaveOnWarning;
    return &escape.manager;
}

Error damagedJpeg(const JpegEscape &escape) {
    return Error(u"damaged JPEG data: %1"_s.arg(QString::fromLatin1(escape.message.data())));
}

} // namespace folioforge
