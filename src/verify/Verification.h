// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SystemCalls.h"
#include "pdf/Password.h"
#include "verify/ReadBytes.h"
#include "verify/Record.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace folioforge {

/// By what a page was shown to be its source.
enum class PageProof : std::uint8_t {
    Bytes,      ///< Its picture is the file's own bytes.
    Pixels,     ///< Its picture has the file's pixels.
    Characters, ///< Its text has the characters of the file, in their order.
    Objects,    ///< What it holds and refers to is what the page of the source does.
    Likeness,   ///< Its picture is that of the file, reduced or coded anew.
    Differs     ///< It is not.
};

/// Why a page is not its source.
struct PageFault {
    int page = 0;   ///< Of the PDF, from 1.
    QString reason; ///< A part of a sentence, such as "its picture stands elsewhere".
};

/// What came of holding the pages of an entry against it.
struct EntryVerification {
    int firstPage = 0; ///< Of the PDF, from 0.
    std::vector<PageProof> pages;
    std::vector<PageFault> faults; ///< Of those that differ the first.
    qint64 missingGlyphs = 0;      ///< Characters shown as boxes; they count as shown.
    /// All is there, but not where the options would put it.
    bool isLaidOutOtherwise = false;

    [[nodiscard]] bool holds() const { return faults.empty(); }
    /// Adds what came of the next page: by what it was shown, or why it differs.
    void keep(PageProof proof, const QString &fault = {});
    /// The first fault as a sentence; empty where there is none.
    [[nodiscard]] QString reason() const;
};

/// A finished PDF, which may have no name yet.
struct WrittenDocument {
    std::string name; ///< For what libqpdf says.
    qint64 size = 0;  ///< Bytes.
    ReadBytes readBytes;
    /// CRC-32 of the bytes as they were written; nothing for a file that others wrote.
    std::optional<std::uint32_t> checksum;
    QList<QByteArray> passwords = {{}}; ///< They are tried one after another.
};

/// With what sources are opened again.
struct VerifyOptions {
    InputPasswords inputPasswords;
    std::reference_wrapper<SystemCalls> calls = SystemCalls::system();
    std::stop_token stop = {};
    /// Whether pictures may be reduced or coded anew, and be grey.
    bool mayReduce = false;
    bool mayBeGrey = false;
};

/// Reads the document anew and holds each of its pages against what `record` says and the sources
/// that it names. Gives one result for each entry. Once a stop is requested it throws at the next
/// page. Throws Error where the document as a whole cannot be read or is not what was written.
std::vector<EntryVerification> verifyDocument(const WrittenDocument &document,
                                              const DocumentRecord &record,
                                              const VerifyOptions &options);

/// The same for a document that others may have made, or long ago: pages may have other sizes,
/// pictures stand elsewhere and be coded otherwise as long as their pixels are the same, and texts
/// be set otherwise as long as their characters come in the same order, blanks aside.
std::vector<EntryVerification> verifyFoundDocument(const WrittenDocument &document,
                                                   const DocumentRecord &record,
                                                   const VerifyOptions &options);

/// Holds the pages of `copy`, which the compression pass made of `original`, against its: all but
/// pictures has to be the same, and these alike. Gives why it is not; empty where it is. Throws
/// Error where one of both cannot be read.
QString copyFault(const WrittenDocument &original, const WrittenDocument &copy,
                  const VerifyOptions &options);

} // namespace folioforge
