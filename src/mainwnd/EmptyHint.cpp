// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/EmptyHint.h"

#include <QAbstractItemModel>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr int kMinHeightForPicture = 260;
constexpr double kLineSize = 1.5; ///< To the size of other texts.

} // namespace

class EmptyHint::Picture : public QWidget {
  public:
    void setPicture(const SkinImage &picture) {
        m_picture = picture;
        setFixedSize(picture.size());
        update();
    }

  protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        m_picture.draw(painter, rect());
    }

  private:
    SkinImage m_picture;
};

EmptyHint::EmptyHint(QWidget *parent)
    : QWidget(parent)
    , m_picture(new Picture)
    , m_line(new QLabel(tr("Drop files here, or add them with the buttons above"))) {
    m_line->setObjectName(u"emptyHintLine"_s);
    m_line->setAlignment(Qt::AlignCenter);
    m_line->setWordWrap(true);
    m_line->setForegroundRole(QPalette::PlaceholderText);
    setLineFont();

    QPushButton *files = makeButton(tr("Add Files…"), tr("Add files of any kind"));
    files->setObjectName(u"emptyHintFiles"_s);
    connect(files, &QPushButton::clicked, this, &EmptyHint::addFilesAsked);
    QPushButton *folder = makeButton(tr("Add Folder…"), tr("Add the files of a folder"));
    folder->setObjectName(u"emptyHintFolder"_s);
    connect(folder, &QPushButton::clicked, this, &EmptyHint::addFolderAsked);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(files);
    buttons->addWidget(folder);
    buttons->addStretch();

    auto *column = new QVBoxLayout(this);
    column->setSpacing(16);
    column->addStretch();
    column->addWidget(m_picture, 0, Qt::AlignHCenter);
    column->addWidget(m_line);
    column->addLayout(buttons);
    column->addStretch();
}

QPushButton *EmptyHint::makeButton(const QString &label, const QString &toolTip) {
    auto *button = new QPushButton(label, this);
    button->setAccessibleName(label);
    button->setToolTip(toolTip);
    button->setAutoDefault(true);
    return button;
}

void EmptyHint::follow(const QAbstractItemModel &files) {
    const auto show = [this, &files] { setVisible(files.rowCount() == 0); };
    connect(&files, &QAbstractItemModel::rowsInserted, this, show);
    connect(&files, &QAbstractItemModel::rowsRemoved, this, show);
    show();
}

void EmptyHint::setPicture(const SkinImage &picture) {
    m_picture->setPicture(picture);
}

void EmptyHint::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    m_picture->setVisible(height() >= kMinHeightForPicture);
}

void EmptyHint::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        setLineFont();
    }
}

void EmptyHint::setLineFont() {
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kLineSize);
    m_line->setFont(large);
}

} // namespace folioforge
