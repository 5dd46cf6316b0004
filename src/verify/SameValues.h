// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <string>

namespace folioforge {

/// Whether two values are the same that hold no others.
bool isSameScalar(QPDFObjectHandle source, QPDFObjectHandle written);

/// Whether `key` of a stream tells how its data are stored.
bool isOfData(const std::string &key);

/// Whether two streams have the same bytes, or unfold to the same.
bool haveSameData(QPDFObjectHandle source, QPDFObjectHandle written);

} // namespace folioforge
