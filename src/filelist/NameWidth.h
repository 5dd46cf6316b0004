#pragma once

#include <QString>

namespace folioforge {

/// Width in points of `name` on one line in "Lucida Grande" at 11 points; where the system lacks
/// that font, in the free fonts that stand in for it.
double nameWidth(const QString &name);

} // namespace folioforge
