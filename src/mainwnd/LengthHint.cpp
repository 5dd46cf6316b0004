// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/LengthHint.h"

#include "skin/FieldEnd.h"
#include "text/PageSetup.h"

#include <QLabel>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace folioforge {

LengthHint::LengthHint(QLineEdit &field)
    : QObject(&field)
    , m_field(field)
    , m_toolTip(field.toolTip()) {
    constexpr int kBesideTheUnit = 4;
    auto *unit = new QLabel(tr("pt", "points, behind a number"), &field);
    unit->setProperty("role", u"unit"_s);
    unit->setContentsMargins(kBesideTheUnit, 0, kBesideTheUnit, 0);
    new FieldEnd(field, *unit);
    connect(&field, &QLineEdit::textChanged, this, &LengthHint::tell);
    tell();
}

/// The number is the one that a run would read. Paper is measured in inches in the United States;
/// the other system with miles has paper in millimetres.
void LengthHint::tell() {
    constexpr double kPointsPerInch = 72;
    constexpr double kMillimetresPerInch = 25.4;
    const QLocale locale;
    const qint64 points = integerValue(m_field.text());
    const double inches = static_cast<double>(points) / kPointsPerInch;
    const QString told =
        locale.measurementSystem() == QLocale::ImperialUSSystem
            ? tr("%1 pt = %2 in").arg(locale.toString(points), locale.toString(inches, 'f', 2))
            : tr("%1 pt = %2 mm")
                  .arg(locale.toString(points),
                       locale.toString(inches * kMillimetresPerInch, 'f', 1));
    m_field.setToolTip(m_toolTip + u'\n' + told);
    m_field.setAccessibleDescription(told);
}

} // namespace folioforge
