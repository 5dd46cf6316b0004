// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>

namespace folioforge {

/// Where libjpeg goes on an error, instead of ending the program.
struct JpegEscape {
    jpeg_error_mgr manager; ///< The first member, where libjpeg expects it.
    std::jmp_buf target;
    std::array<char, JMSG_LENGTH_MAX> message; ///< What libjpeg says of the error.
};

/// Makes `escape` the error manager of a codec, which prints nothing. Before each call of libjpeg
/// the caller sets the target, in a function without objects that would have to be destroyed.
jpeg_error_mgr *install(JpegEscape &escape);

/// A progress monitor that makes an error of scans without end: a progressive file can repeat them
/// to keep a decoder busy for hours.
extern "C" void stopEndlessScans(j_common_ptr codec);

} // namespace folioforge
