#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

namespace folioforge {

/// Carries named notifications from any sender to whoever listens.
class NotificationCenter : public QObject {
    Q_OBJECT

  public:
    /// Says that a page was written; its index, counted from 0, stands under pageIndexKey(). A way
    /// in for other senders: the compression pass here tells its observer.
    static QString didEndPageWrite() {
        return QStringLiteral("PDFDocumentDidEndPageWriteNotification");
    }
    static QString pageIndexKey() { return QStringLiteral("PDFDocumentPageIndex"); }
    /// Posted to say that the compression pass is over. Nothing here posts it: it is a way in for
    /// other senders.
    static QString compressionCompleted() { return QStringLiteral("ccccc"); }

    using QObject::QObject;

    void post(const QString &name, const QVariantMap &userInfo = {}) {
        Q_EMIT posted(name, userInfo);
    }

  Q_SIGNALS:
    void posted(const QString &name, const QVariantMap &userInfo);
};

} // namespace folioforge
