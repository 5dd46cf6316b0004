// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace folioforge::test {

/// The system's own Python, which packages are installed for.
QString python();

} // namespace folioforge::test
