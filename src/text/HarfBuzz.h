// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>

struct hb_blob_t;
struct hb_buffer_t;
struct hb_face_t;
struct hb_font_t;
struct hb_subset_input_t;
struct hb_subset_plan_t;

namespace folioforge {

/// Gives back what HarfBuzz handed out.
struct HarfBuzzRelease {
    void operator()(hb_blob_t *blob) const;
    void operator()(hb_buffer_t *buffer) const;
    void operator()(hb_face_t *face) const;
    void operator()(hb_font_t *font) const;
    void operator()(hb_subset_input_t *input) const;
    void operator()(hb_subset_plan_t *plan) const;
};

/// What HarfBuzz counts the uses of; `Kind` is one of the types above.
template<typename Kind> using HarfBuzz = std::unique_ptr<Kind, HarfBuzzRelease>;

} // namespace folioforge
