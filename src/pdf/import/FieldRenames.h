// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/Entries.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <string>
#include <vector>

namespace folioforge {

/// New names by old ones.
using Renames = std::map<std::string, std::string>;
using CategoryRenames = std::map<std::string, Renames>; ///< By category, such as /Font.

/// Whether an action may name form fields by their text (ISO 32000-1, 12.7.5).
bool namesFields(const Dictionary &action);

/// Renames in the default appearances of the fields `roots` and all fields under them, once in
/// each.
void renameInAppearances(const std::vector<QPDFObjectHandle> &roots,
                         const CategoryRenames &renames);

/// Lets actions such as a reset follow the names of the fields that they name.
void renameInActions(const std::vector<QPDFObjectHandle> &actions, const Renames &renames);

} // namespace folioforge
