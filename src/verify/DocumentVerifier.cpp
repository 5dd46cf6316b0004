// SPDX-License-Identifier: Apache-2.0

#include "verify/DocumentVerifier.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "pdf/QpdfErrors.h"
#include "pdf/import/SourceDocument.h"
#include "verify/PageComparison.h"
#include "verify/StreamSums.h"
#include "verify/WrittenInput.h"
#include "verify/WrittenSyntax.h"

#include <algorithm>
#include <set>

namespace folioforge {

DocumentVerifier::DocumentVerifier(const WrittenDocument &written, const VerifyOptions &options)
    : m_options(options)
    , m_reader(std::make_shared<SourceReader>(options.calls)) {
    for (const QByteArray &password : written.passwords) {
        try {
            open(written, password);
            break;
        } catch (const QPDFExc &fault) {
            if (fault.getErrorCode() != qpdf_e_password || password == written.passwords.back()) {
                throw;
            }
        }
    }
    requireWholeTables();
    requireCommonSpaces(*m_document, written.readBytes, written.size);
    m_pages.emplace(*m_document);
}

/// The streams that hold other objects match their checksums, which libqpdf passes over.
void DocumentVerifier::requireWholeTables() {
    std::set<int> holders;
    for (const auto &[object, place] : m_document->getXRefTable()) {
        if (place.getType() == 2) {
            holders.insert(place.getObjStreamNumber());
        }
    }
    for (const int holder : holders) {
        if (!sumOf(m_document->getObjectByID(holder, 0), Unpacking::Rows)) {
            throw Error(Reasons::tr("The PDF is damaged: %1")
                            .arg(Reasons::tr("the data of a stream is damaged")));
        }
    }
}

void DocumentVerifier::open(const WrittenDocument &written, const QByteArray &password) {
    m_document = std::make_unique<QPDF>();
    m_document->setSuppressWarnings(true);
    m_document->setAttemptRecovery(false); // What has to be searched for is damaged.
    m_document->processInputSource(
        std::make_shared<WrittenInput>(written.name, written.size, written.readBytes),
        password.isEmpty() ? nullptr : password.constData());
}

const SourcePage &DocumentVerifier::nextPage(const EntryVerification &result) const {
    const std::size_t index = static_cast<std::size_t>(result.firstPage) + result.pages.size();
    if (index >= pages().size()) {
        throw Error(Reasons::tr("The PDF has fewer pages than the files"));
    }
    return pages()[index];
}

void requireNoStop(const std::stop_token &stop) {
    if (stop.stop_requested()) {
        throw conversionStopped();
    }
}

void DocumentVerifier::requireUndamaged() {
    requireMemory(*m_document);
    if (m_pages->needsAppearances() && !m_mayNeedAppearances) {
        throw Error(Reasons::tr("Readers would draw the form fields of the PDF otherwise"));
    }
    const auto faults = faultsOf(*m_document);
    if (faults.empty()) {
        return;
    }
    const auto fault = std::ranges::find_if(faults, isFault);
    throw Error(Reasons::tr("The PDF is damaged: %1")
                    .arg(inWords(fault == faults.end() ? faults.front() : *fault)));
}

/// What a reader makes anew may look otherwise than what is stored.
void DocumentVerifier::requireAppearances(const ComparedDocument &source) {
    m_mayNeedAppearances = m_mayNeedAppearances || source.needsAppearances();
    if (source.needsAppearances() && !m_pages->needsAppearances()) {
        throw Error(Reasons::tr("Readers would draw the form fields of the PDF otherwise"));
    }
}

void DocumentVerifier::verifySource(const EntryRecord &entry, EntryVerification &result) {
    m_reader->beginAnew();
    const auto source =
        openSourceDocument(FileVersion::of(entry.source->path), m_reader, m_options.inputPasswords);
    withAllObjects(*source, *m_reader, [&] {
        ComparedDocument compared(*source);
        requireAppearances(compared);
        PageComparison comparison(compared, *m_pages, result.firstPage, entry.source->choice);
        for (int i = 0; i < entry.pages; ++i) {
            requireGoingOn();
            const auto index = static_cast<std::size_t>(i);
            static_cast<void>(nextPage(result)); // Throws where there is none.
            result.keep(PageProof::Objects, index < comparison.pageCount()
                                                ? comparison.fault(index)
                                                : Reasons::tr("it is no page of the source"));
        }
        return true;
    });
}

} // namespace folioforge
