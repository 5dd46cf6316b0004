// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "filelist/PDFFileInfo.h"

#include <QObject>

#include <deque>
#include <functional>
#include <vector>

class QAction;

namespace folioforge {

class FilesArray;

/// Changes the file list and can take each change back: entries come back as they were, without
/// being read again, and are selected then.
///
/// A "name" is the text of the field for the merged PDF, which the window empties with the list. It
/// is kept beside each step, so that it comes back with the entries.
class ListHistory : public QObject {
    Q_OBJECT

  public:
    explicit ListHistory(FilesArray &files);

    // `what` is the title of the command, as "Undo" names it. What changes nothing is no step.
    void insert(const QString &what, int row, std::vector<PDFFileInfo> entries);
    void remove(const QString &what, std::vector<int> rows, const QString &name);
    void rearrange(const QString &what, const std::vector<std::size_t> &order);
    void move(const QString &what, int from, int to);

    /// Takes the last step back, or does again what was taken back last. `name` is the name now;
    /// gives that of the list that comes.
    QString undo(const QString &name);
    QString redo(const QString &name);

    /// Say what they would do, and are enabled while there is something to do and the list is not
    /// locked. Their owner listens to them.
    [[nodiscard]] QAction *undoAction() const { return m_undo; }
    [[nodiscard]] QAction *redoAction() const { return m_redo; }
    void setLocked(bool locked);

    /// The steps that are kept, and the entries that they may hold together; the last step is
    /// always kept. Texts are held whole, so that there has to be an end.
    static constexpr std::size_t kMaxSteps = 100;
    static constexpr std::size_t kMaxEntries = 20'000;

  private:
    struct Step {
        QString what;
        std::size_t entries = 0; ///< That it holds, or would.
        std::function<void()> redo;
        std::function<void()> undo;
        QString nameBefore;
        QString nameAfter;
    };

    void perform(Step step);
    void forgetOldSteps();
    void refresh();

    FilesArray &m_files;
    std::deque<Step> m_steps;
    std::size_t m_done = 0; ///< How many of the steps are done; the others are taken back.
    bool m_isLocked = false;
    QAction *m_undo; ///< A child, as the next.
    QAction *m_redo;
};

} // namespace folioforge
