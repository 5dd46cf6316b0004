// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"

namespace folioforge {

QByteArray helpText() {
    return R"(Usage: folioforge-cli [options] FILE|FOLDER...

Turns text files, pictures and PDFs into PDF documents, one for each or all in one.
Of a folder its text files and pictures are taken, ordered by name; what else it holds is
counted in a warning.

Input: files, folders, pipes such as <(command), and "-" for standard input
  --input-type txt|png|pdf|... what standard input is (default: as its bytes say)
  --files-from FILE            further inputs, a name a line, in this place; "-" for standard
                               input
  -0  --null                   the names of --files-from end in a null byte, as find -print0
                               writes them
  --recursive                  folders with the folders in them, but not behind links
  --with-pdfs                  folders with their PDFs
  FILE --pages 1-3,7,z-10,odd  of the PDF before it these pages, in this order; z is the last
  FILE --rotate +90:1-3        turns these of the pages taken, or all of them; 90 instead of
                               +90 whatever turn they have
  --sort name|natural|size|created|modified    (default: as given)

Output
  --output-folder DIR          a PDF for each input, here (default: the current folder); made
                               where it is missing
  --merge PATH                 one PDF of all, in the order given; ".pdf" is added where it
                               is missing; "-" for standard output
  --overwrite never|older|always
                               whether a PDF replaces a file of its name: never (the
                               default), one older than its inputs, or any; no input ever
  --dry-run                    what would be written, with pages and sizes; writes nothing
  --jobs N                     so many PDFs are made at once (default 1)
  --flush always|never         whether a PDF is flushed to disk before it gets its name
                               (default always; never suits scratch disks)
  --compress none|150m|96m|72l photos reduced to 150, 96 or 72 pixels per inch:
                               150m mild, good for printing; 96m medium, good for screens;
                               72l strong, good for mail (default none)

Document
  --title TEXT  --author TEXT  --subject TEXT  --keywords TEXT
  --keep-info                  what these do not give comes from the first PDF of the inputs
  --user-password-file FILE    the password to open the PDF: first line of FILE, "-" for
                               standard input; or in FOLIOFORGE_USER_PASSWORD
  --owner-password-file FILE   the password to change permissions; or in
                               FOLIOFORGE_OWNER_PASSWORD. With "-" for both, the user
                               password is the first line and this one the second
  --refuse-print --refuse-copy what readers may not do (need an owner password)

Pages. Lengths are points of 1/72 inch, or 25.4mm, 2.54cm, 1in, 72pt. Papers are A0 to A10,
B0 to B10, C5, DL, JIS-B4, JIS-B5, Letter, Legal, Tabloid and Executive; A4^T lies on its side
  --text-page-size PAPER|WxH       (default A4)
  --text-margins T,R,B,L           (default 72; one length for all sides, two, three or four)
  --image-page-size image|PAPER|WxH
                                   (default image: the page takes the picture's size)
  --image-orientation auto|portrait|landscape
                                   which way a paper lies under a picture; auto: as the
                                   picture does (default: as it is given)
  --image-margins T,R,B,L          (default 0)
  --image-fit within|shrink|fill   how a picture takes its paper: as large as it goes (the
                                   default), never enlarged, or cut off at the margins
  --image-dpi N                    of pictures that state no density (default 72)
  --image-pages first|all          of a TIFF and a GIF the first page or frame (the default),
                                   or each as a page
  --strip-metadata                 pictures go in without their Exif, XMP and comments, so
                                   without the place where a photo was taken

Text
  --text-encoding auto|NAME        of texts (default UTF-8), such as utf-16 or windows-1252; auto:
                                   by their bytes, with a warning where that is a guess
  --text-layout plain|readable     plain (the default) cuts lines at the right margin; readable
                                   breaks them between words, keeps blank lines, tabs and form
                                   feeds, and joins and turns letters as their scripts demand.
                                   The others need it:
  --font FAMILY,FAMILY             fonts in order of preference (default Arial or alike)
  --font-size N                    points (default 11)
  --line-spacing N                 in heights of a row (default 1)
  --tab-width N                    blanks from one tab stop to the next (default 8)

Report
  --progress auto|always|never     a progress line on standard error (default auto: on a
                                   terminal)
  --json                           one object a line on standard output for each input
  --quiet                          nothing but errors and warnings
  --strict                         a warning counts as a failure: exit status 1
  --version  --help

"--" ends the options: what follows is a file even where it starts with "-".

Exit status: 0 all converted; 1 some inputs failed or were rejected, the rest converted, or
with --strict, a warning was given; 2 wrong arguments or settings, nothing written.
)";
}

} // namespace folioforge
