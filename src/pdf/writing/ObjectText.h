// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjGen.hh>

#include <string>
#include <string_view>

namespace folioforge {

class StreamCipher;

/// Gives objects of a document the numbers that they have in a file.
class ObjectNumbers {
  public:
    ObjectNumbers() = default;
    virtual ~ObjectNumbers() = default;
    ObjectNumbers(const ObjectNumbers &) = delete;
    ObjectNumbers &operator=(const ObjectNumbers &) = delete;

    /// The number in the file of what has the number and the generation `object` in the document.
    virtual int numberOf(const QPDFObjGen &object) = 0;
};

/// Appends `object`, as libqpdf writes it out, to `out`, its references with the numbers of the
/// file and its strings encrypted. A null `cipher` means that they are not.
void appendObject(std::string &out, std::string_view object, ObjectNumbers &numbers,
                  const StreamCipher *cipher);

} // namespace folioforge
