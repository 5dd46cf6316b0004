// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/PageTree.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <functional>
#include <vector>

namespace folioforge {

/// Calls `visit` for the fields `roots` and the ones under them (ISO 32000-1, 12.7.3), widgets
/// among them, each once, however they refer to each other. Where it returns false, what is under
/// that field is left out.
void visitFields(const std::vector<QPDFObjectHandle> &roots,
                 const std::function<bool(QPDFObjectHandle)> &visit);

/// The topmost fields of widgets on `pages` that are not under `listed`, the roots that a form
/// names. Readers that go by pages show and fill in these, too.
std::vector<QPDFObjectHandle> unlistedFields(const std::vector<SourcePage> &pages,
                                             const std::vector<QPDFObjectHandle> &listed);

} // namespace folioforge
