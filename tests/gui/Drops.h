// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTableView>
#include <QUrl>

namespace folioforge::test {

/// Drags `data` over the row `row` of `list` (below the last for -1) and drops it there; whether
/// the drop was taken.
inline bool drop(const QTableView &list, const QMimeData &data, int row) {
    QWidget *viewport = list.viewport();
    const QPoint position = row < 0 ? QPoint(40, viewport->height() - 4)
                                    : list.visualRect(list.model()->index(row, 1)).center();
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(position, actions, &data, Qt::LeftButton, {});
    QApplication::sendEvent(viewport, &enter);
    QDragMoveEvent move(position, actions, &data, Qt::LeftButton, {});
    QApplication::sendEvent(viewport, &move);
    QDropEvent end(position, actions, &data, Qt::LeftButton, {});
    QApplication::sendEvent(viewport, &end);
    return enter.isAccepted() && move.isAccepted() && end.isAccepted();
}

/// Drops the files at `paths`, as drop().
inline bool dropFiles(const QTableView &list, const QStringList &paths, int row) {
    QList<QUrl> urls;
    for (const QString &path : paths) {
        urls += QUrl::fromLocalFile(path);
    }
    QMimeData data;
    data.setUrls(urls);
    return drop(list, data, row);
}

} // namespace folioforge::test
