// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArrayView>

#include <functional>

namespace folioforge {

/// Hands over the number and the data of each of the resources that Photoshop keeps beside a
/// picture (Adobe Photoshop File Formats Specification). Of damaged ones it is those before the
/// damage.
void forEachPhotoshopResource(QByteArrayView resources,
                              const std::function<void(quint16, QByteArrayView)> &visit);

} // namespace folioforge
