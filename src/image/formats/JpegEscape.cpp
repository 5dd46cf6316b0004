// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegEscape.h"

namespace folioforge {

namespace {

constexpr int kMaxScans = 200; // Real files have about ten.

extern "C" {

void leaveByJump(j_common_ptr codec) {
    auto *escape = reinterpret_cast<JpegEscape *>(codec->err);
    codec->err->format_message(codec, escape->message.data());
    std::longjmp(escape->target, 1);
}

void ignoreMessage(j_common_ptr /*codec*/, int /*level*/) {}
}

} // namespace

jpeg_error_mgr *install(JpegEscape &escape) {
    jpeg_std_error(&escape.manager);
    escape.manager.error_exit = leaveByJump;
    escape.manager.emit_message = ignoreMessage;
    return &escape.manager;
}

extern "C" void stopEndlessScans(j_common_ptr codec) {
    if (codec->is_decompressor != 0 &&
        reinterpret_cast<j_decompress_ptr>(codec)->input_scan_number > kMaxScans) {
        codec->err->error_exit(codec);
    }
}

} // namespace folioforge
