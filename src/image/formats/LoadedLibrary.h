// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLibrary>
#include <QString>

namespace folioforge {

/// A library that is loaded when a file first needs it: it takes longer to start than most runs
/// take.
class LoadedLibrary {
  public:
    /// Loads the library `file`, a name or a path. Throws Error with `refusal`, in which %1 is
    /// `version` and %2 the reason, where it cannot be loaded.
    LoadedLibrary(const QString &file, QString version, QString refusal);

    /// Finds the function `name`. Throws Error where the library has none.
    template<typename Function> void find(const char *name, Function *&function) {
        function = reinterpret_cast<Function *>(found(name));
    }

  private:
    QFunctionPointer found(const char *name);
    [[noreturn]] void fail() const;

    QLibrary m_library;
    QString m_version;
    QString m_refusal;
};

} // namespace folioforge
