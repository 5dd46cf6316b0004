// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/Conversion.h"
#include "pdf/PDFContext.h"
#include "verify/Record.h"

#include <stop_token>
#include <vector>

namespace folioforge {

/// Holds a document against `record` before it gets its name, and puts what comes of it into
/// `entries`: those that differ become failed ones, and the document gets no name. Nothing where
/// the options do not ask for it. All but the stop token must outlive it.
Inspection verifyingInspection(const DocumentRecord &record, const ConversionOptions &options,
                               const std::stop_token &stop, std::vector<EntryOutcome> &entries);

/// Holds the PDF `verifyOnly` of the options against `record`, whoever made it, and puts what comes
/// of it into `entries`. Throws Error where it cannot be read.
void verifyFound(const DocumentRecord &record, const ConversionOptions &options,
                 const std::stop_token &stop, std::vector<EntryOutcome> &entries);

/// Why the smaller copy at `copy` of the PDF at `path` is not that PDF; empty where it is, and
/// where the options do not ask. Never throws.
QString verifyCopy(const QString &path, const QString &copy, const ConversionOptions &options,
                   const std::stop_token &stop);

} // namespace folioforge
