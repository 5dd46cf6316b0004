// SPDX-License-Identifier: Apache-2.0

#include "verify/SameValues.h"

#include "pdf/import/Entries.h"
#include "pdf/import/SourceNames.h"
#include "verify/StreamSums.h"

#include <cmath>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

bool isSameNumber(Object source, Object written) {
    constexpr double kTolerance = 1e-6;
    return source.unparse() == written.unparse() ||
           std::abs(source.getNumericValue() - written.getNumericValue()) <= kTolerance;
}

/// The filters of a stream with their parameters.
std::string filtersOf(const Object &dictionary) {
    std::string text;
    for (const char *key : {"/Filter", "/DecodeParms"}) {
        Object value = entry(dictionary, key);
        if (value.isArray()) {
            for (Object item : items(value)) {
                text += item.unparseResolved() + ' ';
            }
        } else if (!value.isNull()) {
            text += value.unparseResolved() + ' ';
        }
        text += '|';
    }
    return text;
}

} // namespace

bool isSameScalar(QPDFObjectHandle source, QPDFObjectHandle written) {
    if (source.isNumber() && written.isNumber()) {
        return isSameNumber(source, written);
    }
    if (source.isString() && written.isString()) {
        return source.getStringValue() == written.getStringValue();
    }
    if (source.isName() && written.isName()) {
        return source.getName() == written.getName() ||
               shortened(source).getName() == written.getName();
    }
    return source.getTypeCode() == written.getTypeCode() &&
           source.unparseResolved() == written.unparseResolved();
}

bool isOfData(const std::string &key) {
    return key == "/Length" || key == "/Filter" || key == "/DecodeParms" || key == "/DL";
}

bool haveSameData(QPDFObjectHandle source, QPDFObjectHandle written) {
    const bool haveSameFilters = filtersOf(source.getDict()) == filtersOf(written.getDict());
    const Unpacking how = haveSameFilters ? Unpacking::None : Unpacking::Samples;
    const auto sum = sumOf(written, how);
    return sum && sum == sumOf(source, how);
}

} // namespace folioforge
