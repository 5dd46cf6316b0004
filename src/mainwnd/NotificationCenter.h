// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

namespace folioforge {

/// Carries named notifications from any sender to whoever listens.
class NotificationCenter : public QObject {
    Q_OBJECT

  public:
    /// Posted by the compression pass, on its thread, when a page is written; its index, counted
    /// from 0, stands under pageIndexKey().
    static QString didEndPageWrite() {
        return QStringLiteral("PDFDocumentDidEndPageWriteNotification");
    }
    static QString pageIndexKey() { return QStringLiteral("PDFDocumentPageIndex"); }
    /// Says that the compression pass is over. Kept for other senders: nothing here posts it.
    static QString compressionCompleted() { return QStringLiteral("ccccc"); }

    using QObject::QObject;

    void post(const QString &name, const QVariantMap &userInfo = {}) {
        Q_EMIT posted(name, userInfo);
    }

  Q_SIGNALS:
    void posted(const QString &name, const QVariantMap &userInfo);
};

} // namespace folioforge
