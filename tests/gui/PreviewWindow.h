// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ConvertingCase.h"
#include "preview/PageView.h"
#include "preview/PreviewPanel.h"

#include <QLabel>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>

#include <algorithm>

namespace folioforge::test {

/// A window with a preview.
class PreviewWindow : public TestWindow {
  public:
    explicit PreviewWindow(const QString &bundle = realBundle())
        : TestWindow(bundle) {}

    /// Lists a PDF of `pages` pages, which measure 200, 210, ... x 100 points.
    void listPdf(int pages) {
        ctrl.addFiles({writePdf(path(QStringLiteral("pages.pdf")), pages)}, -1);
        choose(0);
    }
    void listText(const QString &name, const QByteArray &words) {
        ctrl.addFiles({file(name, words)}, -1);
        choose(ctrl.filesArray().count() - 1);
    }
    /// Makes `row` the current one, as a click does.
    void choose(int row) {
        const QRect cell = table()->visualRect(ctrl.filesArray().index(row, 1));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, cell.center());
    }
    [[nodiscard]] bool isShown() {
        const auto *panel = ctrl.window()->findChild<PreviewPanel *>();
        return panel != nullptr && panel->isVisible();
    }
    [[nodiscard]] PreviewPanel &panel() {
        return controlOf<PreviewPanel>(*ctrl.window(), "previewPanel");
    }
    [[nodiscard]] const QImage &page() { return panel().view().page(); }
    [[nodiscard]] double width() { return double(page().width()) / page().height(); }
    [[nodiscard]] QString number() { return controlOf<QLabel>(panel(), "previewNumber").text(); }
    void pressInPanel(const QString &name) {
        for (auto *button : panel().findChildren<QToolButton *>()) {
            if (button->accessibleName() == name) {
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
    }
};

/// Pages measure whole pixels.
inline bool isAbout(double ratio, double expected) {
    return qAbs(ratio - expected) < 0.02;
}

/// The View menu; null where there is none.
inline QAction *viewMenu(const QMainWindow &window) {
    const QList<QAction *> menus = window.menuBar()->actions();
    const auto found = std::ranges::find(menus, QStringLiteral("&View"), &QAction::text);
    return found == menus.end() ? nullptr : *found;
}

} // namespace folioforge::test
