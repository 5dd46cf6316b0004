// SPDX-License-Identifier: Apache-2.0

#include "text/HarfBuzz.h"

#include <hb-subset.h>
#include <hb.h>

namespace folioforge {

void HarfBuzzRelease::operator()(hb_blob_t *blob) const {
    hb_blob_destroy(blob);
}

void HarfBuzzRelease::operator()(hb_buffer_t *buffer) const {
    hb_buffer_destroy(buffer);
}

void HarfBuzzRelease::operator()(hb_face_t *face) const {
    hb_face_destroy(face);
}

void HarfBuzzRelease::operator()(hb_font_t *font) const {
    hb_font_destroy(font);
}

void HarfBuzzRelease::operator()(hb_subset_input_t *input) const {
    hb_subset_input_destroy(input);
}

void HarfBuzzRelease::operator()(hb_subset_plan_t *plan) const {
    hb_subset_plan_destroy(plan);
}

} // namespace folioforge
