// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QImage>
#include <QWidget>

class QLabel;
class QToolButton;

namespace folioforge {

class PageView;

/// Which page a preview shows of how many.
struct PagePlace {
    int page = 0;         ///< Counts from 0.
    int pages = 0;        ///< 0 as long as nobody knows.
    bool hasMore = false; ///< There are more, which nobody has counted.
};

/// A page with the name of its file, and buttons and keys that turn pages and close the panel.
class PreviewPanel : public QWidget {
    Q_OBJECT

  public:
    static constexpr int kMinimumWidth = 240; ///< Points.

    explicit PreviewPanel(QWidget *parent = nullptr);

    /// The file that the panel shows; what it showed of another one goes.
    void setFile(const QString &name);
    void showPage(const QImage &page, const PagePlace &place);
    /// Shows `words` in place of a page, which a screen reader says.
    void showWords(const QString &words, const PagePlace &place);
    [[nodiscard]] PageView &view() { return *m_view; }
    /// What has the keyboard in turn, from the page on.
    [[nodiscard]] QList<QWidget *> inTabOrder() const;

  Q_SIGNALS:
    /// The page at `page`, from 0, is wanted; it may lie outside.
    void pageAsked(int page);
    void closeAsked();

  protected:
    void keyPressEvent(QKeyEvent *event) override;

  private:
    QToolButton *addButton(Qt::ArrowType arrow, const QString &name);
    void ask(int page);
    void showPlace(const PagePlace &place);
    void say(const QString &words);

    QLabel *m_file;
    QToolButton *m_close;
    PageView *m_view;
    QToolButton *m_back;
    QLabel *m_number;
    QToolButton *m_forth;
    QString m_name;
    PagePlace m_place;
};

} // namespace folioforge
