// SPDX-License-Identifier: Apache-2.0

#include "text/readable/LineBreaks.h"

#include "error/Error.h"
#include "error/Reasons.h"

#include <unicode/ubrk.h>

namespace folioforge {

void LineBreaks::Close::operator()(UBreakIterator *breaks) const {
    ubrk_close(breaks);
}

LineBreaks::LineBreaks() {
    UErrorCode error = U_ZERO_ERROR;
    m_breaks.reset(ubrk_open(UBRK_LINE, "", nullptr, 0, &error));
    if (U_FAILURE(error)) {
        throw Error(Reasons::tr("The rules for the breaking of lines cannot be loaded: %1")
                        .arg(QLatin1StringView(u_errorName(error))));
    }
}

void LineBreaks::setText(QStringView text) {
    m_text = text;
    m_isSet = false;
}

qsizetype LineBreaks::lastAtOrBefore(qsizetype unit) {
    if (!m_isSet) {
        UErrorCode error = U_ZERO_ERROR;
        ubrk_setText(m_breaks.get(), m_text.utf16(), static_cast<int32_t>(m_text.size()), &error);
        if (U_FAILURE(error)) {
            throw std::bad_alloc();
        }
        m_isSet = true;
    }
    const int32_t found = ubrk_preceding(m_breaks.get(), static_cast<int32_t>(unit) + 1);
    return found == UBRK_DONE ? 0 : found;
}

} // namespace folioforge
