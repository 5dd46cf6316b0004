// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjGen.hh>

#include <functional>
#include <string>
#include <string_view>

namespace folioforge {

class StreamCipher;

/// The number in a file of what has the number and the generation `object` in a document.
using NumberOf = std::function<int(const QPDFObjGen &object)>;

/// Appends `object`, as libqpdf writes it out, to `out`, its references with the numbers of the
/// file and its strings encrypted. A null `cipher` means that they are not.
void appendObject(std::string &out, std::string_view object, const NumberOf &numberOf,
                  const StreamCipher *cipher);

} // namespace folioforge
