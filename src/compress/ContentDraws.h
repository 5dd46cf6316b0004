#pragma once

#include "compress/Linear.h"

#include <cstddef>
#include <map>
#include <set>

#include <qpdf/QPDFObjGen.hh>

namespace folioforge {

/// What one piece of content draws: images under transformations into its own space.
struct ContentDraws {
    /// More different sizes of one object than this are not followed.
    static constexpr std::size_t kMaxSizes = 64;

    std::map<QPDFObjGen, std::set<Linear>> images;
    std::set<QPDFObjGen> unclear; ///< Images whose size could not be followed.

    /// Adds `image` drawn under `matrix`; too many different sizes make it unclear.
    void add(QPDFObjGen image, const Linear &matrix);
    /// Adds all that `inner` draws, drawn under `matrix`.
    void add(const ContentDraws &inner, const Linear &matrix);
    /// Adds all that `inner` draws, at sizes that cannot be told.
    void addUnclear(const ContentDraws &inner);
};

} // namespace folioforge
