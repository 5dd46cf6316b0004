// SPDX-License-Identifier: Apache-2.0

#pragma once

class QBoxLayout;
class QGridLayout;
class QWidget;

namespace folioforge {

/// How much larger the system's texts are than those of the skins, so that skins and what is
/// measured for them grow along: 1 up to usual sizes, at most 2, and less on a narrow screen, which
/// has no room for more. Needs the application.
double textScale();

/// `points` at that scale.
int scaledToText(int points);

/// Puts the pairs of label and field that stand side by side in `grid`, which has four columns,
/// below each other, where texts are large. The numbers of its rows double then.
void stackPairs(QGridLayout &grid);

/// Puts the widgets of `row` below each other, where side by side they are wider than `width`
/// pixels.
void stackWideRow(QBoxLayout &row, int width);

/// Breaks the labels of the boxes and radio buttons in `panel` that are wider than `width` into two
/// lines.
void breakWideLabels(const QWidget &panel, int width);

} // namespace folioforge
