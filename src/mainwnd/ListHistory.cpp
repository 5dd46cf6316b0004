// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/ListHistory.h"

#include "mainwnd/FilesArray.h"

#include <QAction>

#include <algorithm>
#include <memory>
#include <numeric>

namespace folioforge {
namespace {

std::vector<std::size_t> inverse(const std::vector<std::size_t> &order) {
    std::vector<std::size_t> back(order.size());
    for (std::size_t row = 0; row < order.size(); ++row) {
        back[order[row]] = row;
    }
    return back;
}

std::vector<int> rowsFrom(int first, std::size_t count) {
    std::vector<int> rows(count);
    std::iota(rows.begin(), rows.end(), first);
    return rows;
}

void selectAlone(FilesArray &files, int row) {
    files.selectionModel()->setCurrentIndex(files.index(row, FilesArray::NameColumn),
                                            QItemSelectionModel::ClearAndSelect |
                                                QItemSelectionModel::Rows);
}

} // namespace

ListHistory::ListHistory(FilesArray &files)
    : m_files(files)
    , m_undo(new QAction(this))
    , m_redo(new QAction(this)) {
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo->setShortcuts(QKeySequence::Redo);
    refresh();
}

void ListHistory::insert(const QString &what, int row, std::vector<PDFFileInfo> entries) {
    if (entries.empty()) {
        return;
    }
    const std::size_t count = entries.size();
    const int first = row < 0 || row > m_files.count() ? m_files.count() : row;
    m_files.insert(first, std::move(entries));
    const std::vector<int> rows = rowsFrom(first, count);
    const auto taken = std::make_shared<std::vector<PDFFileInfo>>();
    perform({what,
             count,
             [this, rows, taken] { m_files.putBack(rows, std::move(*taken)); },
             [this, rows, taken] { *taken = m_files.takeRows(rows); },
             {},
             {}});
}

void ListHistory::remove(const QString &what, std::vector<int> rows, const QString &name) {
    if (rows.empty()) {
        return;
    }
    const auto taken = std::make_shared<std::vector<PDFFileInfo>>(m_files.takeRows(rows));
    perform({what,
             rows.size(),
             [this, rows, taken] { *taken = m_files.takeRows(rows); },
             [this, rows, taken] { m_files.putBack(rows, std::move(*taken)); },
             name,
             {}});
}

void ListHistory::rearrange(const QString &what, const std::vector<std::size_t> &order) {
    if (std::ranges::is_sorted(order)) {
        return;
    }
    m_files.rearrange(order);
    perform({what,
             0,
             [this, order] { m_files.rearrange(order); },
             [this, back = inverse(order)] { m_files.rearrange(back); },
             {},
             {}});
}

void ListHistory::move(const QString &what, int from, int to) {
    const auto moved = [this](int start, int end) {
        m_files.move(start, end);
        selectAlone(m_files, end);
    };
    m_files.move(from, to);
    perform({what,
             0,
             [moved, from, to] { moved(from, to); },
             [moved, from, to] { moved(to, from); },
             {},
             {}});
}

/// Keeps `step`, which is done already.
void ListHistory::perform(Step step) {
    m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(m_done), m_steps.end());
    m_steps.push_back(std::move(step));
    forgetOldSteps();
    m_done = m_steps.size();
    refresh();
}

void ListHistory::forgetOldSteps() {
    const auto add = [](std::size_t sum, const Step &step) { return sum + step.entries; };
    std::size_t entries = std::accumulate(m_steps.begin(), m_steps.end(), std::size_t(0), add);
    while (m_steps.size() > 1 && (m_steps.size() > kMaxSteps || entries > kMaxEntries)) {
        entries -= m_steps.front().entries;
        m_steps.pop_front();
    }
}

QString ListHistory::undo(const QString &name) {
    if (m_done == 0) {
        return name;
    }
    Step &step = m_steps[--m_done];
    step.nameAfter = name;
    step.undo();
    refresh();
    return step.nameBefore;
}

QString ListHistory::redo(const QString &name) {
    if (m_done == m_steps.size()) {
        return name;
    }
    Step &step = m_steps[m_done++];
    step.nameBefore = name;
    step.redo();
    refresh();
    return step.nameAfter;
}

void ListHistory::setLocked(bool locked) {
    m_isLocked = locked;
    refresh();
}

void ListHistory::refresh() {
    const bool canUndo = m_done > 0;
    const bool canRedo = m_done < m_steps.size();
    m_undo->setText(canUndo ? tr("Undo %1").arg(m_steps[m_done - 1].what) : tr("Undo"));
    m_redo->setText(canRedo ? tr("Redo %1").arg(m_steps[m_done].what) : tr("Redo"));
    m_undo->setEnabled(canUndo && !m_isLocked);
    m_redo->setEnabled(canRedo && !m_isLocked);
}

} // namespace folioforge
