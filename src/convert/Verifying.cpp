// SPDX-License-Identifier: Apache-2.0

#include "convert/Verifying.h"

#include "convert/FailureReason.h"
#include "error/Error.h"
#include "error/Reasons.h"
#include "files/OutputFile.h"
#include "files/SourceFile.h"
#include "pdf/Password.h"

#include <utility>

namespace folioforge {
namespace {

/// What opens a document that was protected so.
QList<QByteArray> openingPasswords(const SecuritySettings &security) {
    const auto encryption = encryptionFor(security);
    if (!encryption) {
        return {{}};
    }
    const PreparedPasswords passwords = preparedPasswords(*encryption);
    return {passwords.owner, passwords.user};
}

VerifyOptions verifyOptions(const ConversionOptions &options, const std::stop_token &stop) {
    return {options.inputPasswords, options.calls, stop, options.compresses(),
            options.compressGrey};
}

/// A document that has its name; `file` must outlive it.
WrittenDocument finished(const SourceFile &file, const ConversionOptions &options) {
    return {file.version().path.toStdString(), file.version().size,
            [&file](qint64 offset, std::span<char> target) { return file.readAt(offset, target); },
            std::nullopt, openingPasswords(options.security)};
}

/// Puts the results to their entries; says whether all hold.
bool keep(std::vector<EntryVerification> results, std::vector<EntryOutcome> &entries) {
    bool holds = true;
    for (std::size_t i = 0; i < results.size(); ++i) {
        EntryOutcome &entry = entries.at(i);
        if (!results[i].holds()) {
            entry.written = false;
            entry.reason = results[i].reason();
            holds = false;
        }
        entry.verification = std::move(results[i]);
    }
    return holds;
}

} // namespace

Inspection verifyingInspection(const DocumentRecord &record, const ConversionOptions &options,
                               const std::stop_token &stop, std::vector<EntryOutcome> &entries) {
    if (!options.verify) {
        return {};
    }
    return [&, stop](OutputFile &file, std::uint32_t checksum) {
        const WrittenDocument document{"the PDF", file.size(),
                                       [&file](qint64 offset, std::span<char> target) {
                                           return file.readInto(offset, target);
                                       },
                                       checksum, openingPasswords(options.security)};
        auto results = verifyDocument(document, record, verifyOptions(options, stop));
        if (!keep(std::move(results), entries)) {
            throw Error(Reasons::tr("Not every page of the PDF is its source"));
        }
    };
}

QString verifyCopy(const QString &path, const QString &copy, const ConversionOptions &options,
                   const std::stop_token &stop) {
    if (!options.verify) {
        return {};
    }
    QString fault;
    const QString failure = reasonOfFailure([&] {
        const SourceFile original = SourceFile::open(path, options.calls);
        const SourceFile smaller = SourceFile::open(copy, options.calls);
        fault = copyFault(finished(original, options), finished(smaller, options),
                          verifyOptions(options, stop));
    });
    return failure.isEmpty() ? fault : failure;
}

void verifyFound(const DocumentRecord &record, const ConversionOptions &options,
                 const std::stop_token &stop, std::vector<EntryOutcome> &entries) {
    const SourceFile file = SourceFile::open(options.verifyOnly, options.calls);
    auto results =
        verifyFoundDocument(finished(file, options), record, verifyOptions(options, stop));
    file.requireUnchanged();
    for (std::size_t i = 0; i < results.size(); ++i) {
        if (results[i].isLaidOutOtherwise && results[i].holds()) {
            entries.at(i).warnings.push_back(
                {WarningCode::LaidOutOtherwise,
                 Reasons::tr("All of it is in the PDF, but laid out otherwise")});
        }
    }
    keep(std::move(results), entries);
}

} // namespace folioforge
