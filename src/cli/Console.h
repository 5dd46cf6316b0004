// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace folioforge {

/// The terminal or the pipes behind it: standard output for results, standard error for messages
/// and the progress line, which gives way to each message.
class Console {
  public:
    /// Writes one line to standard output, as it is.
    void result(const QByteArray &line);
    /// Writes "folioforge-cli: `message`" to standard error, made printable.
    void complain(const QString &message);
    /// Replaces the progress line; an empty text takes it away.
    void showProgress(const QString &text);
    /// Whether everything given to result() has arrived, or its reader went away; complains of a
    /// loss.
    [[nodiscard]] bool finishResults();

  private:
    void writeMessage(const QString &line);
    void eraseProgress();

    bool m_progressShown = false;
    bool m_resultsArrived = true;
};

} // namespace folioforge
