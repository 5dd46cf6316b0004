// SPDX-License-Identifier: Apache-2.0

#include "skin/TextScale.h"

#include <QApplication>
#include <QCheckBox>
#include <QFontInfo>
#include <QGridLayout>
#include <QRadioButton>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>

namespace folioforge {
namespace {

constexpr double kSkinTextSize = 13;  ///< Of the words in the skins, in pixels.
constexpr double kUsualTextSize = 15; ///< Up to here skins stay as they are drawn, which is sharp.
constexpr double kMaxTextScale = 2;
constexpr double kLeastWidth = 800; ///< Of a screen for a window with skins as they are drawn.

/// `text` with a line break in place of the blank that is nearest to its middle.
QString inTwoLines(QString text) {
    qsizetype best = -1;
    for (qsizetype i = text.indexOf(u' '); i >= 0; i = text.indexOf(u' ', i + 1)) {
        if (best < 0 || std::abs(i - text.size() / 2) < std::abs(best - text.size() / 2)) {
            best = i;
        }
    }
    return best < 0 ? text : text.replace(best, 1, u'\n');
}

} // namespace

double textScale() {
    const double size = QFontInfo(QApplication::font()).pixelSize();
    if (size <= kUsualTextSize) {
        return 1;
    }
    const double room = QGuiApplication::primaryScreen()->availableSize().width() / kLeastWidth;
    return std::max(1.0, std::min({size / kSkinTextSize, kMaxTextScale, room}));
}

int scaledToText(int points) {
    return static_cast<int>(std::lround(points * textScale()));
}

void stackPairs(QGridLayout &grid) {
    constexpr int kPair = 2;
    if (textScale() <= 1) {
        return;
    }
    struct Place {
        std::unique_ptr<QLayoutItem> item;
        int row, column, rows, columns;
    };
    std::vector<Place> places;
    while (grid.count() > 0) {
        Place place{};
        grid.getItemPosition(0, &place.row, &place.column, &place.rows, &place.columns);
        place.item.reset(grid.takeAt(0));
        places.push_back(std::move(place));
    }
    for (Place &place : places) {
        const Qt::Alignment alignment = place.item->alignment();
        grid.addItem(place.item.release(), kPair * place.row + place.column / kPair,
                     place.column % kPair, place.rows, std::min(place.columns, kPair), alignment);
    }
}

/// A layout whose widgets were never shown does not know its width.
void stackWideRow(QBoxLayout &row, int width) {
    int wanted = (row.count() - 1) * row.spacing();
    for (int i = 0; i < row.count(); ++i) {
        if (const QWidget *widget = row.itemAt(i)->widget()) {
            wanted += widget->sizeHint().width();
        }
    }
    if (wanted > width) {
        row.setDirection(QBoxLayout::TopToBottom);
    }
}

void breakWideLabels(const QWidget &panel, int width) {
    for (auto *button : panel.findChildren<QAbstractButton *>()) {
        const bool hasLabel =
            qobject_cast<QCheckBox *>(button) || qobject_cast<QRadioButton *>(button);
        if (hasLabel && button->sizeHint().width() > width) {
            button->setText(inTwoLines(button->text()));
        }
    }
}

} // namespace folioforge
