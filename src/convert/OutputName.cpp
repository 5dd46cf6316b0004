// SPDX-License-Identifier: Apache-2.0

#include "convert/OutputName.h"

#include "filelist/FileKind.h"
#include "files/PathNames.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QString join(const QString &folder, const QString &name) {
    return folder + u'/' + name;
}

} // namespace

QString mergedFilePath(const ConversionOptions &options) {
    const bool named = pathExtension(options.outputName).toLower() == u"pdf";
    return join(options.outputFolder, named ? options.outputName : options.outputName + u".pdf"_s);
}

QString singleFilePath(const QString &folder, const QString &fileName,
                       const std::function<bool(const QString &)> &isTaken) {
    const QString base = withoutExtension(fileName);
    QString path = join(folder, fittingName(base, u".pdf"_s));
    for (int number = 1; isTaken(path); ++number) {
        path = join(folder, fittingName(base, u"(%1).pdf"_s.arg(number)));
    }
    return path;
}

QString outputPath(const ConversionOptions &options, const QString &fileName,
                   const std::function<bool(const QString &)> &isTaken) {
    if (!options.verifyOnly.isEmpty()) {
        return options.verifyOnly;
    }
    return options.merge ? mergedFilePath(options)
                         : singleFilePath(options.outputFolder, fileName, isTaken);
}

bool isNameOfFolder(const QString &name) {
    return name == u"." || name == u"..";
}

bool isNameTaken(const QString &path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace folioforge
