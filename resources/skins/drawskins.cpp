// SPDX-License-Identifier: Apache-2.0

// Draws the skins of the buttons: for each of the twelve, NAME.svg, NAME-hover.svg and
// NAME-disable.svg. Labels become outlines, so that a skin looks the same whatever fonts a system
// has; its size is the size of its button in points. src/skin/SkinLabel.cpp puts the words of other
// languages in their place.
//
// The SVG files are kept beside this program, which is built and run only after a change here:
//   cmake --build build/dev --target drawskins && build/dev/resources/drawskins resources/skins

#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QPainterPath>
#include <QTextStream>

#include <array>
#include <span>

namespace {

using namespace Qt::StringLiterals;

enum class Ground { Band, Primary, Plain };

/// How a button looks in one state. `tint` colours icons that have no colours of their own;
/// `iconOpacity` fades those that have.
struct Look {
    QLatin1StringView suffix;
    QLatin1StringView fill;
    QLatin1StringView stroke;
    QLatin1StringView label;
    QLatin1StringView tint;
    QLatin1StringView iconOpacity;
};

struct Skin {
    QLatin1StringView name;
    Ground ground;
    int width;
    int height;
    QString label;
    QString icon; ///< SVG in a box of iconWidth by iconHeight; "currentColor" takes the tint
    int iconWidth;
    int iconHeight;
};

constexpr double kIconGap = 7;

constexpr std::array kBandLooks = {
    Look{""_L1, "#4a4a4a"_L1, "#8f8f8f"_L1, "#f4f4f4"_L1, "#f4f4f4"_L1, "1"_L1},
    Look{"-hover"_L1, "#5b5b5b"_L1, "#a8a8a8"_L1, "#ffffff"_L1, "#ffffff"_L1, "1"_L1},
    Look{"-disable"_L1, "#3f3f3f"_L1, "#494949"_L1, "#b0b0b0"_L1, "#f4f4f4"_L1, "0.4"_L1},
};
constexpr std::array kPrimaryLooks = {
    Look{""_L1, "#2470d8"_L1, "#1f63c1"_L1, "#ffffff"_L1, "#ffffff"_L1, "1"_L1},
    Look{"-hover"_L1, "#1a5dba"_L1, "#164f9f"_L1, "#ffffff"_L1, "#ffffff"_L1, "1"_L1},
    Look{"-disable"_L1, "#c3cfde"_L1, "#b9c6d7"_L1, "#3f4a5a"_L1, "#3f4a5a"_L1, "1"_L1},
};
constexpr std::array kPlainLooks = {
    Look{""_L1, "#f7f8fa"_L1, "#868d97"_L1, "#20242a"_L1, "#4a6fa5"_L1, "1"_L1},
    Look{"-hover"_L1, "#e6f0fd"_L1, "#2470d8"_L1, "#123f7d"_L1, "#2470d8"_L1, "1"_L1},
    Look{"-disable"_L1, "#fafbfc"_L1, "#e3e6ea"_L1, "#5c626a"_L1, "#8a919b"_L1, "1"_L1},
};

// A sheet with a folded corner, 20 by 24, on which each kind of file puts its mark.
constexpr auto kSheet =
    "<path d='M3.5 1h11l6 6v14.5a1.5 1.5 0 0 1-1.5 1.5H3.5A1.5 1.5 0 0 1 2 21.5v-19A1.5 1.5 0 0 1 "
    "3.5 1z' fill='#ffffff'/><path d='M14.5 1l6 6h-4.5A1.5 1.5 0 0 1 14.5 5.5z' fill='#c9d1da'/>"_L1;

constexpr auto kImageFile = "<circle cx='8' cy='10' r='1.9' fill='#e8a33d'/>"
                            "<path d='M4 20l4.6-5.6 2.6 3 2.6-3.8 4.7 6.4z' fill='#2f9e5f'/>"_L1;
constexpr auto kTextFile =
    "<path d='M5.5 10.5h10M5.5 14h11.5M5.5 17.5h7.5' stroke='#5b6b80' stroke-width='1.7' "
    "stroke-linecap='round'/>"_L1;
constexpr auto kPdfFile = "<rect x='0' y='11' width='17' height='8' rx='1.6' fill='#d5443b'/>"
                          "<path d='M2.6 17v-4h1.3a1.3 1.3 0 0 1 0 2.6H2.6M7.2 13v4h.9a2 2 0 0 0 "
                          "0-4zM12.2 17v-4h2.4M12.2 "
                          "15h1.9' fill='none' stroke='#ffffff' stroke-width='1.05'/>"_L1;
constexpr auto kCross = "<path d='M3 3l8 8M11 3l-8 8' stroke='currentColor' stroke-width='1.8' "
                        "stroke-linecap='round'/>"_L1;
constexpr auto kSheets =
    "<path d='M6.5 5.5v-2A1.5 1.5 0 0 1 8 2h6l4 4v8.5a1.5 1.5 0 0 1-1.5 1.5H14' fill='none' "
    "stroke='currentColor' stroke-width='1.6' stroke-linejoin='round'/>"
    "<path d='M3.5 6h6l4 4v6.5a1.5 1.5 0 0 1-1.5 1.5H3.5A1.5 1.5 0 0 1 2 16.5v-9A1.5 1.5 0 0 1 3.5 "
    "6z' fill='currentColor'/>"_L1;
constexpr auto kRight =
    "<path d='M5 2.5l5 4.5-5 4.5' fill='none' stroke='currentColor' stroke-width='2' "
    "stroke-linecap='round' stroke-linejoin='round'/>"_L1;
constexpr auto kLeft =
    "<path d='M9 2.5l-5 4.5 5 4.5' fill='none' stroke='currentColor' stroke-width='2' "
    "stroke-linecap='round' stroke-linejoin='round'/>"_L1;
constexpr auto kOpenFolder =
    "<path d='M1.5 12V3.4c0-.5.4-.9.9-.9h3l1.4 1.6h4c.5 0 .9.4.9.9v1.2M1.5 12l2-5.2h10l-2 5.2z' "
    "fill='none' stroke='currentColor' stroke-width='1.4' stroke-linejoin='round'/>"_L1;
constexpr auto kFolder =
    "<path d='M1.2 11.1V3.4c0-.5.4-.9.9-.9h3l1.4 1.6h5.4c.5 0 .9.4.9.9v6.1c0 .5-.4.9-.9.9H2.1a.9.9 "
    "0 "
    "0 1-.9-.9z' fill='none' stroke='currentColor' stroke-width='1.4' stroke-linejoin='round'/>"_L1;
constexpr auto kPicture =
    "<rect x='1.2' y='2.2' width='13.6' height='11.6' rx='1.6' fill='none' stroke='currentColor' "
    "stroke-width='1.4'/><circle cx='5.2' cy='6' r='1.3' fill='currentColor'/>"
    "<path d='M2.4 12.4l3.8-4 2.3 2.4 2.2-3 3 4.6z' fill='currentColor'/>"_L1;
constexpr auto kLines =
    "<path d='M2 3.5h12M2 6.5h9M2 9.5h12M2 12.5h6.5' stroke='currentColor' stroke-width='1.5' "
    "stroke-linecap='round'/>"_L1;
constexpr auto kPadlock =
    "<rect x='2.8' y='7' width='10.4' height='7.4' rx='1.5' fill='currentColor'/>"
    "<path d='M5 7V4.8a3 3 0 0 1 6 0V7' fill='none' stroke='currentColor' stroke-width='1.5'/>"_L1;

QString onSheet(QLatin1StringView mark) {
    return kSheet.toString() + mark.toString();
}

const std::array kSkins = {
    Skin{"add-image"_L1, Ground::Band, 92, 40, u"Image"_s, onSheet(kImageFile), 22, 24},
    Skin{"add-txt"_L1, Ground::Band, 82, 40, u"Text"_s, onSheet(kTextFile), 22, 24},
    Skin{"add-pdf"_L1, Ground::Band, 82, 40, u"PDF"_s, onSheet(kPdfFile), 22, 24},
    Skin{"remove"_L1, Ground::Band, 92, 40, u"Remove"_s, kCross, 14, 14},
    Skin{"convert"_L1, Ground::Primary, 150, 44, u"Create"_s, kSheets, 20, 20},
    Skin{"show-option"_L1, Ground::Plain, 36, 26, QString(), kRight, 14, 14},
    Skin{"hide-option"_L1, Ground::Plain, 36, 26, QString(), kLeft, 14, 14},
    Skin{"open"_L1, Ground::Plain, 76, 28, u"Open"_s, kOpenFolder, 14, 14},
    Skin{"browse"_L1, Ground::Plain, 96, 28, u"Browse…"_s, kFolder, 14, 14},
    Skin{"security-setting"_L1, Ground::Plain, 100, 32, u"Security"_s, kPadlock, 16, 16},
    Skin{"image-setting"_L1, Ground::Plain, 100, 32, u"Image"_s, kPicture, 16, 16},
    Skin{"text-setting"_L1, Ground::Plain, 100, 32, u"Text"_s, kLines, 16, 16},
};

std::span<const Look> looksOf(Ground ground) {
    switch (ground) {
    case Ground::Band:
        return kBandLooks;
    case Ground::Primary:
        return kPrimaryLooks;
    case Ground::Plain:
        return kPlainLooks;
    }
    Q_UNREACHABLE();
}

QPainterPath outlineOf(const Skin &skin) {
    const bool primary = skin.ground == Ground::Primary;
    QFont font(u"Noto Sans"_s);
    font.setPixelSize(primary ? 17 : 13);
    font.setWeight(primary ? QFont::DemiBold : QFont::Normal);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath path;
    path.addText(0, 0, font, skin.label);
    return path;
}

/// The height of the capitals, on which a label is centred: the same for each label of a row.
double capHeight(const Skin &skin) {
    return skin.ground == Ground::Primary ? 12.0 : 9.2;
}

QString pathData(const QPainterPath &path) {
    QString data;
    QTextStream out(&data);
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(2);
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto element = path.elementAt(i);
        if (element.isMoveTo()) {
            out << (i == 0 ? "M" : "zM");
        } else if (element.isLineTo()) {
            out << "L";
        } else if (element.type == QPainterPath::CurveToElement) {
            out << "C";
        } else {
            out << " ";
        }
        out << element.x << " " << element.y;
    }
    out << "z";
    return data;
}

