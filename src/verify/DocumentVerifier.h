// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"
#include "verify/ComparedDocument.h"
#include "verify/Verification.h"
#include "verify/WrittenPages.h"

#include <qpdf/QPDF.hh>

#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace folioforge {

/// Throws Error once `stop` is requested.
void requireNoStop(const std::stop_token &stop);

/// A finished document that is read anew, and what holding its pages against sources needs. Throws
/// Error and what libqpdf throws.
class DocumentVerifier {
  public:
    /// Both must outlive it.
    DocumentVerifier(const WrittenDocument &written, const VerifyOptions &options);

    [[nodiscard]] const VerifyOptions &options() const { return m_options; }
    [[nodiscard]] const std::vector<SourcePage> &pages() const { return m_pages->pages(); }
    [[nodiscard]] ComparedDocument &compared() { return *m_pages; }
    /// The page that comes behind those of which `result` says something. Throws Error where there
    /// is none.
    [[nodiscard]] const SourcePage &nextPage(const EntryVerification &result) const;
    [[nodiscard]] SourceReader &reader() { return *m_reader; }
    [[nodiscard]] WrittenPages &checks() { return m_checks; }
    /// Throws Error once a stop is requested.
    void requireGoingOn() const { requireNoStop(m_options.stop); }
    /// Throws Error where libqpdf had to mend something so far.
    void requireUndamaged();
    /// Throws Error where `source`, of which pages are held against these, has readers make the
    /// appearances of fields and this does not.
    void requireAppearances(const ComparedDocument &source);
    /// Holds the pages of an entry, which come from a PDF, against it.
    void verifySource(const EntryRecord &entry, EntryVerification &result);

  private:
    void open(const WrittenDocument &written, const QByteArray &password);
    void requireWholeTables();

    const VerifyOptions &m_options;
    std::shared_ptr<SourceReader> m_reader;
    std::unique_ptr<QPDF> m_document;
    std::optional<ComparedDocument> m_pages;
    WrittenPages m_checks;
    bool m_mayNeedAppearances = false; ///< A source does.
};

} // namespace folioforge
