// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

#include <map>

namespace folioforge::test {

/// The catalog of a document whose page tree is object 2.
inline const QByteArray kCatalog("<< /Type /Catalog /Pages 2 0 R >>");

/// A PDF file written by hand, object by object: what a test says is what stands in the file.
class PdfFixture {
  public:
    /// `root` is the number of the catalog.
    explicit PdfFixture(int root = 1)
        : m_root(root) {}

    /// Object `number` with `body` between "obj" and "endobj".
    PdfFixture &object(int number, const QByteArray &body);
    /// A stream object; /Length is added to `dictionary`, the keys without "<<" and ">>".
    PdfFixture &stream(int number, const QByteArray &dictionary, const QByteArray &data);
    /// `count` pages as objects `first`, `first` + 1, ... under the page tree 2; each shows its
    /// number in Helvetica (object 3) from objects `first` + `count` on.
    PdfFixture &pages(int first, int count);
    /// A long comment before each object, so that a reader finds no two in one buffer.
    PdfFixture &spread();
    /// The first line instead of "%PDF-1.7", with its line end.
    PdfFixture &header(const QByteArray &line);
    /// Entries of the trailer beside /Size and /Root.
    PdfFixture &trailer(const QByteArray &keys);

    /// What stands between "obj" and "endobj", by object number.
    [[nodiscard]] std::map<int, QByteArray> objects() const { return m_objects; }
    [[nodiscard]] QByteArray bytes() const;
    /// Writes the file; false when that fails.
    [[nodiscard]] bool write(const QString &path) const;

  private:
    int m_root;
    QByteArray m_header = "%PDF-1.7\n";
    QByteArray m_trailerKeys;
    QByteArray m_comment;
    std::map<int, QByteArray> m_objects;
};

} // namespace folioforge::test
