// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

#include <map>

namespace folioforge {

/// What pictures show, in words, by the names of their files.
class PictureDescriptions {
  public:
    /// `name` is that of a file, or the end of its path: "photo.jpg", "2024/photo.jpg".
    void add(const QString &name, const QString &description) {
        m_byName.insert_or_assign(name, description);
    }
    /// That of the file at `path`, by the longest of the names that fit; empty where none does.
    [[nodiscard]] QString of(const QString &path) const;
    /// The names that fit none of `paths`.
    [[nodiscard]] QStringList unused(const QStringList &paths) const;

  private:
    std::map<QString, QString> m_byName;
};

} // namespace folioforge
