// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "skin/SkinImage.h"

#include <QStyledItemDelegate>

#include <map>

namespace folioforge {

enum class FileKind;

/// Draws the name of an entry behind the mark of its kind.
class EntryDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Entries of `kind` have `mark` from now on.
    void setMark(FileKind kind, const SkinImage &mark);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

  private:
    std::map<FileKind, SkinImage> m_marks;
};

} // namespace folioforge
