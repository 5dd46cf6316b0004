// SPDX-License-Identifier: Apache-2.0

#include "compress/jpeg/JpegCodec.h"

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

extern "C" {

void leaveByJump(j_common_ptr codec) {
    // The manager is the first member of JpegEscape, where libjpeg expects it.
    auto *escape = reinterpret_cast<JpegEscape *>(codec->err);
    codec->err->format_message(codec, escape->message.data());
    std::longjmp(escape->target, 1);
}

void leaveOnWarning(j_common_ptr codec, int level) {
    if (level < 0) {
        leaveByJump(codec);
    }
}
}

} // namespace

jpeg_error_mgr *install(JpegEscape &escape) {
    jpeg_std_error(&escape.manager);
    escape.manager.error_exit = leaveByJump;
    escape.manager.emit_message = leaveOnWarning;
    return &escape.manager;
}

Error damagedJpeg(const JpegEscape &escape) {
    return Error(u"damaged JPEG data: %1"_s.arg(QString::fromLatin1(escape.message.data())));
}

} // namespace folioforge
