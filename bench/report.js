// SPDX-License-Identifier: Apache-2.0

// mutool run report.js PHOTO.jpg OUTPUT.pdf PAGES: a report with one photo of its own on each page
// (the same picture, made different by a comment), a link to the next page and a bookmark a page.
var photo = readFile(scriptArgs[0]);
var doc = new PDFDocument();
var font = doc.addSimpleFont(new Font("Helvetica"), "Latin");
var pages = [];

for (var i = 0; i < +scriptArgs[2]; ++i) {
    var own = new Buffer();
    own.writeByte(0xff);
    own.writeByte(0xd8);
    own.writeByte(0xff);
    own.writeByte(0xfe);
    own.writeByte(0);
    own.writeByte(4);
    own.writeByte(0x41 + i / 26);
    own.writeByte(0x41 + i % 26);
    for (var k = 2; k < photo.length; ++k)
        own.writeByte(photo[k]);
    var image = doc.addRawStream(own, {
        Type: "XObject", Subtype: "Image", Width: 1000, Height: 750,
        ColorSpace: "DeviceRGB", BitsPerComponent: 8, Filter: "DCTDecode"
    });
    var content = "BT /F 24 Tf 72 760 Td (Page " + (i + 1) + ") Tj ET q 450 0 0 338 72 380 cm /I Do Q";
    for (var row = 0; row < 18; ++row)
        content += " BT /F 11 Tf 72 " + (340 - 15 * row) + " Td (Row " + row + " of page " +
            (i + 1) + ": the lamp keeps its light over slow water.) Tj ET";
    var page = doc.addPage([0, 0, 595, 842], 0,
        doc.addObject({ Font: { F: font }, XObject: { I: image } }), content);
    doc.insertPage(-1, page);
    pages.push(page);
}

var outlines = doc.addObject({ Type: "Outlines" });
var previous = null;
for (i = 0; i < pages.length; ++i) {
    var item = doc.addObject({ Title: doc.newString("Page " + (i + 1)), Parent: outlines,
        Dest: [pages[i], doc.newName("Fit")] });
    if (previous) {
        previous.Next = item;
        item.Prev = previous;
    } else {
        outlines.First = item;
    }
    previous = item;
    pages[i].Annots = [doc.addObject({ Type: "Annot", Subtype: "Link", Rect: [72, 60, 200, 80],
        Dest: [pages[(i + 1) % pages.length], doc.newName("Fit")] })];
}
outlines.Last = previous;
outlines.Count = pages.length;
doc.getTrailer().Root.Outlines = outlines;
doc.save(scriptArgs[1], "");
