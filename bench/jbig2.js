// SPDX-License-Identifier: Apache-2.0

// mutool run jbig2.js SCANS.pdf OUTPUT.pdf: every second Group 4 image as JBIG2. A JBIG2 region may
// be coded by T.6 (ITU-T T.88, 6.2.6), which is Group 4, so its data goes over as it is.
var doc = new PDFDocument(scriptArgs[0]);

function put(buffer, bytes) {
    for (var i = 0; i < bytes.length; ++i)
        buffer.writeByte(bytes[i]);
}

function bigEndian(value) {
    return [value >>> 24 & 255, value >>> 16 & 255, value >>> 8 & 255, value & 255];
}

function jbig2(data, width, height) {
    var size = bigEndian(width).concat(bigEndian(height));
    var zeros = [0, 0, 0, 0, 0, 0, 0, 0, 0];
    var out = new Buffer();
    put(out, bigEndian(0).concat([0x30, 0, 1], bigEndian(19), size, zeros, [0, 0]));
    put(out, bigEndian(1).concat([0x26, 0, 1], bigEndian(18 + data.length), size, zeros, [1]));
    out.writeBuffer(data);
    return out;
}

for (var page = 1; page < doc.countPages(); page += 2) {
    doc.findPage(page).Resources.XObject.forEach(function (name, image) {
        if (String(image.Filter).indexOf("CCITTFax") < 0)
            return;
        image.writeRawStream(jbig2(image.readRawStream(), +image.Width, +image.Height));
        image.Filter = doc.newName("JBIG2Decode");
        image.delete("DecodeParms");
        image.ColorSpace = doc.newName("DeviceGray");
    });
}
doc.save(scriptArgs[1], "");
