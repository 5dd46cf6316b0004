// SPDX-License-Identifier: Apache-2.0

#include "pdf/PDFContextImpl.h"

#include "error/Reasons.h"
#include "files/OutputFile.h"
#include "pdf/DocumentInfo.h"
#include "pdf/QpdfErrors.h"
#include "pdf/writing/DocumentWriter.h"

#include <utility>

namespace folioforge {

void PDFContext::Impl::finishDocument() {
    translateQpdfErrors([&] {
        if (m_archive && m_settings.encryption) {
            throw Error(Reasons::tr("A document for archives cannot be encrypted"));
        }
        FontRules fonts = m_archive ? m_archive->fontRules() : FontRules();
        fonts.allUnicode = fonts.allUnicode || isAccessible();
        m_pages.embedFonts(fonts);
        fixCreationDate(m_settings.info);
        const QString title = m_settings.tags ? m_settings.tags->title : QString();
        if (m_settings.info.title.isEmpty()) {
            m_settings.info.title = title;
        }
        if (m_archive && m_archive->areKept()) {
            m_archive->keepInfo(m_settings.info);
            m_catalog.claimArchive(claimsOf(m_archive->level()), srgbOutputIntent(m_streams));
        }
        writeDocumentInfo(m_document, m_settings.info);
        if (!m_tags.pages().empty()) {
            m_drawn = makeStructure(m_document, m_tags, m_settings.tags->language.toStdString());
        }
        if (isAccessible()) {
            m_catalog.claimAccessible(m_settings.tags->language.toStdString());
        }
        m_catalog.finish(m_document, m_settings.info, m_drawn ? &*m_drawn : nullptr);
        if (!title.isEmpty()) {
            showTitle(m_document);
        }
    });
}

CloseResult PDFContext::Impl::publish(OutputFile &file, const std::function<QString()> &nextPath) {
    // Each attempt fails only when another program has just taken the name.
    constexpr int kAttempts = 1000;
    QString path = m_path;
    if (m_settings.mayReplace) {
        file.replace(path, m_settings.flush);
        return {CloseResult::Status::Written, path, {}, {}};
    }
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (file.publish(path, m_settings.flush) == OutputFile::Published::Yes) {
            return {CloseResult::Status::Written, path, {}, {}};
        }
        if (!nextPath) {
            break;
        }
        path = nextPath();
    }
    return {CloseResult::Status::NameTaken, path, {}, {}};
}

CloseResult PDFContext::Impl::close(const std::function<QString()> &nextPath,
                                    const Inspection &inspect) {
    try {
        waitForPages();
        finishDocument();
        // From now on each source is read only if it is still the file that was examined.
        m_reader->beginAnew();
        OutputFile file(m_path, m_settings.calls);
        WriteSteps steps;
        if (m_drawn) {
            steps.further = [this](const NumberOf &numberOf, ObjectStreams &streams) {
                writeElements(m_tags, *m_drawn, m_catalog.pages(), numberOf, streams);
            };
        }
        const std::uint32_t checksum =
            writeDocument(m_document, file, m_settings.encryption.get(), m_catalog.form(), steps);
        m_reader->finish();
        translateQpdfErrors([&] { requireAllObjects(m_document, *m_reader); });
        Warnings warnings = file.finish(m_settings.flush);
        if (inspect) {
            inspect(file, checksum);
        }
        CloseResult result = publish(file, nextPath);
        result.warnings = std::move(warnings);
        result.left = m_catalog.leftInTheEnd();
        if (m_archive && m_archive->areKept()) {
            result.archive = claimsOf(m_archive->level()).pdfAName();
        }
        return result;
    } catch (const Error &error) {
        return {CloseResult::Status::Failed, m_path, error.reason(), {}};
    }
}

} // namespace folioforge
