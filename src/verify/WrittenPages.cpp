// SPDX-License-Identifier: Apache-2.0

#include "verify/WrittenPages.h"

#include "error/Error.h"
#include "image/Deflate.h"
#include "pdf/import/Entries.h"
#include "verify/ComparedDocument.h"
#include "verify/PictureCheck.h"
#include "verify/Unpacking.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

/// Bytes of a page, as they are kept and as they are read, however many its pieces are.
constexpr std::size_t kLongestContents = 256 << 20;

Error unreadable() {
    return Error(Reasons::tr("the contents of a page cannot be read"));
}

/// One of the contents, of which `left` bytes may be kept; it takes its own from them.
PageContents::Piece pieceOf(Object stream, std::size_t &left) {
    const auto take = [&left](std::size_t size) {
        if (size > left) {
            throw unreadable();
        }
        left -= size;
    };
    if (!stream.isStream()) {
        throw unreadable();
    }
    const Object dictionary = stream.getDict();
    if (entry(dictionary, "/Filter").isNameAndEquals("/FlateDecode") &&
        entry(dictionary, "/DecodeParms").isNull()) {
        auto deflated = stream.getRawStreamData();
        take(deflated->getSize());
        return {std::move(deflated), {}};
    }
    if (auto plain = unpacked(stream, left)) {
        take(plain->size());
        return {nullptr, std::move(*plain)};
    }
    throw unreadable();
}

QByteArray inflated(const Buffer &deflated, std::size_t most) {
    try {
        return inflateUpTo({reinterpret_cast<const char *>(deflated.getBuffer()),
                            static_cast<qsizetype>(deflated.getSize())},
                           static_cast<qsizetype>(most));
    } catch (const Error &) { // They are damaged or too long.
        throw unreadable();
    }
}

} // namespace

ReadPage readContents(const PageContents &contents, double fontSize) {
    std::string text;
    for (const auto &[deflated, plain] : contents.pieces) {
        if (deflated) {
            const QByteArray bytes = inflated(*deflated, kLongestContents - text.size());
            text.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        } else {
            text += plain;
        }
        text += '\n';
        if (text.size() > kLongestContents) {
            throw unreadable();
        }
    }
    return readPage(text, *contents.fonts, fontSize);
}

QString textFault(const PageContents &contents, const TextRecord &record, std::size_t index) {
    const ReadPage read = readContents(contents, record.fontSize);
    const TextTrace &trace = record.pages[index];
    if (read.trace.characters != trace.characters || read.trace.units != trace.units) {
        return Reasons::tr("its characters are not those of the text");
    }
    if (!read.trace.matches(trace)) {
        return Reasons::tr("its text stands elsewhere");
    }
    const bool hasOwnFonts = std::ranges::all_of(
        *contents.fonts, [](const auto &font) { return font.second->isAsEmbedded(); });
    if (!hasOwnFonts) {
        return Reasons::tr("a font is damaged");
    }
    const bool hasMargins = index < record.margins.size();
    if (!read.margins.matches(hasMargins ? record.margins[index] : TextTrace())) {
        return Reasons::tr("its header or footer is another");
    }
    return read.strange.empty() && read.pictures.empty()
               ? QString()
               : Reasons::tr("it shows what is not in the text");
}

QString frameFault(const SourcePage &page, QSizeF size) {
    QString differs = Reasons::tr("it has another size");
    const std::array<double, 4> wanted{0, 0, size.width(), size.height()};
    const auto box = items(ComparedDocument::valueOf(page, "/MediaBox"));
    constexpr double kTolerance = 0.001;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (box.size() != wanted.size() || !Object(box[i]).isNumber() ||
            std::abs(Object(box[i]).getNumericValue() - wanted[i]) > kTolerance) {
            return differs;
        }
    }
    for (const char *key : {"/CropBox", "/Rotate", "/UserUnit"}) {
        if (!ComparedDocument::valueOf(page, key).isNull()) {
            return differs;
        }
    }
    const bool hasAnnotations = !items(annotationsOf(page.page)).empty();
    return hasAnnotations ? Reasons::tr("it has notes that nobody made") : QString();
}

std::shared_ptr<const FontCodes> WrittenPages::fontOf(const QPDFObjectHandle &font) {
    if (!font.isIndirect()) {
        return FontCodes::read(font);
    }
    auto &known = m_fonts[font.getObjGen()];
    known = known ? known : FontCodes::read(font);
    return known;
}

std::shared_ptr<const FontsByName> WrittenPages::fontsOf(const QPDFObjectHandle &resources) {
    if (resources.isIndirect()) {
        if (const auto known = m_tables.find(resources.getObjGen()); known != m_tables.end()) {
            return known->second;
        }
    }
    auto table = std::make_shared<FontsByName>();
    Object fonts = entry(resources, "/Font");
    if (fonts.isDictionary()) {
        for (const auto &[name, font] : fonts.getDictAsMap()) {
            if (Object(font).isDictionary()) {
                table->emplace(name.substr(1), fontOf(font));
            }
        }
    }
    if (resources.isIndirect()) {
        m_tables.emplace(resources.getObjGen(), table);
    }
    return table;
}

PageContents WrittenPages::contentsOf(const SourcePage &page) {
    PageContents contents;
    contents.fonts = fontsOf(ComparedDocument::valueOf(page, "/Resources"));
    std::size_t left = kLongestContents;
    Object stated = entry(page.page, "/Contents");
    for (const Object &stream : stated.isStream() ? std::vector{stated} : items(stated)) {
        contents.pieces.push_back(pieceOf(stream, left));
    }
    return contents;
}

QString WrittenPages::pictureFault(const SourcePage &page, const PictureRecord &record,
                                   SourceReader &reader) {
    if (QString fault = frameFault(page, record.page); !fault.isEmpty()) {
        return fault;
    }
    const ReadPage read = readContents(contentsOf(page), 0);
    if (read.pictures.size() != 1) {
        return Reasons::tr("it has no picture, or more than one");
    }
    if (!read.strange.empty() || read.trace.units > 0 || read.trace.rows > 0) {
        return Reasons::tr("it shows more than the picture");
    }
    const DrawnPicture &drawn = read.pictures.front();
    const QString place = placeFault(drawn, record);
    const Object resources = ComparedDocument::valueOf(page, "/Resources");
    return place.isEmpty() ? imageFault(entry(entry(resources, "/XObject"), '/' + drawn.name),
                                        record.image, reader, m_profiles)
                           : place;
}

} // namespace folioforge
