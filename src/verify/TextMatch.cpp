// SPDX-License-Identifier: Apache-2.0

#include "verify/TextMatch.h"

namespace folioforge {
namespace {

/// Whether a unit counts, half of a surrogate pair by itself.
bool counts(QChar unit) {
    switch (unit.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

} // namespace

QString TextMatch::charactersOf(const QString &text) {
    QString characters = text.normalized(QString::NormalizationForm_KC);
    characters.removeIf([](QChar unit) { return !counts(unit); });
    return characters;
}

bool TextMatch::take(const QString &page) {
    const QString characters = charactersOf(page);
    if (!QStringView(m_left).sliced(m_at).startsWith(characters)) {
        return false;
    }
    m_at += characters.size();
    return true;
}

} // namespace folioforge
