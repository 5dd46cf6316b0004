// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <libheif/heif.h>

namespace folioforge {

/// The functions of libheif that are used, without the "heif_" of their names.
#define FOLIOFORGE_HEIF_FUNCTIONS(USE)                                                             \
    USE(context_alloc)                                                                             \
    USE(context_free)                                                                              \
    USE(context_get_image_handle)                                                                  \
    USE(context_get_list_of_top_level_image_IDs)                                                   \
    USE(context_get_number_of_top_level_images)                                                    \
    USE(context_get_primary_image_ID)                                                              \
    USE(context_read_from_reader)                                                                  \
    USE(context_set_max_decoding_threads)                                                          \
    USE(decode_image)                                                                              \
    USE(image_get_bits_per_pixel_range)                                                            \
    USE(image_get_decoding_warnings)                                                               \
    USE(image_get_height)                                                                          \
    USE(image_get_plane_readonly)                                                                  \
    USE(image_get_width)                                                                           \
    USE(image_handle_get_height)                                                                   \
    USE(image_handle_get_list_of_metadata_block_IDs)                                               \
    USE(image_handle_get_luma_bits_per_pixel)                                                      \
    USE(image_handle_get_metadata)                                                                 \
    USE(image_handle_get_metadata_content_type)                                                    \
    USE(image_handle_get_metadata_size)                                                            \
    USE(image_handle_get_nclx_color_profile)                                                       \
    USE(image_handle_get_raw_color_profile)                                                        \
    USE(image_handle_get_raw_color_profile_size)                                                   \
    USE(image_handle_get_width)                                                                    \
    USE(image_handle_has_alpha_channel)                                                            \
    USE(image_handle_is_premultiplied_alpha)                                                       \
    USE(image_handle_release)                                                                      \
    USE(image_release)                                                                             \
    USE(init)                                                                                      \
    USE(nclx_color_profile_free)

struct HeifLibrary {
// NOLINTNEXTLINE(bugprone-macro-parentheses): a name that is declared takes none
#define FOLIOFORGE_HEIF_MEMBER(NAME) decltype(&heif_##NAME) NAME = nullptr;
    FOLIOFORGE_HEIF_FUNCTIONS(FOLIOFORGE_HEIF_MEMBER)
#undef FOLIOFORGE_HEIF_MEMBER
};

/// libheif, which is loaded when a file first needs it: with its codecs it takes longer to start
/// than most runs take. Throws Error where it cannot be; once it is loaded this never fails.
const HeifLibrary &heif();

} // namespace folioforge
