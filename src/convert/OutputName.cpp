#include "convert/OutputName.h"

#include "filelist/FileKind.h"

#include <QFile>
#include <QFileInfo>

namespace folioforge {
namespace {

/// Longest file name in bytes on the file systems in use (NAME_MAX).
constexpr qsizetype kLongestName = 255;

QString join(const QString &folder, const QString &name) {
    return folder + u'/' + name;
}

/// `base` followed by `ending`, whole characters of the base cut off where the name is too long.
QString fittingName(QString base, const QString &ending) {
    while (!base.isEmpty() && QFile::encodeName(base + ending).size() > kLongestName) {
        const bool pair = base.size() > 1 && base.back().isLowSurrogate();
        base.chop(pair ? 2 : 1);
    }
    return base + ending;
}

} // namespace

QString mergedFilePath(const ConversionOptions &options) {
    const bool named = pathExtension(options.outputName).toLower() == u"pdf";
    return join(options.outputFolder,
                named ? options.outputName : options.outputName + QStringLiteral(".pdf"));
}

QString singleFilePath(const QString &folder, const QString &fileName) {
    const QString base = withoutExtension(fileName);
    QString path = join(folder, fittingName(base, QStringLiteral(".pdf")));
    for (int number = 1; isNameTaken(path); ++number) {
        path = join(folder, fittingName(base, QStringLiteral("(%1).pdf").arg(number)));
    }
    return path;
}

bool isNameTaken(const QString &path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace folioforge
