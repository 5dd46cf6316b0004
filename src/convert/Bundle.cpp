#include "convert/Bundle.h"

#include <QCoreApplication>
#include <QDir>

namespace folioforge {

QString applicationBundlePath() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../.."));
}

} // namespace folioforge