QString svg(const Skin &skin, const Look &look) {
    const auto outline = outlineOf(skin);
    const auto text = outline.boundingRect();
    const double gap = skin.label.isEmpty() ? 0 : kIconGap;
    const double left = qRound((skin.width - skin.iconWidth - gap - text.width()) / 2);
    const double iconTop = (skin.height - skin.iconHeight) / 2.0;
    const double baseline = (skin.height + capHeight(skin)) / 2;

    QString icon = skin.icon;
    icon.replace(u"currentColor"_s, look.tint).replace(u'\'', u'"');
    QString document;
    QTextStream out(&document);
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << skin.width << "\" height=\""
        << skin.height << "\" viewBox=\"0 0 " << skin.width << " " << skin.height << "\">\n"
        << "<rect x=\"0.5\" y=\"0.5\" width=\"" << skin.width - 1 << "\" height=\""
        << skin.height - 1 << "\" rx=\"6\" fill=\"" << look.fill << "\" stroke=\"" << look.stroke
        << "\"/>\n"
        << "<g transform=\"translate(" << left << " " << iconTop << ")\" opacity=\""
        << look.iconOpacity << "\">" << icon << "</g>\n";
    if (!skin.label.isEmpty()) {
        out << "<path aria-label=\"" << skin.label << "\" transform=\"translate("
            << left + skin.iconWidth + gap - text.left() << " " << baseline << ")\" fill=\""
            << look.label << "\" d=\"" << pathData(outline) << "\"/>\n";
    }
    out << "</svg>\n";
    return document;
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    if (argc != 2) {
        qFatal("usage: drawskins FOLDER");
    }
    for (const auto &skin : kSkins) {
        for (const auto &look : looksOf(skin.ground)) {
            QFile file(
                u"%1/%2%3.svg"_s.arg(QString::fromLocal8Bit(argv[1]), skin.name, look.suffix));
            if (!file.open(QIODevice::WriteOnly)) {
                qFatal("cannot write %s", qPrintable(file.fileName()));
            }
            file.write(svg(skin, look).toUtf8());
        }
    }
}
