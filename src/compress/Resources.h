// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <set>
#include <string>
#include <vector>

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// Whether `object` is an image XObject.
bool isImage(QPDFObjectHandle object);

/// The entry `name` of the resources' dictionary `kind`, both with their slash; null where there is
/// none.
QPDFObjectHandle resource(QPDFObjectHandle resources, const char *kind, const std::string &name);

/// The streams that content under these resources can draw by name: images, forms, tiling patterns
/// and the groups of soft masks.
std::vector<QPDFObjectHandle> drawableStreams(const QPDFObjectHandle &resources);

/// The Type 3 fonts of these resources, whose glyphs are content streams.
std::vector<QPDFObjectHandle> type3Fonts(const QPDFObjectHandle &resources);

/// Every image that content under these resources could reach, at any depth.
std::set<QPDFObjGen> imagesBehind(const QPDFObjectHandle &resources);

} // namespace folioforge
