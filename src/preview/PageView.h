// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

namespace folioforge {

/// Shows the picture of a page as large as there is room, or words where there is none.
class PageView : public QWidget {
    Q_OBJECT

  public:
    explicit PageView(QWidget *parent = nullptr);

    void showPage(const QImage &page);
    void showWords(const QString &words);
    [[nodiscard]] const QImage &page() const { return m_page; }
    [[nodiscard]] const QString &words() const { return m_words; }
    [[nodiscard]] bool isEmpty() const { return m_page.isNull() && m_words.isEmpty(); }
    /// The pixels of the screen that a page may take.
    [[nodiscard]] QSize room() const;

  Q_SIGNALS:
    /// The page has other room.
    void resized();

  protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    void paintPage(QPainter &painter) const;

    QImage m_page;
    QString m_words;
};

} // namespace folioforge
