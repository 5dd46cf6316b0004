// SPDX-License-Identifier: Apache-2.0

#include "verify/PageComparison.h"

#include "error/Reasons.h"
#include "pdf/import/ChosenPages.h"
#include "verify/ImportChanges.h"
#include "verify/Pixels.h"
#include "verify/StreamSums.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

/// What a page has beside its contents and is not held against the source: where it hangs, what it
/// is, and its key in the structure tree.
bool isOfTheTree(const std::string &key) {
    return key == "/Parent" || key == "/Type" || key == "/StructParents";
}

QString faultOf(const std::string &key) {
    if (key == "/Contents") {
        return Reasons::tr("its contents are not those of the source");
    }
    if (key == "/Resources") {
        return Reasons::tr("its fonts or pictures are not those of the source");
    }
    if (key == "/Annots") {
        return Reasons::tr("its links, notes or fields are not those of the source");
    }
    if (key.ends_with("Box") || key == "/Rotate" || key == "/UserUnit") {
        return Reasons::tr("its size or turn is not that of the source");
    }
    return Reasons::tr("%1 is not as in the source").arg(QString::fromStdString(key));
}

bool isSameNumber(Object source, Object written) {
    constexpr double kTolerance = 1e-6;
    return source.unparse() == written.unparse() ||
           std::abs(source.getNumericValue() - written.getNumericValue()) <= kTolerance;
}

/// Whether two values are the same that hold no others.
bool isSameScalar(Object source, Object written) {
    if (source.isNumber() && written.isNumber()) {
        return isSameNumber(source, written);
    }
    if (source.isString() && written.isString()) {
        return source.getStringValue() == written.getStringValue();
    }
    if (source.isName() && written.isName()) {
        return source.getName() == written.getName() ||
               shortened(source).getName() == written.getName();
    }
    return source.getTypeCode() == written.getTypeCode() && source.unparse() == written.unparse();
}

/// The filters of a stream with their parameters.
std::string filtersOf(const Object &dictionary) {
    std::string text;
    for (const char *key : {"/Filter", "/DecodeParms"}) {
        Object value = entry(dictionary, key);
        if (value.isArray()) {
            for (Object item : items(value)) {
                text += item.unparseResolved() + ' ';
            }
        } else if (!value.isNull()) {
            text += value.unparseResolved() + ' ';
        }
        text += '|';
    }
    return text;
}

bool isOfData(const std::string &key) {
    return key == "/Length" || key == "/Filter" || key == "/DecodeParms" || key == "/DL";
}

} // namespace

PageComparison::PageComparison(ComparedDocument &source, ComparedDocument &written, int firstPage,
                               const PageChoice &choice, Pictures pictures)
    : m_source(source)
    , m_written(written)
    , m_choice(choice)
    , m_pictures(pictures)
    , m_positions(choosePages(source.pages(), choice.range).positions)
    , m_firstPage(static_cast<std::size_t>(firstPage)) {
    mapPages(firstPage);
}

void PageComparison::mapPages(int firstPage) {
    for (const SourcePage &page : m_source.pages()) {
        m_copies.try_emplace(page.page.getObjGen());
    }
    for (std::size_t i = 0; i < m_positions.size(); ++i) {
        const std::size_t at = static_cast<std::size_t>(firstPage) + i;
        if (at < m_written.pages().size()) {
            m_copies[sourcePage(i).page.getObjGen()].insert(m_written.pages()[at].page.getObjGen());
        }
    }
}

const SourcePage &PageComparison::sourcePage(std::size_t index) const {
    return m_source.pages()[m_positions[index]];
}

const SourcePage &PageComparison::writtenPage(std::size_t index) const {
    return m_written.pages().at(m_firstPage + index);
}

