// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/SourceNames.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <string>

namespace folioforge {

/// What may become of an entry when the pages of a PDF are taken over into another.
enum class ImportChange {
    None,        ///< It stays what it is.
    Destination, ///< It leads to the same place, maybe under another name.
    Name,        ///< A name that others have too gets something behind it.
    Appearance,  ///< The names of its resources may be others.
    Pruned,      ///< What belongs to pages that were left out is taken out of it.
    Free         ///< It belongs to the structure, the threads or files of its document.
};

/// What may become of the entry `key` of `dictionary`, an object of a source.
ImportChange changeOf(QPDFObjectHandle dictionary, const std::string &key);

/// Whether `object` belongs to its document as a whole, or holds for its file alone.
bool staysInItsDocument(QPDFObjectHandle object);

/// Whether `action` leads to a place in its document.
bool isGoTo(const QPDFObjectHandle &action);

/// Whether `dictionary` is a form field or one of its widgets.
bool isField(QPDFObjectHandle dictionary);

/// Whether `written` is `source`, a string or an array of strings, maybe with something added to
/// names.
bool isRenamed(QPDFObjectHandle source, const QPDFObjectHandle &written);

/// The name without its slash of the font that a default appearance sets; empty for none.
std::string fontIn(QPDFObjectHandle appearance);

/// Whether two values are the same, or default appearances that differ in names alone.
bool isSameAppearance(QPDFObjectHandle source, QPDFObjectHandle written);

} // namespace folioforge
