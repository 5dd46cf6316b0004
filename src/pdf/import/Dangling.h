// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <string>

namespace folioforge {

// Whether an object refers to one that is not there. Readers take such a reference for null, and so
// does libqpdf 12, but what it stood for is lost; a null that is written in its place loses
// nothing.

/// Whether the value of `key` is such a reference.
bool isDangling(QPDFObjectHandle dictionary, const std::string &key);
/// Whether the item at `index`, from 0, is such a reference.
bool isDangling(QPDFObjectHandle array, int index);
/// Whether one of the items is such a reference; false where `array` is none.
bool hasDanglingItems(QPDFObjectHandle array);

} // namespace folioforge