QString PageComparison::fault(std::size_t index) {
    std::set<std::string> keys{"/MediaBox", "/CropBox", "/Rotate", "/Resources"};
    for (Object page : {sourcePage(index).page, writtenPage(index).page}) {
        keys.merge(page.getKeys());
    }
    for (const std::string &key : keys) {
        if (isOfTheTree(key)) {
            continue;
        }
        Object source = ComparedDocument::valueOf(sourcePage(index), key);
        const Object written = ComparedDocument::valueOf(writtenPage(index), key);
        if (key == "/MediaBox" && source.isNull()) {
            source = Object::parse("[0 0 612 792]"); // As readers show it.
        }
        const bool isSame = key == "/Rotate"                           ? isSameTurn(index)
                            : key == "/B" && !m_choice.range.isEmpty() ? true
                            : key == "/Annots" && !m_choice.range.isEmpty()
                                ? areSameAnnotations(source, written)
                                : areSame(source, written);
        if (!isSame) {
            return faultOf(key);
        }
    }
    return {};
}

/// Turns are added to what the source says, or replace it.
bool PageComparison::isSameTurn(std::size_t index) {
    constexpr long long kFull = 360;
    const auto turnOf = [](const SourcePage &page) {
        Object stated = ComparedDocument::valueOf(page, "/Rotate");
        return stated.isInteger() ? stated.getIntValue() : 0;
    };
    long long turn = turnOf(sourcePage(index));
    for (const PageTurn &asked : m_choice.turns) {
        const std::vector<SourcePage> taken(m_positions.size());
        const auto turned = choosePages(taken, asked.range).positions;
        for (auto i = std::ranges::count(turned, index); i > 0; --i) {
            turn = (asked.isRelative ? turn : 0) + asked.angle;
        }
    }
    return (turn - turnOf(writtenPage(index))) % kFull == 0;
}

/// Links to pages that were left out go with them.
bool PageComparison::areSameAnnotations(const Object &source, const Object &written) {
    std::vector<Object> kept;
    for (const Object &annotation : items(source)) {
        const Object action = entry(annotation, "/A");
        const bool isJump = isGoTo(action);
        const Object target = isJump ? entry(action, "/D") : entry(annotation, "/Dest");
        const auto place = items(m_source.destination(target));
        const bool goes = entry(annotation, "/Subtype").isNameAndEquals("/Link") &&
                          !place.empty() && isLeft(place.front());
        if (!goes) {
            kept.push_back(annotation);
        }
    }
    return areSame(Object::newArray(kept), Object(written).isNull() ? Object::newArray() : written);
}

/// Whether `page`, a page or its number, is one of the source that was not taken.
bool PageComparison::isLeft(const Object &page) const {
    Object object = page;
    if (object.isInteger()) {
        const long long number = object.getIntValue();
        if (number < 0 || number >= static_cast<long long>(m_source.pages().size())) {
            return false;
        }
        object = m_source.pages()[static_cast<std::size_t>(number)].page;
    }
    const auto copies = m_copies.find(object.getObjGen());
    return object.isIndirect() && copies != m_copies.end() && copies->second.empty();
}

bool PageComparison::areSame(const Object &source, const Object &written) {
    m_open.clear();
    follow(source, written);
    while (!m_open.empty()) {
        const Pair pair = m_open.back();
        m_open.pop_back();
        if (!isSamePair(pair.source, pair.written)) {
            return false;
        }
    }
    return true;
}

bool PageComparison::isSamePage(const Object &source, const Object &written) const {
    const auto copies = m_copies.find(source.getObjGen());
    return copies->second.empty() ? Object(written).isNull()
                                  : copies->second.contains(written.getObjGen());
}

bool PageComparison::isSamePair(Object source, Object written) {
    if (source.isIndirect() && m_copies.contains(source.getObjGen())) {
        return isSamePage(source, written);
    }
    if (staysInItsDocument(source)) {
        return true;
    }
    if (source.isIndirect() && written.isIndirect() &&
        !m_compared.emplace(source.getObjGen(), written.getObjGen()).second) {
        return true;
    }
    if (source.isStream()) {
        return written.isStream() && isSameStream(source, written);
    }
    if (source.isDictionaryOfType("/OCG") &&
        m_source.isHidden(source) != m_written.isHidden(written)) {
        return false;
    }
    if (source.isDictionary()) {
        return written.isDictionary() && isSameDictionary(source, written, false);
    }
    if (source.isArray()) {
        return written.isArray() && isSameArray(source, written);
    }
    return isSameScalar(source, written);
}

