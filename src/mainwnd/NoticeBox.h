// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QMessageBox>

namespace folioforge {

struct Notice;

/// A notice on the screen, with the button "OK". It is wide enough for its title, its lines are of
/// a length that reads well, and a text too long for the screen scrolls.
class NoticeBox : public QMessageBox {
    Q_OBJECT

  public:
    NoticeBox(Icon icon, const Notice &notice, QWidget *window);

    /// The least width of a box, in points.
    static constexpr int kLeastWidth = 360;

  protected:
    void showEvent(QShowEvent *event) override;

  private:
    bool m_isFitted = false;
};

} // namespace folioforge
