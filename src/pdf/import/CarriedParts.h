// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/DocumentParts.h"

namespace folioforge {

struct ImportedDocument;

/// Counts what a document has brought. To be called when all of it is copied.
PartCounts countCarried(const ImportedDocument &imported);

} // namespace folioforge