bool PageComparison::isSameArray(const Object &source, const Object &written) {
    const auto left = items(source);
    const auto right = items(written);
    for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i) {
        follow(left[i], right[i]);
    }
    return left.size() == right.size();
}

bool PageComparison::isSameDictionary(const Object &source, const Object &written,
                                      bool isOfStream) {
    const auto left = Object(source).getDictAsMap();
    const auto right = Object(written).getDictAsMap();
    for (const auto &[key, value] : left) {
        if ((isOfStream && isOfData(key)) || Object(value).isNull()) {
            continue;
        }
        if (!isSameEntry(source, written, key)) {
            return false;
        }
    }
    return std::ranges::all_of(right, [&](const auto &added) {
        const auto &[key, value] = added;
        const auto known = left.find(key);
        const bool isKnown = known != left.end() && !Object(known->second).isNull();
        return isKnown || (isOfStream && isOfData(key)) || Object(value).isNull() ||
               isAddedEntry(source, written, key);
    });
}

bool PageComparison::isSameEntry(const Object &source, const Object &written,
                                 const std::string &key) {
    const Object left = entry(source, key);
    const Object right = entry(written, key);
    switch (changeOf(source, key)) {
    case ImportChange::None:
        follow(left, right);
        return true;
    case ImportChange::Destination:
        return isSameDestination(left, right);
    case ImportChange::Name:
        return isRenamed(left, right);
    case ImportChange::Appearance:
        return hasSameAppearance(left, right);
    case ImportChange::Pruned:
        if (m_choice.range.isEmpty()) {
            follow(left, right);
        }
        return true;
    case ImportChange::Free:
        break;
    }
    return true;
}

/// A field gets the defaults of the form that it was in.
bool PageComparison::isAddedEntry(const Object &source, const Object &written,
                                  const std::string &key) {
    if (changeOf(source, key) == ImportChange::Free) {
        return true;
    }
    const Object form = entry(m_source.document().getRoot(), "/AcroForm");
    return (key == "/DA" || key == "/Q") && isField(source) &&
           hasSameAppearance(entry(form, key), entry(written, key));
}

/// The fonts that two default appearances name have to be the same too.
bool PageComparison::hasSameAppearance(const Object &source, const Object &written) {
    const std::string left = '/' + fontIn(source);
    const std::string right = '/' + fontIn(written);
    follow(m_source.fieldFont(left), m_written.fieldFont(right));
    return isSameAppearance(source, written);
}

bool PageComparison::isSameStream(const Object &source, const Object &written) {
    const Object left = Object(source).getDict();
    const Object right = Object(written).getDict();
    if (m_pictures == Pictures::Alike && entry(left, "/Subtype").isNameAndEquals("/Image") &&
        areAlike(source, written)) {
        return true;
    }
    if (!isSameDictionary(left, right, true)) {
        return false;
    }
    const Unpacking how =
        filtersOf(left) == filtersOf(right) ? Unpacking::None : Unpacking::Samples;
    const auto sum = sumOf(written, how);
    return sum && sum == sumOf(source, how);
}

bool PageComparison::isSameDestination(const Object &source, const Object &written) {
    const auto left = items(m_source.destination(source));
    const auto right = items(m_written.destination(written));
    if (left.empty() || right.empty()) {
        return left.empty() == right.empty() || (right.empty() && isLeft(left.front()));
    }
    Object page = left.front();
    if (isLeft(page)) {
        return Object(right.front()).isNull();
    }
    if (page.isInteger() && page.getIntValue() >= 0 &&
        page.getIntValue() < static_cast<long long>(m_source.pages().size())) {
        page = m_source.pages()[static_cast<std::size_t>(page.getIntValue())].page;
    }
    follow(page, right.front());
    for (std::size_t i = 1; i < std::min(left.size(), right.size()); ++i) {
        follow(left[i], right[i]);
    }
    return left.size() == right.size();
}

} // namespace folioforge
