// SPDX-License-Identifier: Apache-2.0

#include "OddDocuments.h"

#include "support/PhotoPage.h"

namespace folioforge::test {

namespace {

const QByteArray kForm("/Type /XObject /Subtype /Form /BBox [0 0 200 100] ");
const QByteArray kGroup(kForm + "/Group << /S /Transparency /CS /DeviceRGB ");
const QByteArray kRamp("<< /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >>");

/// A page that draws the form 6 with `keys` and `content`.
PdfFixture formPage(const QByteArray &keys, const QByteArray &content,
                    const QByteArray &drawing = "/Fm Do") {
    return pageWith("/XObject << /Fm 6 0 R >>", drawing).stream(6, kForm + keys, content);
}

PdfFixture nestedForms() {
    return formPage("/Resources << /XObject << /Inner 7 0 R >> >> /Matrix [0.5 0 0 0.5 20 10]",
                    "1 0 0 rg 0 0 50 50 re f /Inner Do")
        .stream(7, kForm + "/Resources << /XObject << /Inner 8 0 R >> >> /Matrix [0 1 -1 0 150 0]",
                "0 1 0 rg 0 0 50 50 re f /Inner Do")
        .stream(8, kForm + "/Resources << /Font << /F 5 0 R >> >>", kWords);
}

/// Glyphs drawn by content streams, in a font with resources of its own.
PdfFixture type3() {
    return pageWith("/ExtGState << >>", "BT 0 0.5 0 rg /T3 40 Tf 20 30 Td (ab a) Tj ET")
        .object(3, pageObject(kBox + "/Resources << /Font << /T3 6 0 R >> >>"))
        .object(6, "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 750 750] /FontMatrix [0.001 0 0 "
                   "0.001 0 0] /FirstChar 97 /LastChar 98 /Widths [1000 1000] /Encoding << "
                   "/Differences [97 /square /word] >> /CharProcs << /square 7 0 R /word 8 0 R >> "
                   "/Resources << /Font << /F 5 0 R >> >> >>")
        .stream(7, {}, "1000 0 0 0 750 750 d1 0 0 750 750 re f")
        .stream(8, {}, "1000 0 d0 1 0 0 rg BT /F 500 Tf (W) Tj ET");
}

/// Glyphs whose font lacks resources use the page's (ISO 32000-1, 9.6.5).
PdfFixture type3WithoutResources() {
    return pageWith("/XObject << >>", {})
        .object(3, pageObject(kBox + "/Resources << /Font << /T3 6 0 R /F 5 0 R >> >>"))
        .stream(4, {}, "BT /T3 40 Tf 20 30 Td (a a) Tj ET")
        .object(6, "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 1 1] /FontMatrix [1 0 0 1 0 0] "
                   "/FirstChar 97 /LastChar 97 /Widths [1] /Encoding << /Differences [97 /a] >> "
                   "/CharProcs << /a 7 0 R >> >>")
        .stream(7, {}, "1 0 d0 0.2 0.2 0.6 0.6 re f BT /F 1 Tf (x) Tj ET");
}

PdfFixture standardFonts() {
    return onePage(kBox + "/Resources << /Font << /A 6 0 R /B 7 0 R /C << /Type /Font /Subtype "
                          "/Type1 /BaseFont /ZapfDingbats >> >> >>",
                   "BT /A 20 Tf 10 60 Td (AB\\200) Tj /B 20 Tf (abc) Tj /C 20 Tf (456) Tj ET")
        .object(6, "<< /Type /Font /Subtype /Type1 /BaseFont /Times-Roman /Encoding << /Type "
                   "/Encoding /BaseEncoding /WinAnsiEncoding /Differences [65 /germandbls /ae] >> "
                   ">>")
        .object(7, "<< /Type /Font /Subtype /Type1 /BaseFont /Symbol >>");
}

PdfFixture tiled(const QByteArray &keys, const QByteArray &content, const QByteArray &drawing,
                 const QByteArray &spaces = {}) {
    return pageWith("/Pattern << /P 6 0 R >> " + spaces, drawing + " 10 10 180 80 re f")
        .stream(6,
                "/Type /Pattern /PatternType 1 /TilingType 1 /BBox [0 0 20 20] /XStep 25 /YStep "
                "22 /Resources << >> " +
                    keys,
                content);
}

/// A page painted with a shading of these entries.
QByteArray shaded(const QByteArray &keys) {
    return pageWith("/Shading << /S 6 0 R >>", "q 10 10 180 80 re W n /S sh Q")
        .object(6, "<< /ColorSpace /DeviceRGB " + keys + " >>")
        .bytes();
}

/// A triangle mesh (type 4): a flag, two coordinates and three colours for each corner.
PdfFixture mesh() {
    const QByteArray corners("\0\0\0\xFF\0\0"
                             "\0\xFF\0\0\xFF\0"
                             "\0\x80\xFF\0\0\xFF",
                             18);
    return pageWith("/Shading << /S 6 0 R >>", "/S sh")
        .stream(6,
                "/ShadingType 4 /ColorSpace /DeviceRGB /BitsPerCoordinate 8 /BitsPerComponent 8 "
                "/BitsPerFlag 8 /Decode [10 190 10 90 0 1 0 1 0 1]",
                corners);
}

QByteArray shadedPattern() {
    return pageWith("/Pattern << /P << /PatternType 2 /Matrix [0.5 0 0 1 50 0] /Shading << "
                    "/ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 200 100] /Extend [true "
                    "true] /Function " +
                        kRamp + " >> >> >>",
                    "/Pattern cs /P scn 10 10 180 80 re f")
        .bytes();
}

/// The mark drawn under a soft mask made of the group 6.
QByteArray softMasked(const QByteArray &mask, const QByteArray &maskContent) {
    return pageWith("/ExtGState << /G << /SMask << /Type /Mask " + mask +
                        " /G 6 0 R >> >> /N << "
                        "/SMask /None >> >>",
                    "q /G gs " + kWords + " Q /N gs 0 0 20 20 re f")
        .stream(6, kGroup + ">>", maskContent)
        .bytes();
}

/// Two overlapping squares in a group, over a ground.
QByteArray grouped(const QByteArray &groupKeys, const QByteArray &state) {
    return pageWith("/XObject << /Fm 6 0 R >> /ExtGState << /G << " + state + " >> >>",
                    "0.8 0.8 0 rg 0 0 120 100 re f /G gs /Fm Do")
        .stream(6,
                kGroup + groupKeys +
                    " >> /Resources << /ExtGState << /G << /ca 0.5 /BM /Multiply "
                    ">> >> >>",
                "/G gs 1 0 0 rg 20 20 80 50 re f 0 0 1 rg 70 30 90 60 re f")
        .bytes();
}

/// An image of 2 x 2 pixels, 6, with a second one, 7, that `keys` may refer to.
QByteArray imaged(const QByteArray &keys, const QByteArray &data, const QByteArray &otherKeys = {},
                  const QByteArray &other = {}) {
    const QByteArray image("/Type /XObject /Subtype /Image /Width 2 /Height 2 ");
    return pageWith("/XObject << /Im 6 0 R >>",
                    "0.9 0.9 0.5 rg 0 0 200 100 re f q 180 0 0 80 10 10 cm /Im Do Q")
        .stream(6, image + keys, data)
        .stream(7, image + otherKeys, other)
        .bytes();
}

/// Squares in three tints of a colour space.
QByteArray colored(const QByteArray &space, const QByteArray &one, const QByteArray &other) {
    return pageWith("/ColorSpace << /CS " + space + " >>",
                    "/CS cs " + one + " sc 10 10 80 80 re f " + other + " sc 110 10 80 80 re f")
        .stream(6, "/N 3 /Alternate /DeviceRGB", "no profile at all")
        .stream(7, "/FunctionType 4 /Domain [0 1 0 1] /Range [0 1 0 1 0 1]",
                "{ 2 copy mul 3 1 roll exch }")
        .bytes();
}

} // namespace

QList<OddDocument> oddGraphics() {
    const QByteArray rgb("/ColorSpace /DeviceRGB /BitsPerComponent 8 ");
    const QByteArray grey("/ColorSpace /DeviceGray /BitsPerComponent 8 ");
    const QByteArray pixels("\xFF\0\0\0\xFF\0\0\0\xFF\xFF\xFF\0", 12);
    const QByteArray levels("\0\x60\xA0\xFF", 4);
    return {
        {"forms within forms", nestedForms().bytes()},
        {"a form that uses the page's resources", formPage({}, kWords).bytes()},
        {"a form cut by its box",
         formPage("/Matrix [1 0.2 0 1 0 0]", kMark, "q 0.5 0 0 0.5 0 0 cm /Fm Do Q /Fm Do")
             .bytes()},
        {"a Type 3 font", type3().bytes()},
        {"a Type 3 font without resources", type3WithoutResources().bytes()},
        {"standard fonts with encodings of their own", standardFonts().bytes()},
        {"a coloured tiling",
         tiled("/PaintType 1", "1 0 0 rg 0 0 10 10 re f 0 0 1 rg 10 10 10 10 re f",
               "/Pattern cs /P scn")
             .bytes()},
        {"an uncoloured tiling",
         tiled("/PaintType 2 /Matrix [0.7 0.7 -0.7 0.7 0 0]", "0 0 10 10 re f",
               "/CS cs 0 0.6 0 /P scn", "/ColorSpace << /CS [/Pattern /DeviceRGB] >>")
             .bytes()},
        {"a shading along a line",
         shaded("/ShadingType 2 /Coords [10 0 190 0] /Function " + kRamp)},
        {"a shading between circles",
         shaded("/ShadingType 3 /Coords [60 50 10 140 50 40] /Extend [true false] /Function " +
                kRamp)},
        {"a shading of three functions",
         shaded("/ShadingType 2 /Coords [10 0 190 0] /Function [<< /FunctionType 2 /Domain [0 1] "
                "/N 2 >> << /FunctionType 2 /Domain [0 1] /C0 [1] /C1 [0] /N 1 >> << /FunctionType "
                "3 /Domain [0 1] /Bounds [0.5] /Encode [0 1 1 0] /Functions [<< /FunctionType 2 "
                "/Domain [0 1] /N 1 >> << /FunctionType 2 /Domain [0 1] /N 1 >>] >>]")},
        {"a shading of triangles", mesh().bytes()},
        {"a shading as pattern", shadedPattern()},
        {"a soft mask of luminosity",
         softMasked("/S /Luminosity /BC [0 0 0]", "1 g 0 0 100 100 re f 0.5 g 100 0 60 100 re f")},
        {"a soft mask of opacity", softMasked("/S /Alpha", "20 20 100 60 re f")},
        {"a soft mask with a transfer function",
         softMasked("/S /Luminosity /TR << /FunctionType 2 /Domain [0 1] /C0 [1] /C1 [0] /N 1 >>",
                    "0.7 g 0 0 100 100 re f")},
        {"an isolated group", grouped("/I true", "/ca 0.7")},
        {"a knockout group", grouped("/K true", "/ca 0.7 /BM /Darken")},
        {"a list of blend modes", grouped({}, "/BM [/Odd /Difference] /ca 1 /AIS false")},
        {"a page group",
         onePage(kBox + kFont + "/Group << /S /Transparency /CS /DeviceCMYK /I true >>").bytes()},
        {"an image with a soft mask", imaged(rgb + "/SMask 7 0 R", pixels, grey, levels)},
        {"an image with a stencil",
         imaged(rgb + "/Mask 7 0 R", pixels, "/ImageMask true /BitsPerComponent 1", "\x80\x40")},
        {"an image with a masked colour", imaged(rgb + "/Mask [0 9 250 255 0 9]", pixels)},
        {"an image of a palette in a string",
         imaged(
             "/BitsPerComponent 4 /ColorSpace [/Indexed /DeviceRGB 3 <FF000000FF000000FFFFFF00>]",
             "\x01\x23")},
        {"an image with its levels exchanged", imaged(grey + "/Decode [1 0]", levels)},
        {"an image of 16 bits",
         imaged("/ColorSpace /DeviceGray /BitsPerComponent 16", levels + levels)},
        {"a spot colour",
         colored("[/Separation /Odd#20Orange /DeviceRGB " + kRamp + "]", "0.2", "0.9")},
        {"two colorants",
         colored("[/DeviceN [/One /Other] /DeviceRGB 7 0 R]", "0.2 0.9", "0.9 0.5")},
        {"a damaged profile beside its alternate",
         colored("[/ICCBased 6 0 R]", "1 0.2 0.2", "0.2 0.2 1")},
        {"CIE colours", colored("[/Lab << /WhitePoint [0.95 1 1.09] /Range [-90 90 -90 90] >>]",
                                "60 50 20", "40 -50 -30")},
        {"a default colour space",
         colored("/DeviceRGB /DefaultRGB [/CalRGB << /WhitePoint [0.95 1 1.09] /Gamma [2 2 2] >>]",
                 "1 0.5 0.2", "0.2 0.5 1")},
    };
}

} // namespace folioforge::test
