// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Notice.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <vector>

class QWidget;

namespace folioforge {

/// What a file panel lets the user choose.
struct FilePanel {
    enum class Chooses { Files, Folders, FilesAndFolders };

    QString title;
    QString acceptLabel; ///< Text of the confirming button; empty for the system's own.
    Chooses chooses = Chooses::Files;
    bool multiple = true;
    QStringList extensions; ///< Lower-cased, without full stop; empty for any.
    QString startFolder;    ///< Empty for the panel's default.
};

/// The one place that shows notices and file panels.
///
/// Nothing here waits: every call returns at once, and what follows an answer is handed in as a
/// function, called on the main thread from the event loop. Tests answer in advance and read what
/// was shown.
class Notices : public QObject {
    Q_OBJECT

  public:
    enum class Kind { Sheet, Panel };
    struct Shown {
        Notice notice;
        Kind kind = Kind::Sheet;
    };

    using Ended = std::function<void()>;
    /// Gets the chosen paths in the panel's order; none when it was cancelled.
    using Chosen = std::function<void(const QStringList &)>;

    using QObject::QObject;

    /// Shows `notice` with the button "OK" as a sheet attached to `window`, a window-modal dialog
    /// where the system has no sheets. `ended` is called when it has gone.
    void showSheet(QWidget *window, const Notice &notice, Ended ended = {});
    /// Shows `notice` with the button "OK" as an application-modal panel.
    void showPanel(const Notice &notice);
    /// Shows a file panel as a sheet attached to `window`.
    void showFilePanel(QWidget *window, const FilePanel &panel, const Chosen &chosen);

    /// Every notice shown so far, oldest first.
    [[nodiscard]] const std::vector<Shown> &shown() const { return m_shown; }
    /// Every file panel shown so far, oldest first.
    [[nodiscard]] const std::vector<FilePanel> &filePanels() const { return m_filePanels; }

    /// From now on every notice is answered with "OK" as soon as it is shown, without a dialog.
    void answerNoticesAtOnce() { m_answersAtOnce = true; }
    /// The next file panel answers with `paths` without being shown; none means cancelled. Each
    /// call answers one more panel.
    void setNextFiles(const QStringList &paths) { m_nextFiles.push_back(paths); }

  private:
    void show(QWidget *window, const Notice &notice, Kind kind, Ended ended);

    std::vector<Shown> m_shown;
    std::vector<FilePanel> m_filePanels;
    std::deque<QStringList> m_nextFiles;
    bool m_answersAtOnce = false;
};

} // namespace folioforge
