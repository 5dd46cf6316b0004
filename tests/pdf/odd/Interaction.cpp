// SPDX-License-Identifier: Apache-2.0

#include "OddDocuments.h"

namespace folioforge::test {

namespace {

PdfFixture annotated(const QByteArray &annotation) {
    return onePage(kBox + kFont + "/Annots [6 0 R]")
        .object(6, "<< /Type /Annot /Rect [100 20 180 80] " + annotation + " >>")
        .stream(7, "/Type /XObject /Subtype /Form /BBox [0 0 40 30]",
                "1 0.5 0 rg 0 0 40 30 re f 0 0 1 rg 0 0 20 10 re f")
        .stream(8, "/Type /XObject /Subtype /Form /BBox [0 0 40 30] /Matrix [0 1 -1 0 0 0]",
                "0 0.5 0.5 rg 0 0 40 30 re f 1 0 0 rg 0 0 20 10 re f");
}

/// A document with the field 6 and what else its catalog's form says; 7 and 8 are appearances.
PdfFixture form(const QByteArray &field, const QByteArray &formKeys = {}) {
    return annotated("/Subtype /Widget /P 3 0 R " + field)
        .object(1, "<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [6 0 R] /DA (/F 12 Tf 0 g) "
                   "/DR << /Font << /F 5 0 R >> >> " +
                       formKeys + " >> >>");
}

/// A field above the page's one widget; neither is whole without the other.
PdfFixture fieldTree() {
    return form("/Parent 9 0 R /T (inner) /AP << /N 7 0 R >>")
        .object(1, "<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [9 0 R] >> >>")
        .object(9, "<< /FT /Tx /T (outer) /V (value) /Ff 4096 /Kids [6 0 R] >>");
}

PdfFixture radioButtons() {
    const QByteArray button("<< /Type /Annot /Subtype /Widget /Parent 9 0 R /P 3 0 R /AP << /N << "
                            "/On 7 0 R /Off 8 0 R >> >> ");
    return form({})
        .object(1, "<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [9 0 R] >> >>")
        .object(3, pageObject(kBox + kFont + "/Annots [6 0 R 10 0 R]"))
        .object(6, button + "/Rect [10 10 50 40] /AS /On >>")
        .object(9, "<< /FT /Btn /Ff 49152 /T (choice) /V /On /Kids [6 0 R 10 0 R] >>")
        .object(10, button + "/Rect [60 10 100 40] /AS /Off >>");
}

/// Layers 6 and 7 with this configuration; the content draws into both.
PdfFixture layered(const QByteArray &configuration) {
    return pageWith("/Properties << /A 6 0 R /B 7 0 R /M 8 0 R >>",
                    "/OC /A BDC 1 0 0 rg 0 0 70 100 re f EMC /OC /B BDC 0 0 1 rg 70 0 60 100 re f "
                    "EMC /OC /M BDC 0 1 0 rg 130 0 60 100 re f EMC")
        .object(1, "<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [6 0 R 7 0 R] /D << " +
                       configuration + " >> >> >>")
        .object(6, "<< /Type /OCG /Name (A) /Intent [/View /Design] >>")
        .object(7, "<< /Type /OCG /Name (B) /Usage << /Print << /PrintState /OFF >> >> >>")
        .object(8, "<< /Type /OCMD /OCGs [6 0 R 7 0 R] /P /AllOn >>");
}

/// The form 9 in a layer that is off, and an annotation in the other.
PdfFixture layeredObjects() {
    return layered("/OFF [6 0 R]")
        .object(3, pageObject(kBox + "/Resources << /XObject << /Fm 9 0 R >> >> /Annots [10 0 R]"))
        .stream(4, {}, kMark + "/Fm Do")
        .stream(9, "/Type /XObject /Subtype /Form /BBox [0 0 200 100] /OC 6 0 R",
                "0 0 200 100 re f")
        .object(10, "<< /Type /Annot /Subtype /Square /Rect [10 60 60 90] /C [1 0 0] /OC 7 0 R /AP "
                    "<< /N 11 0 R >> >>")
        .stream(11, "/Type /XObject /Subtype /Form /BBox [0 0 10 10]", "1 0 1 rg 0 0 10 10 re f");
}

/// A catalog with these entries beside its pages.
PdfFixture catalogued(const QByteArray &keys) {
    return onePage().object(1, "<< /Type /Catalog /Pages 2 0 R " + keys + " >>");
}

PdfFixture namedDestinations() {
    return catalogued("/Dests << /old [3 0 R /Fit] >> /Names << /Dests << /Kids [9 0 R 10 0 R] >> "
                      ">>")
        .object(3, pageObject(kBox + kFont + "/Annots [11 0 R 12 0 R 13 0 R]"))
        .object(9, "<< /Limits [(a) (b)] /Names [(a) [3 0 R /XYZ 0 0 0] (b) << /D [3 0 R /FitH 9] "
                   ">>] >>")
        .object(10, "<< /Limits [(c) (c)] /Names [(c) [3 0 R /FitR 0 0 9 9]] >>")
        .object(11, "<< /Type /Annot /Subtype /Link /Rect [0 0 50 50] /Dest (c) >>")
        .object(12, "<< /Type /Annot /Subtype /Link /Rect [50 0 90 50] /Dest /old >>")
        .object(13,
                "<< /Type /Annot /Subtype /Link /Rect [90 0 99 50] /A << /S /GoTo /D (none) /Next "
                "[<< /S /URI /URI (http://example.com/) >>] >> >>");
}

PdfFixture outlined() {
    return catalogued("/PageMode /UseOutlines /Outlines 9 0 R")
        .object(9, "<< /First 10 0 R /Last 11 0 R /Count -1 >>")
        .object(10, "<< /Title <FEFF263A> /Parent 9 0 R /Next 11 0 R /Dest [3 0 R /Fit] /C [1 0 0] "
                    "/F 3 >>")
        .object(11, "<< /Title () /Parent 9 0 R /Prev 10 0 R /A << /S /GoToR /F (a.pdf) /D [0 "
                    "/Fit] >> /First 12 0 R /Last 12 0 R /Count -1 >>")
        .object(12, "<< /Title (inner) /Parent 11 0 R >>");
}

PdfFixture pageLabels() {
    return catalogued("/PageLabels << /Kids [9 0 R] >>")
        .object(9, "<< /Limits [0 0] /Nums [0 << /S /a /P <FEFF00A7> /St 27 >>] >>");
}

PdfFixture articleThread() {
    return catalogued("/Threads [9 0 R]")
        .object(3, pageObject(kBox + kFont +
                              "/B [10 0 R] /Tabs /R /Dur 3 /Trans << /S /Wipe >> "
                              "/AA << /O << /S /Named /N /NextPage >> >>"))
        .object(9, "<< /Type /Thread /F 10 0 R /I << /Title (Article) >> >>")
        .object(10, "<< /T 9 0 R /N 10 0 R /V 10 0 R /P 3 0 R /R [0 0 99 99] >>");
}

PdfFixture attachments() {
    return catalogued(
               "/Names << /EmbeddedFiles << /Names [(a) 9 0 R] >> /JavaScript << /Names [(s) "
               "<< /S /JavaScript /JS (app.alert\\(1\\)) >>] >> >> /AF [9 0 R] /Collection "
               "<< /View /H >>")
        .object(9, "<< /Type /Filespec /F (a.txt) /EF << /F 10 0 R >> >>")
        .stream(10, "/Type /EmbeddedFile", "attached");
}

PdfFixture tagged() {
    return catalogued("/MarkInfo << /Marked true >> /StructTreeRoot 9 0 R /Lang (en)")
        .object(3, pageObject(kBox + kFont + "/StructParents 0"))
        .stream(4, {}, "/P << /MCID 0 >> BDC " + kWords + " EMC")
        .object(9, "<< /Type /StructTreeRoot /K 10 0 R /ParentTree << /Nums [0 [10 0 R]] >> >>")
        .object(10, "<< /Type /StructElem /S /P /P 9 0 R /Pg 3 0 R /K 0 >>");
}

PdfFixture withThumbnailAndMetadata() {
    return onePage(kBox + kFont + "/Thumb 6 0 R /Metadata 7 0 R /LastModified (D:20200101)")
        .stream(6, "/Width 1 /Height 1 /ColorSpace /DeviceGray /BitsPerComponent 8", "\x80")
        .stream(7, "/Type /Metadata /Subtype /XML", "<x:xmpmeta xmlns:x='adobe:ns:meta/'/>");
}

} // namespace

QList<OddDocument> oddInteraction() {
    const QByteArray highlight("/Subtype /Highlight /C [1 1 0] /QuadPoints [10 80 90 80 10 60 90 "
                               "60] /Rect [10 60 90 80]");
    return {
        {"an annotation with an appearance",
         annotated("/Subtype /Stamp /AP << /N 7 0 R >>").bytes()},
        {"an annotation's appearance turned",
         annotated("/Subtype /Stamp /AP << /N 8 0 R >>").bytes()},
        {"an annotation with several states",
         annotated("/Subtype /Stamp /AS /B /AP << /N << /A 7 0 R /B 8 0 R >> /R 7 0 R >>").bytes()},
        {"a hidden annotation", annotated("/Subtype /Stamp /F 2 /AP << /N 7 0 R >>").bytes()},
        {"an annotation without an appearance",
         onePage(kBox + kFont + "/Annots [<< /Type /Annot " + highlight + " >>]").bytes()},
        {"annotations in an indirect array",
         onePage(kBox + kFont + "/Annots 6 0 R")
             .object(6, "[7 0 R]")
             .object(7, "<< /Type /Annot /Subtype /Square /C [1 0 0] /Rect [10 60 60 90] >>")
             .bytes()},
        {"a note with its window and a reply",
         onePage(kBox + kFont + "/Annots [6 0 R 7 0 R 8 0 R]")
             .object(6, "<< /Type /Annot /Subtype /Text /Rect [9 9 29 29] /Popup 7 0 R >>")
             .object(7, "<< /Type /Annot /Subtype /Popup /Rect [99 9 150 50] /Parent 6 0 R >>")
             .object(8, "<< /Type /Annot /Subtype /Text /Rect [9 9 29 29] /IRT 6 0 R >>")
             .bytes()},
        {"a text field", form("/FT /Tx /T (name) /V (Anna) /AP << /N 7 0 R >>").bytes()},
        {"a text field that has no appearance",
         form("/FT /Tx /T (name) /V (Bert) /MK << /BG [1 1 0] >>", "/NeedAppearances true").bytes(),
         1, false, true},
        {"a check box",
         form("/FT /Btn /T (box) /V /Yes /AS /Yes /AP << /N << /Yes 7 0 R /Off 8 0 R >> >>")
             .bytes()},
        {"a field above its widget", fieldTree().bytes()},
        {"radio buttons", radioButtons().bytes()},
        {"a signature without a signer", form("/FT /Sig /T (sign)", "/SigFlags 3").bytes()},
        {"a list of choices",
         form("/FT /Ch /Ff 131072 /T (pick) /Opt [(a) [(b) (shown)]] /V (b) /AP << /N 8 0 R >>")
             .bytes()},
        {"a layer that is off", layered("/OFF [6 0 R]").bytes()},
        {"layers that are off but for one", layered("/BaseState /OFF /ON [7 0 R]").bytes()},
        {"layers nested in their order",
         layered("/Order [(Label) 6 0 R [7 0 R]] /ListMode /VisiblePages /RBGroups [[6 0 R 7 0 R]]")
             .bytes()},
        {"a layer that goes by its use",
         layered("/AS [<< /Event /View /Category [/View] /OCGs [6 0 R 7 0 R] >>]").bytes()},
        {"objects in layers", layeredObjects().bytes()},
        {"named destinations of both kinds", namedDestinations().bytes()},
        {"bookmarks", outlined().bytes()},
        {"page labels in a tree", pageLabels().bytes()},
        {"an article", articleThread().bytes()},
        {"attachments and scripts", attachments().bytes()},
        {"a structure tree", tagged().bytes()},
        {"a thumbnail and metadata", withThumbnailAndMetadata().bytes()},
        {"an action on opening",
         catalogued("/OpenAction [3 0 R /FitH 50] /ViewerPreferences << /Direction /R2L >> /URI << "
                    "/Base (http://example.com/) >>")
             .bytes()},
    };
}

} // namespace folioforge::test
