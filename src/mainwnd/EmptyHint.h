// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "skin/SkinImage.h"

#include <QWidget>

class QAbstractItemModel;
class QLabel;
class QPushButton;

namespace folioforge {

/// Says in the middle of an empty list what to do: a picture, a line and two buttons.
class EmptyHint : public QWidget {
    Q_OBJECT

  public:
    /// Covers `parent`, which sets its geometry.
    explicit EmptyHint(QWidget *parent);

    /// Shows itself while `files` has no rows.
    void follow(const QAbstractItemModel &files);
    void setPicture(const SkinImage &picture);

  Q_SIGNALS:
    void addFilesAsked();
    void addFolderAsked();

  protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

  private:
    class Picture;

    QPushButton *makeButton(const QString &label, const QString &toolTip);
    void setLineFont();

    Picture *m_picture;
    QLabel *m_line;
};

} // namespace folioforge
