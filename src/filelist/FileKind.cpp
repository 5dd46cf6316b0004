// SPDX-License-Identifier: Apache-2.0

#include "filelist/FileKind.h"

#include "files/PathNames.h"

#include <array>

using namespace Qt::StringLiterals;

namespace folioforge {

FileKind fileKind(const QString &path, FurtherTypes further) {
    const QString extension = pathExtension(path).toLower();
    for (const FileKind kind :
         std::array{FileKind::Text, FileKind::Image, FileKind::Pdf, FileKind::FurtherImage}) {
        if (extensionsOf(kind).contains(extension)) {
            return kind;
        }
    }
    const bool isText = extension.isEmpty()
                            ? furtherTextNames().contains(lastPathComponent(path).toLower())
                            : furtherTexts().contains(extension);
    return further.texts && isText ? FileKind::Text : FileKind::Other;
}

const QStringList &extensionsOf(FileKind kind) {
    static const QStringList text{u"txt"_s};
    static const QStringList image{u"png"_s,  u"bmp"_s, u"gif"_s, u"jpg"_s, u"jpeg"_s,
                                   u"icns"_s, u"ico"_s, u"exr"_s, u"jp2"_s, u"tif"_s,
                                   u"tiff"_s, u"tga"_s, u"psd"_s};
    static const QStringList pdf{u"pdf"_s};
    static const QStringList furtherImage{u"webp"_s, u"heic"_s, u"heif"_s, u"avif"_s, u"jxl"_s};
    static const QStringList none;
    switch (kind) {
    case FileKind::Text:
        return text;
    case FileKind::Image:
        return image;
    case FileKind::Pdf:
        return pdf;
    case FileKind::FurtherImage:
        return furtherImage;
    case FileKind::Other:
        break;
    }
    return none;
}

const QStringList &furtherTexts() {
    static const QStringList texts =
        QString::fromLatin1(
            "md markdown rst adoc org tex bib log csv tsv json jsonl xml xsd xsl html htm css "
            "scss yaml yml toml ini cfg conf properties env diff patch srt vtt po sql c h cc cpp "
            "cxx hh hpp hxx m mm cs java kt kts scala groovy gradle swift go rs zig d dart js mjs "
            "ts jsx tsx vue py rb pl pm php lua r jl hs ml erl ex exs clj el lisp scm f f90 f95 "
            "pas ada adb ads asm s v vhd sv tcl awk sed sh bash zsh fish bat cmd ps1 cmake mk "
            "proto graphql qml ui")
            .split(u' ') +
        furtherTextNames();
    return texts;
}

const QStringList &furtherTextNames() {
    static const QStringList names = QString::fromLatin1("makefile dockerfile readme license "
                                                         "copying authors changelog news install "
                                                         "todo")
                                         .split(u' ');
    return names;
}

} // namespace folioforge
