#pragma once

#include "error/Error.h"

#include <array>
#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>

namespace folioforge {

/// Where libjpeg goes on an error, instead of ending the program; a warning about damaged data
/// counts as one.
struct JpegEscape {
    jpeg_error_mgr manager;
    std::jmp_buf target;
    std::array<char, JMSG_LENGTH_MAX> message;
};

/// Makes `escape` the error manager of a codec. Before each call of libjpeg the caller sets the
/// target, in a function without objects that would have to be destroyed.
jpeg_error_mgr *install(JpegEscape &escape);

/// What `escape` has caught.
Error damagedJpeg(const JpegEscape &escape);

} // namespace folioforge
