// SPDX-License-Identifier: Apache-2.0

#include "cli/OptionHelp.h"

#include "cli/Lengths.h"

#include <algorithm>

namespace folioforge {
namespace {

HelpSection inputHelp() {
    return {
        "Input",
        "Files, folders, pipes such as <(command), and \"-\" for standard input. Of a folder its "
        "text files and pictures are taken, ordered by name; what else it holds is counted in a "
        "warning.",
        {{"--input-type", "EXTENSION",
          "what standard input is, such as txt, png or pdf (default: as its bytes say)"},
         {"--files-from", "FILE",
          "further inputs, a name a line, in this place; \"-\" for standard input"},
         {"--null", "",
          "the names of --files-from end in a null byte, as find -print0 writes them"},
         {"-0", "", "the same"},
         {"--recursive", "", "folders with the folders in them, but not behind links"},
         {"--with-pdfs", "", "folders with their PDFs"},
         {"--pages", "RANGE",
          "of the PDF before it these pages, in this order, such as 1-3,7,z-10,odd; z is the last"},
         {"--rotate", "ANGLE:RANGE",
          "turns these of the pages taken, or all of them, by +90, +180 or -90; 90 instead of +90 "
          "whatever turn they have"},
         {"--input-password-file", "FILE",
          "opens encrypted PDFs: each line is tried; the PDF made has only the protection that is "
          "asked for"},
         {"--sort", "name|natural|size|created|modified",
          "the order of the inputs (default: as given)"}}};
}

HelpSection outputHelp() {
    return {
        "Output",
        "",
        {{"--output-folder", "DIR",
          "a PDF for each input, here (default: the current folder); made where it is missing"},
         {"--merge", "FILE",
          "one PDF of all, in the order given; \".pdf\" is added where it is missing; \"-\" for "
          "standard output"},
         {"--overwrite", "never|older|always",
          "whether a PDF replaces a file of its name: never (the default), one older than its "
          "inputs, or any; no input ever"},
         {"--verify", "",
          "each page of a PDF is held against its source before the PDF gets its name; where one "
          "is "
          "another, there is no PDF"},
         {"--verify-only", "FILE",
          "holds this PDF, whoever made it, against the inputs, with the options that would make "
          "it; "
          "writes nothing"},
         {"--dry-run", "", "what would be written, with pages and sizes; writes nothing"},
         {"--jobs", "N", "so many PDFs are made at once, 1 to 256 (default 1)"},
         {"--flush", "always|never",
          "whether a PDF is flushed to disk before it gets its name (default always; never suits "
          "scratch disks)"},
         {"--compress", "none|150m|96m|72l|DPI:QUALITY",
          "photos reduced to 150, 96 or 72 pixels per inch: 150m mild, good for printing; 96m "
          "medium, good for screens; 72l strong, good for mail (default none); or to DPI, 9 to "
          "2400, with a JPEG quality of 1 to 100 (65 without it); scans in black and white become "
          "Group 4 where that is smaller"},
         {"--compress-grey", "", "with --compress: pictures in colour become grey"}}};
}

HelpSection documentHelp() {
    return {"Document",
            "",
            {{"--title", "TEXT", "properties of the document"},
             {"--author", "TEXT", ""},
             {"--subject", "TEXT", ""},
             {"--keywords", "TEXT", ""},
             {"--bookmarks", "sources|files|both|none",
              "those of the PDFs (the default), one for each file, the first under the "
              "second, or none"},
             {"--bookmark-titles", "FILE",
              "what those of files are called, a line for each input, \"-\" for standard input; an "
              "empty line stands for the file's name"},
             {"--keep-info", "", "what these do not give comes from the first PDF of the inputs"},
             {"--user-password-file", "FILE",
              "the password to open the PDF: first line of FILE, \"-\" for standard input; or in "
              "FOLIOFORGE_USER_PASSWORD"},
             {"--owner-password-file", "FILE",
              "the password to change permissions; or in FOLIOFORGE_OWNER_PASSWORD. With \"-\" for "
              "both, the user password is the first line and this one the second"},
             {"--refuse-print", "", "readers may not print it (needs an owner password)"},
             {"--refuse-copy", "", "readers may not copy from it (needs an owner password)"}}};
}

HelpSection accessibilityHelp() {
    return {"Accessibility",
            "",
            {{"--tagged", "",
              "texts and pictures are tagged, so that programs can read them aloud and set them "
              "anew; by itself where a PDF among the inputs is tagged"},
             {"--accessible", "",
              "the PDF keeps PDF/UA-1 and says so: tagged as above; PDFs without tags are refused"},
             {"--lang", "TAG",
              "the language of texts and descriptions, such as en or de-CH (default: that of the "
              "system)"},
             {"--alt-file", "FILE",
              "what pictures show: a line for each, its name, a tab and the description, \"-\" for "
              "standard input (default: what its file says of it, or its name)"}}};
}

HelpSection archiveHelp() {
    return {
        "Archive",
        "",
        {{"--archive", "pdfa-1b|pdfa-2u|pdfa-2a|pdfa-3u|pdfa-3a",
          "a PDF for archives, PDF/A (ISO 19005): with all fonts and colours in it, and all of its "
          "text in Unicode from 2u on; 2a and 3a are tagged, too. PDFs of the inputs have to say "
          "that they are PDF/A of that "
          "part and level or a higher one; whether that is true is not checked"},
         {"--archive-fallback", "",
          "what cannot be PDF/A goes in, and the PDF does not say that it is; without it, it is "
          "left out"},
         {"--cmyk-profile", "FILE",
          "the ICC profile of pictures in CMYK that have none; without it they cannot be PDF/A"},
         {"--embed-sources", "",
          "each input itself is attached, byte for byte, to a PDF of part 3"}}};
}

HelpSection pageHelp() {
    return {
        "Pages",
        "Lengths are points of 1/72 inch, or 25.4mm, 2.54cm, 1in, 72pt. Papers are A0 to A10, B0 "
        "to B10, C5, DL, JIS-B4, JIS-B5, Letter, Legal, Tabloid and Executive; A4^T lies on its "
        "side. One margin serves for all sides; two, three and four are told apart as T,R,B,L.",
        {{"--text-page-size", "PAPER|WxH", "the page of text files (default A4)"},
         {"--text-margins", "T,R,B,L", "(default 72)"},
         {"--image-page-size", "image|PAPER|WxH",
          "the page of pictures (default image: it takes the picture's size)"},
         {"--image-orientation", "auto|portrait|landscape",
          "which way a paper lies under a picture; auto: as the picture does (default: as it is "
          "given)"},
         {"--image-margins", "T,R,B,L", "(default 0)"},
         {"--image-fit", "within|shrink|fill",
          "how a picture takes its paper: as large as it goes (the default), never enlarged, or "
          "cut off at the margins"},
         {"--image-dpi", "N", "pixels per inch of pictures that state none (default 72)"},
         {"--image-pages", "first|all",
          "of a file of several pictures the first page or frame (the default), or each as a page"},
         {"--strip-metadata", "",
          "pictures go in without their Exif, XMP and comments, so without the place where a "
          "photo was taken"}}};
}

HelpSection textHelp() {
    return {
        "Text",
        "",
        {{"--as-text", "",
          "md, log, csv, tsv, json, xml, source code and the like are texts, also in folders; the "
          "manual lists them"},
         {"--text-encoding", "auto|NAME",
          "of texts (default UTF-8), such as utf-16 or windows-1252; auto: by their bytes, with a "
          "warning where that is a guess"},
         {"--text-layout", "plain|readable",
          "plain (the default) cuts lines at the right margin; readable breaks them between "
          "words, keeps blank lines, tabs and form feeds, and joins and turns letters as their "
          "scripts demand. The options that follow need it"},
         {"--font", "FAMILY,FAMILY", "fonts in order of preference (default Arial or alike)"},
         {"--font-size", "N", "points (default 11)"},
         {"--line-spacing", "N", "in heights of a row (default 1)"},
         {"--tab-width", "N", "blanks from one tab stop to the next (default 8)"},
         {"--header", "TEXT",
          "in the top margin of each page of text; {file}, {page}, {pages} and {date} stand for "
          "the text's name, the page's number, the number of the PDF's pages and the day"},
         {"--footer", "TEXT", "likewise in the bottom margin"}}};
}

HelpSection reportHelp() {
    return {"Report",
            "",
            {{"--progress", "auto|always|never",
              "a progress line on standard error (default auto: on a terminal)"},
             {"--json", "", "one object a line on standard output for each input"},
             {"--manifest", "FILE",
              "what went in and came out, each file with its SHA-256, as JSON; as sha256sum -c "
              "reads it where FILE ends in .sha256; a PDF/A-3 carries its own, too"},
             {"--quiet", "", "nothing but errors and warnings"},
             {"--strict", "", "a warning counts as a failure: exit status 1"},
             {"--completion", "bash|zsh|fish", "what this shell completes these options with"},
             {"--version", "", "the versions of the program and of its libraries"},
             {"--help", "", "this"},
             {"-h", "", "the same"}}};
}

} // namespace

QByteArrayList OptionHelp::words() const {
    QByteArrayList words;
    for (const QByteArray &word : value.toByteArray().split('|')) {
        if (word == "PAPER") {
            words += paperNames();
            continue;
        }
        const bool isTyped =
            std::ranges::none_of(word, [](char letter) { return letter >= 'A' && letter <= 'Z'; });
        if (isTyped && !word.isEmpty()) {
            words += word;
        }
    }
    return words;
}

const std::vector<HelpSection> &optionHelp() {
    static const std::vector<HelpSection> sections{
        inputHelp(),   outputHelp(), documentHelp(), accessibilityHelp(),
        archiveHelp(), pageHelp(),   textHelp(),     reportHelp()};
    return sections;
}

} // namespace folioforge
