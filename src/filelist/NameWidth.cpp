#include "filelist/NameWidth.h"

#include "text/FontCascade.h"

#include <QList>

using namespace Qt::StringLiterals;

namespace folioforge {

// The window's own font metrics need a running window system, which the command line lacks; the
// text fonts measure the same names anywhere.
double nameWidth(const QString &name) {
    constexpr double kSize = 11;
    static const auto font = FontCascade::load(u"Lucida Grande"_s, kSize);
    double width = 0;
    const auto characters = name.toUcs4();
    for (const uint character : characters) {
        width += font->glyph(character).advance;
    }
    return width;
}

} // namespace folioforge
