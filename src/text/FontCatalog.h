// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

struct _FcCharSet; // NOLINT(bugprone-reserved-identifier): the name is fontconfig's

namespace folioforge {

/// A font of the system, not opened: where it is and which characters it covers.
class CatalogFont {
  public:
    CatalogFont(QByteArray path, unsigned index, _FcCharSet *covered);

    [[nodiscard]] const QByteArray &path() const { return m_path; }
    [[nodiscard]] unsigned index() const { return m_index; }
    /// Whether the system's font index lists `character` for the font.
    [[nodiscard]] bool covers(char32_t character) const;

  private:
    struct Release {
        void operator()(_FcCharSet *set) const;
    };
    QByteArray m_path;
    unsigned m_index = 0;
    std::unique_ptr<_FcCharSet, Release> m_covered;
};

/// The upright regular fonts for text in the first of `families`, in order of preference: those of
/// the families that the system has, then free fonts that together cover the scripts of the world;
/// if the system has none of these, its sans-serif. Reads the system's font index but opens no
/// font.
std::vector<CatalogFont> findTextFonts(const QStringList &families);

/// Those of `families` of which the system has no font that text can be written with.
QStringList missingFamilies(const QStringList &families);

} // namespace folioforge
