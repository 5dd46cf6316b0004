// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace folioforge::test {

/// `count` zero bytes as Flate data, 158 to one.
QByteArray zerosInFlate(qint64 count);

} // namespace folioforge::test
