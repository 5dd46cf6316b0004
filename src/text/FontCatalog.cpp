// SPDX-License-Identifier: Apache-2.0

#include "text/FontCatalog.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <utility>

namespace folioforge {
namespace {

struct ReleaseConfig {
    void operator()(FcConfig *config) const { FcConfigDestroy(config); }
};
struct ReleasePattern {
    void operator()(FcPattern *pattern) const { FcPatternDestroy(pattern); }
};
struct ReleaseStrings {
    void operator()(FcStrSet *set) const { FcStrSetDestroy(set); }
    void operator()(FcStrList *list) const { FcStrListDone(list); }
};
using Config = std::unique_ptr<FcConfig, ReleaseConfig>;
using Pattern = std::unique_ptr<FcPattern, ReleasePattern>;

/// The fonts after the wanted family. Liberation Sans has the metrics of Arial; the fonts after it
/// add scripts. Those of a single script, first those that a language of today is written with, as
/// others have some of their letters, come before FreeSans, which has letters of many scripts but
/// few of the joined forms that Indic ones demand, and Unifont, which has nearly all characters,
/// but as outlines of bitmaps.
constexpr std::array kCascade{
    QStringView(u"Liberation Sans"),
    QStringView(u"DejaVu Sans"),
    QStringView(u"Noto Sans CJK SC"),
    QStringView(u"WenQuanYi Zen Hei"),
};
constexpr QStringView kScriptFamilies(u"Noto Sans");
constexpr std::array kLast{
    QStringView(u"FreeSans"),
    QStringView(u"FreeSerif"),
    QStringView(u"Unifont"),
    QStringView(u"Unifont Upper"),
};

/// Place of a family in the cascade; families of the same place are ordered by name.
using Rank = std::pair<std::size_t, QString>;

bool sameFamily(QStringView left, QStringView right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// Whether the font has all letters of some language.
bool writesLanguage(FcPattern *pattern) {
    FcLangSet *languages = nullptr;
    if (FcPatternGetLangSet(pattern, FC_LANG, 0, &languages) != FcResultMatch) {
        return false;
    }
    const std::unique_ptr<FcStrSet, ReleaseStrings> names(FcLangSetGetLangs(languages));
    const std::unique_ptr<FcStrList, ReleaseStrings> list(names ? FcStrListCreate(names.get())
                                                                : nullptr);
    if (!list) {
        throw std::bad_alloc();
    }
    return FcStrListNext(list.get()) != nullptr;
}

/// `pattern` is a font of that family.
std::optional<Rank> rankOf(const QString &family, FcPattern *pattern, const QStringList &wanted) {
    std::size_t rank = 0;
    for (const QString &name : wanted) {
        if (sameFamily(family, name)) {
            return Rank{rank, {}};
        }
        ++rank;
    }
    for (const QStringView name : kCascade) {
        if (sameFamily(family, name)) {
            return Rank{rank, {}};
        }
        ++rank;
    }
    if (family.startsWith(kScriptFamilies)) {
        return Rank{writesLanguage(pattern) ? rank : rank + 1, family};
    }
    ++rank;
    for (const QStringView name : kLast) {
        ++rank;
        if (sameFamily(family, name)) {
            return Rank{rank, {}};
        }
    }
    return std::nullopt;
}

int integer(FcPattern *pattern, const char *object, int otherwise) {
    int value = otherwise;
    FcPatternGetInteger(pattern, object, 0, &value);
    return value;
}

bool flag(FcPattern *pattern, const char *object) {
    FcBool value = FcFalse;
    return FcPatternGetBool(pattern, object, 0, &value) == FcResultMatch && value == FcTrue;
}

/// How far a font is from the upright regular one of its family, whose distance is 0. The ranges of
/// a variable font count as regular, but a fixed font is preferred to it.
int distanceFromRegular(FcPattern *pattern) {
    return std::abs(integer(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR) - FC_WEIGHT_REGULAR) +
           std::abs(integer(pattern, FC_WIDTH, FC_WIDTH_NORMAL) - FC_WIDTH_NORMAL) +
           integer(pattern, FC_SLANT, FC_SLANT_ROMAN) + (flag(pattern, FC_VARIABLE) ? 1 : 0);
}

/// Fontconfig's text as what Qt reads; libc++ has no traits of its unsigned characters.
const char *charsOf(const FcChar8 *text) {
    return reinterpret_cast<const char *>(text);
}

/// Whether a font can be measured and embedded: an outline font in an sfnt wrapper, but no named
/// instance of a variable font, which the upper half of the index marks.
bool isUsable(FcPattern *pattern) {
    FcChar8 *format = nullptr;
    if (FcPatternGetString(pattern, FC_FONTFORMAT, 0, &format) != FcResultMatch) {
        return false;
    }
    const QByteArrayView name(charsOf(format));
    constexpr int kIndexBits = 16;
    return (name == QByteArrayView("TrueType") || name == QByteArrayView("CFF")) &&
           flag(pattern, FC_OUTLINE) && !flag(pattern, FC_COLOR) &&
           integer(pattern, FC_INDEX, 0) >> kIndexBits == 0;
}

std::optional<Rank> rankOf(FcPattern *pattern, const QStringList &wanted) {
    std::optional<Rank> best;
    FcChar8 *name = nullptr;
    for (int i = 0; FcPatternGetString(pattern, FC_FAMILY, i, &name) == FcResultMatch; ++i) {
        const auto rank = rankOf(QString::fromUtf8(charsOf(name)), pattern, wanted);
        if (rank && (!best || *rank < *best)) {
            best = rank;
        }
    }
    return best;
}

std::optional<CatalogFont> entryOf(FcPattern *pattern) {
    FcChar8 *path = nullptr;
    FcCharSet *covered = nullptr;
    if (FcPatternGetString(pattern, FC_FILE, 0, &path) != FcResultMatch ||
        FcPatternGetCharSet(pattern, FC_CHARSET, 0, &covered) != FcResultMatch) {
        return std::nullopt;
    }
    return CatalogFont(QByteArray(charsOf(path)),
                       static_cast<unsigned>(integer(pattern, FC_INDEX, 0)),
                       FcCharSetCopy(covered));
}

/// The regular font of each family of the cascade, in its order.
std::vector<FcPattern *> cascadePatterns(const FcFontSet &fonts, const QStringList &wanted) {
    struct Choice {
        FcPattern *pattern = nullptr;
        int distance = 0;
    };
    std::map<Rank, Choice> choices;
    for (int i = 0; i < fonts.nfont; ++i) {
        FcPattern *pattern = fonts.fonts[i];
        const auto rank = isUsable(pattern) ? rankOf(pattern, wanted) : std::nullopt;
        if (!rank) {
            continue;
        }
        Choice &choice = choices[*rank];
        const int distance = distanceFromRegular(pattern);
        if (!choice.pattern || distance < choice.distance) {
            choice = {pattern, distance};
        }
    }
    std::vector<FcPattern *> patterns;
    patterns.reserve(choices.size());
    for (const auto &[rank, choice] : choices) {
        patterns.push_back(choice.pattern);
    }
    return patterns;
}

Pattern sansSerif(FcConfig *config) {
    const Pattern query(FcPatternCreate());
    FcPatternAddString(query.get(), FC_FAMILY, reinterpret_cast<const FcChar8 *>("sans-serif"));
    FcPatternAddBool(query.get(), FC_OUTLINE, FcTrue);
    FcConfigSubstitute(config, query.get(), FcMatchPattern);
    FcDefaultSubstitute(query.get());
    FcResult result = FcResultNoMatch;
    return Pattern(FcFontMatch(config, query.get(), &result));
}

} // namespace

CatalogFont::CatalogFont(QByteArray path, unsigned index, FcCharSet *covered)
    : m_path(std::move(path))
    , m_index(index)
    , m_covered(covered) {}

void CatalogFont::Release::operator()(FcCharSet *set) const {
    FcCharSetDestroy(set);
}

bool CatalogFont::covers(char32_t character) const {
    return FcCharSetHasChar(m_covered.get(), character) == FcTrue;
}

std::vector<CatalogFont> findTextFonts(const QStringList &families) {
    std::vector<CatalogFont> found;
    const Config config(FcInitLoadConfigAndFonts());
    if (!config) {
        return found;
    }
    const auto add = [&found](FcPattern *pattern) {
        if (auto entry = entryOf(pattern)) {
            found.push_back(std::move(*entry));
        }
    };
    if (const FcFontSet *fonts = FcConfigGetFonts(config.get(), FcSetSystem)) {
        for (FcPattern *pattern : cascadePatterns(*fonts, families)) {
            add(pattern);
        }
    }
    if (found.empty()) {
        if (const Pattern pattern = sansSerif(config.get()); pattern && isUsable(pattern.get())) {
            add(pattern.get());
        }
    }
    return found;
}

QStringList missingFamilies(const QStringList &families) {
    if (families.isEmpty()) {
        return {};
    }
    QStringList missing = families;
    const Config config(FcInitLoadConfigAndFonts());
    const FcFontSet *fonts = config ? FcConfigGetFonts(config.get(), FcSetSystem) : nullptr;
    for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i) {
        if (!isUsable(fonts->fonts[i])) {
            continue;
        }
        if (const auto rank = rankOf(fonts->fonts[i], missing);
            rank && rank->first < static_cast<std::size_t>(missing.size())) {
            missing.removeAt(static_cast<qsizetype>(rank->first));
        }
    }
    return missing;
}

} // namespace folioforge
