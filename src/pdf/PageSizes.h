// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"

#include <QSizeF>

#include <qpdf/QPDFObjectHandle.hh>

#include <span>

namespace folioforge {

/// A warning where some of `pages` are smaller or larger than readers need to show (ISO 32000-1,
/// annex C); the first ones are named by their number in `pages`, from 1. The limits are units of
/// the page, which /UserUnit makes larger, so it is not looked at. A box that is none is passed
/// over.
Warnings checkPageSizes(std::span<const QPDFObjectHandle> pages);

/// Width and height of the media box of `page`, in its units.
QSizeF sizeOfPage(const QPDFObjectHandle &page);

} // namespace folioforge
