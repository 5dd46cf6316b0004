// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace folioforge {

/// The sentences of the engine, in English unless the program installs a translator.
///
/// They are translated where they are made, on any thread: later nobody could tell what was put
/// into them. Sentences in tables are marked by QT_TRANSLATE_NOOP("Reasons", ...) and translated
/// when they are said.
struct Reasons {
    Q_DECLARE_TR_FUNCTIONS(Reasons)

  public:
    /// Parts of a sentence, one behind the other.
    static QString listed(const QStringList &parts) { return parts.join(tr(", ")); }
};

} // namespace folioforge
