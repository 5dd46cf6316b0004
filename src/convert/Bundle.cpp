#include "convert/Bundle.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace folioforge {

QString applicationBundlePath() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../.."_s);
}

} // namespace folioforge
