// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace folioforge {

/// How the pages that are drawn are tagged (ISO 32000-1, 14.8).
struct TagOptions {
    QString language; ///< Of texts and descriptions, a language tag (BCP 47).
    /// The title where the document's information has none; readers then show the title in place
    /// of the file's name. Empty: both stay as they are.
    QString title;
    /// Whether the document keeps PDF/UA-1 (ISO 14289-1) and says so; sources without tags are
    /// refused.
    bool accessible = false;
};

} // namespace folioforge
