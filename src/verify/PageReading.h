// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/OrientedMatrix.h"
#include "verify/FontCodes.h"
#include "verify/TextTrace.h"

#include <QRectF>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace folioforge {

/// A picture that a content draws by its name.
struct DrawnPicture {
    std::string name; ///< Without its slash.
    Matrix matrix;    ///< Of its unit square.
    std::optional<QRectF> clip;
};

/// What the contents of a page show.
struct ReadPage {
    QString text;    ///< Without headers and footers.
    TextTrace trace; ///< Of that text.
    TextTrace margins;
    std::vector<DrawnPicture> pictures;
    std::string strange; ///< The first operator, or what it does, that no page drawn here has.
};

/// The fonts of a page by their names without slashes.
using FontsByName = std::map<std::string, std::shared_ptr<const FontCodes>>;

/// Reads the contents of a page by itself. `fontSize` is the one size that its text may have; 0 for
/// any.
ReadPage readPage(std::string_view content, const FontsByName &fonts, double fontSize);

} // namespace folioforge
