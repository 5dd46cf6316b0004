#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

struct _FcCharSet; // NOLINT(bugprone-reserved-identifier): the name is fontconfig's

namespace folioforge {

/// A font of the system that has not been opened: where it is and what it covers.
class CatalogFont {
  public:
    CatalogFont(QByteArray path, unsigned index, _FcCharSet *covered);

    [[nodiscard]] const QByteArray &path() const { return m_path; }
    [[nodiscard]] unsigned index() const { return m_index; }
    /// Whether the catalog lists `character` for the font; asks no font file.
    [[nodiscard]] bool covers(char32_t character) const;

  private:
    struct Release {
        void operator()(_FcCharSet *set) const;
    };
    QByteArray m_path;
    unsigned m_index = 0;
    std::unique_ptr<_FcCharSet, Release> m_covered;
};

/// The upright regular fonts that serve the text font `family`, the best first: the family itself
/// where the system really has it, then free fonts that together cover the scripts of the world,
/// then, where the system has none of these, whatever it calls its sans-serif. Reads the system's
/// font index but opens no font.
std::vector<CatalogFont> findTextFonts(const QString &family);

} // namespace folioforge
