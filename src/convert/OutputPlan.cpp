// SPDX-License-Identifier: Apache-2.0

#include "convert/OutputPlan.h"

#include "convert/OutputName.h"
#include "files/SourceFile.h"

#include <QFile>

#include <algorithm>
#include <optional>
#include <tuple>

#include <sys/stat.h>

namespace folioforge {
namespace {

std::optional<struct stat> statusOf(const QString &path) {
    struct stat status {};
    const bool known = ::stat(QFile::encodeName(path).constData(), &status) == 0;
    return known ? std::optional(status) : std::nullopt;
}

bool isOlder(const struct stat &one, const struct stat &other) {
    const timespec a = modifiedAt(one);
    const timespec b = modifiedAt(other);
    return std::tie(a.tv_sec, a.tv_nsec) < std::tie(b.tv_sec, b.tv_nsec);
}

} // namespace

OutputPlan::OutputPlan(std::span<const PDFFileInfo> entries, const ConversionOptions &options)
    : m_options(options) {
    if (m_options.overwrite == Overwrite::Never) {
        return;
    }
    for (const PDFFileInfo &entry : entries) {
        if (const auto status = statusOf(entry.filePathName())) {
            m_sources.emplace(status->st_dev, status->st_ino);
        }
        ++m_wishes[wishOf(entry)];
    }
}

/// Where several sources ask for one name, which of them has it follows from their order: the PDF
/// that is there may be another's.
bool OutputPlan::isOnlyOne(std::span<const PDFFileInfo> entries) const {
    return m_options.merge || m_wishes.value(wishOf(entries.front())) == 1;
}

QString OutputPlan::wishOf(const PDFFileInfo &entry) const {
    return outputPath(m_options, entry.fileName(), [](const QString &) { return false; });
}

PlannedOutput OutputPlan::next(std::span<const PDFFileInfo> entries) {
    PlannedOutput output{outputPath(m_options, entries.front().fileName(),
                                    [this](const QString &path) { return isTaken(path); })};
    m_given.insert(output.path);
    const auto old = m_options.overwrite == Overwrite::Never ? std::nullopt : statusOf(output.path);
    if (!old) {
        return output;
    }
    if (m_sources.contains({old->st_dev, old->st_ino})) {
        output.action = PlannedOutput::Action::Forbidden;
    } else if (m_options.overwrite == Overwrite::Older && isOnlyOne(entries) &&
               std::ranges::none_of(entries, [&](const PDFFileInfo &entry) {
                   const auto source = statusOf(entry.filePathName());
                   return source && isOlder(*old, *source);
               })) {
        output.action = PlannedOutput::Action::Keep;
    }
    return output;
}

bool OutputPlan::isTaken(const QString &path) const {
    if (m_given.contains(path)) {
        return true;
    }
    if (m_options.overwrite == Overwrite::Never) {
        return isNameTaken(path);
    }
    const auto old = statusOf(path);
    return old && !S_ISREG(old->st_mode); // Only files are replaced.
}

} // namespace folioforge
