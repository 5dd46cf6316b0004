// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "drawing/PageDrawing.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

class QProcess;

namespace folioforge {

/// Has pages drawn by a program of its own, one at a time. Nothing here waits for it. A program
/// that takes too long, answers too much or crashes is ended, and its page cannot be shown.
class PageProcess : public QObject {
    Q_OBJECT

  public:
    static constexpr std::chrono::milliseconds kPatience{15'000};

    /// `program` draws a page that it is asked for as PageDrawing.h says, within `patience`.
    explicit PageProcess(QString program, std::chrono::milliseconds patience = kPatience);

    ~PageProcess() override;

    /// Asks for a page of a document with `password`, which may be empty. What was asked for before
    /// is dropped.
    void draw(const PageRequest &request, const QString &password);
    /// Drops what was asked for.
    void stop();

  Q_SIGNALS:
    void drawn(const folioforge::DrawnPage &page);
    /// The page cannot be shown; `reason` is a sentence without a full stop.
    void failed(const QString &reason);

  private:
    void read();
    void ended();
    void fail(const QString &reason);

    QString m_program;
    QTimer m_patience;
    QProcess *m_process = nullptr; ///< A child.
    QSize m_room;
    QByteArray m_answer;
};

} // namespace folioforge
