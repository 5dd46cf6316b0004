// SPDX-License-Identifier: Apache-2.0

#include "verify/PageComparison.h"

#include "error/Reasons.h"
#include "pdf/ColorSpaces.h"
#include "pdf/import/ChosenPages.h"
#include "verify/ImportChanges.h"
#include "verify/PictureChanges.h"
#include "verify/Pixels.h"
#include "verify/SameValues.h"

#include <algorithm>
#include <array>

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

bool isOfNothing(const std::string & /*key*/) {
    return false;
}

bool isOfDataOrSamples(const std::string &key) {
    return isOfData(key) || isOfSamples(key);
}

} // namespace

PageComparison::PageComparison(ComparedDocument &source, ComparedDocument &written, int firstPage,
                               const PageChoice &choice, Pictures pictures)
    : m_source(source)
    , m_written(written)
    , m_choice(choice)
    , m_pictures(pictures)
    , m_positions(choosePages(source.pages(), choice.range).positions)
    , m_turns(m_positions.size())
    , m_firstPage(static_cast<std::size_t>(firstPage)) {
    mapPages(firstPage);
    addTurns();
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
        Object written = ComparedDocument::valueOf(writtenPage(index), key);
        if (key == "/MediaBox" && source.isNull()) {
            source = Object::parse("[0 0 612 792]"); // As readers show it.
        }
        if (key == "/Resources" && source.isNull()) {
            source = Object::newDictionary();
        }
        // Threads may lead to pages that are left out; accessible pages have the order of the tags.
        const bool mayChange = (key == "/B" && !m_choice.range.isEmpty()) ||
                               (key == "/Tabs" && written.isNameAndEquals("/S"));
        const bool isSame = key == "/Rotate" ? isSameTurn(index)
                            : key == "/Annots" && !m_choice.range.isEmpty()
                                ? areSameAnnotations(source, written)
                                : mayChange || areSame(source, written);
        if (!isSame) {
            return faultOf(key);
        }
    }
    return {};
}

/// Turns are added to what the source says, or replace it.
void PageComparison::addTurns() {
    const std::vector<SourcePage> taken(m_positions.size());
    for (const PageTurn &asked : m_choice.turns) {
        for (const std::size_t i : choosePages(taken, asked.range).positions) {
            m_turns[i] = asked.isRelative
                             ? Turn{m_turns[i].angle + asked.angle, m_turns[i].isRelative}
                             : Turn{asked.angle, false};
        }
    }
}

bool PageComparison::isSameTurn(std::size_t index) const {
    constexpr long long kFull = 360;
    const auto turnOf = [](const SourcePage &page) {
        Object stated = ComparedDocument::valueOf(page, "/Rotate");
        return stated.isInteger() ? stated.getIntValue() : 0;
    };
    const Turn &asked = m_turns[index];
    const long long turn = (asked.isRelative ? turnOf(sourcePage(index)) : 0) + asked.angle;
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
    m_comparing.clear();
    follow(source, written);
    while (!m_open.empty()) {
        const Pair pair = m_open.back();
        m_open.pop_back();
        if (!isSamePair(pair.source, pair.written)) {
            return false;
        }
    }
    m_compared.merge(m_comparing);
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
    const std::pair names(source.getObjGen(), written.getObjGen());
    if (source.isIndirect() && written.isIndirect() &&
        (m_compared.contains(names) || !m_comparing.insert(names).second)) {
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
        return written.isDictionary() && isSameDictionary(source, written, isOfNothing);
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
                                      LeftOut isLeftOut) {
    const auto left = Object(source).getDictAsMap();
    const auto right = Object(written).getDictAsMap();
    for (const auto &[key, value] : left) {
        if (isLeftOut(key) || Object(value).isNull()) {
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
        return isKnown || isLeftOut(key) || Object(value).isNull() ||
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
    const bool isImage = entry(left, "/Subtype").isNameAndEquals("/Image");
    return isImage && m_pictures != Pictures::Same
               ? isSamePicture(source, written)
               : isSameDictionary(left, right, isOfData) && haveSameData(source, written);
}

/// The pass leaves all of a picture but its samples.
bool PageComparison::isSamePicture(const Object &source, const Object &written) {
    const Object left = Object(source).getDict();
    const Object right = Object(written).getDict();
    if (!isSameDictionary(left, right, isOfDataOrSamples)) {
        return false;
    }
    const bool mayBeGrey = m_pictures == Pictures::AlikeOrGrey;
    const Object colors = entry(left, "/ColorSpace");
    const Object writtenColors = entry(right, "/ColorSpace");
    const ColorChange change = colorChangeOf(colors, writtenColors, mayBeGrey);
    if (change == ColorChange::None || change == ColorChange::Base) {
        follow(change == ColorChange::Base ? colorsOf(colors) : colors, writtenColors);
    }
    if (change == ColorChange::None && haveSameSamples(left, right) &&
        haveSameData(source, written)) {
        return true;
    }
    return isReadAlike(left, right, change) && areAlike(source, written, mayBeGrey);
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
