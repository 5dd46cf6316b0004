// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace folioforge::test {

/// An ICC profile of version 2 for four inks: a colour is white without what each ink takes away.
QByteArray inkProfile();

} // namespace folioforge::test
