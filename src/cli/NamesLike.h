// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace folioforge {

/// Those of `names` that are most likely meant by `typed`: the nearest where only letters are
/// wrong, else all that have its words in them, such as "--image-dpi" for "--dpi".
QByteArrayList namesLike(const QByteArray &typed, const QByteArrayList &names);

} // namespace folioforge
