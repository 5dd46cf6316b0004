// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <jxl/decode.h>

namespace folioforge {

/// The functions of libjxl that are used, without the "JxlDecoder" of their names.
#define FOLIOFORGE_JXL_FUNCTIONS(USE)                                                              \
    USE(Create)                                                                                    \
    USE(Destroy)                                                                                   \
    USE(ExtraChannelBufferSize)                                                                    \
    USE(FlushImage)                                                                                \
    USE(GetBasicInfo)                                                                              \
    USE(GetBoxType)                                                                                \
    USE(GetColorAsEncodedProfile)                                                                  \
    USE(GetColorAsICCProfile)                                                                      \
    USE(GetExtraChannelInfo)                                                                       \
    USE(GetICCProfileSize)                                                                         \
    USE(ImageOutBufferSize)                                                                        \
    USE(ProcessInput)                                                                              \
    USE(ReleaseBoxBuffer)                                                                          \
    USE(ReleaseInput)                                                                              \
    USE(ReleaseJPEGBuffer)                                                                         \
    USE(SetBoxBuffer)                                                                              \
    USE(SetDecompressBoxes)                                                                        \
    USE(SetExtraChannelBuffer)                                                                     \
    USE(SetImageOutBuffer)                                                                         \
    USE(SetInput)                                                                                  \
    USE(SetJPEGBuffer)                                                                             \
    USE(SetParallelRunner)                                                                         \
    USE(SetPreferredColorProfile)                                                                  \
    USE(SetUnpremultiplyAlpha)                                                                     \
    USE(SubscribeEvents)

struct JpegXlLibrary {
// NOLINTNEXTLINE(bugprone-macro-parentheses): a name that is declared takes none
#define FOLIOFORGE_JXL_MEMBER(NAME) decltype(&JxlDecoder##NAME) NAME = nullptr;
    FOLIOFORGE_JXL_FUNCTIONS(FOLIOFORGE_JXL_MEMBER)
#undef FOLIOFORGE_JXL_MEMBER
};

/// libjxl, which is loaded when a file first needs it: a library under it measures the processor's
/// clock at its start. Throws Error where it cannot be; once it is loaded this never fails.
const JpegXlLibrary &jxl();

} // namespace folioforge
