// SPDX-License-Identifier: Apache-2.0

#include "cli/AttachedManifest.h"

#include "cli/Report.h"
#include "pdf/archive/ArchiveLevel.h"

namespace folioforge {

AttachedManifest::AttachedManifest(const Arguments &arguments, const std::vector<QString> &names,
                                   const std::vector<QString> &files,
                                   const std::vector<std::optional<FileDates>> &dates)
    : m_arguments(arguments)
    , m_names(names)
    , m_dates(dates) {
    for (std::size_t i = 0; i < files.size(); ++i) {
        m_places.insert(files[i], i);
    }
}

bool AttachedManifest::isAskedFor(const Arguments &arguments) {
    const auto &archive = arguments.options.archive;
    return !arguments.manifest.isEmpty() && archive && partOf(archive->level) == 3;
}

QByteArray AttachedManifest::of(std::span<const PDFFileInfo *const> entries,
                                const std::vector<EntryOutcome> &outcomes) const {
    QByteArrayList inputs;
    int pages = 0;
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
        const QString &file = entries[i]->filePathName();
        const std::size_t place = m_places.value(file);
        InputResult result = InputResult::enclosed(m_names[place], outcomes[i], pages + 1);
        if (m_dates[place]) {
            addSource(result, file, *m_dates[place]);
        }
        inputs += toJson(result);
        pages += outcomes[i].pages;
    }
    return manifestJson(m_arguments.given, inputs, {});
}

} // namespace folioforge
