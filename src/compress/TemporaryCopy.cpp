// SPDX-License-Identifier: Apache-2.0

#include "compress/TemporaryCopy.h"

#include "files/SourceFile.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {

TemporaryCopy::TemporaryCopy(const QString &folder, const QString &source, SystemCalls &calls)
    : m_folder(folder)
    , m_source(source)
    , m_file(folder + u'/' + QFileInfo(source).fileName(), calls, OutputFile::Readers::OwnerAlone) {
}

/// Null where the name is taken.
std::shared_ptr<const TemporaryFile> TemporaryCopy::publishedAs(const QString &name) {
    const QString path = m_folder + u'/' + name;
    auto part = std::make_unique<const PartFile>(QFile::encodeName(path).toStdString());
    if (m_file.publish(path, Flush::Never) == OutputFile::Published::NameTaken) {
        return nullptr;
    }
    return std::make_shared<const TemporaryFile>(std::move(part));
}

std::shared_ptr<const TemporaryFile> TemporaryCopy::finish(Flush flush) {
    m_file.finish(flush);
    const QFileInfo source(m_source);
    auto copy = publishedAs(source.fileName());
    for (int n = 1; !copy; ++n) {
        copy = publishedAs(source.completeBaseName() + u"(%1).pdf"_s.arg(n));
    }
    return copy;
}

void appendFile(OutputFile &target, const QString &path, SystemCalls &calls) {
    const SourceFile source = SourceFile::open(path, calls);
    constexpr std::size_t kBlock = 1 << 16;
    std::array<char, kBlock> block{};
    qint64 at = 0;
    while (const qint64 count = source.readAt(at, block)) {
        target.write({block.data(), static_cast<std::size_t>(count)});
        at += count;
    }
}

} // namespace folioforge
