// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/MissingObjects.h"

#include "error/Reasons.h"
#include "pdf/import/Dangling.h"
#include "pdf/import/Entries.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <map>

namespace folioforge {

namespace {

/// Looks at resources once each, however many pages share them, and without recursion.
class ResourceCheck {
  public:
    /// Whether something is missing in `resources`, or in those of a form that it leads to first.
    bool lacksObjects(const QPDFObjectHandle &resources) {
        m_pending.push_back(resources);
        bool lacks = false;
        while (!m_pending.empty()) {
            const QPDFObjectHandle next = m_pending.back();
            m_pending.pop_back();
            lacks = lacksOwn(next) || lacks;
        }
        return lacks;
    }

  private:
    bool lacksOwn(QPDFObjectHandle resources) {
        return resources.isDictionary() && once(resources, &ResourceCheck::look);
    }

    /// What `check` says of `object`, which many resources may share.
    bool once(const QPDFObjectHandle &object, bool (ResourceCheck::*check)(QPDFObjectHandle)) {
        if (!object.isIndirect()) {
            return (this->*check)(object);
        }
        const auto known = m_known.find(object.getObjGen());
        if (known != m_known.end()) {
            return known->second;
        }
        const bool lacks = (this->*check)(object);
        m_known.emplace(object.getObjGen(), lacks);
        return lacks;
    }

    bool look(QPDFObjectHandle resources) {
        static constexpr std::array kKinds{"/Font",    "/XObject", "/ColorSpace",
                                           "/Pattern", "/Shading", "/ExtGState"};
        bool lacks = false;
        for (const auto &[kind, members] : resources.getDictAsMap()) {
            if (std::ranges::find(kKinds, kind) != kKinds.end()) {
                lacks = lacksIn(resources, kind, members) || lacks;
            }
        }
        return lacks;
    }

    bool lacksIn(const QPDFObjectHandle &resources, const std::string &kind,
                 QPDFObjectHandle members) {
        return members.isNull() ? isDangling(resources, kind)
                                : once(members, &ResourceCheck::lacksMember);
    }

    bool lacksMember(QPDFObjectHandle members) {
        if (!members.isDictionary()) {
            return false;
        }
        bool lacks = false;
        for (auto &[name, member] : members.getDictAsMap()) {
            lacks = lacks || (member.isNull() && isDangling(members, name));
            if (member.isStream() && m_forms.insert(member.getObjGen()).second) {
                auto form = member.getDict();
                lacks = lacks || isDangling(form, "/Resources");
                m_pending.push_back(form.getKey("/Resources"));
            }
        }
        return lacks;
    }

    std::map<QPDFObjGen, bool> m_known; ///< Of what is an object of its own.
    std::set<QPDFObjGen> m_forms;       ///< Forms, pictures and patterns that were met.
    std::vector<QPDFObjectHandle> m_pending;
};

/// `known` holds what was found of lists that pages share.
bool lacksAnnotations(QPDFObjectHandle page, std::map<QPDFObjGen, bool> &known) {
    auto list = page.getKey("/Annots");
    if (!list.isIndirect() || list.isNull()) {
        return isDangling(page, "/Annots") || hasDanglingItems(list);
    }
    const auto [found, isNew] = known.try_emplace(list.getObjGen());
    if (isNew) {
        found->second = hasDanglingItems(list);
    }
    return found->second;
}

/// Whether one of the objects that `root` leads to by `keys`, to values or lists of them, is
/// missing.
bool lacksNode(const QPDFObjectHandle &root, std::initializer_list<const char *> keys) {
    std::set<QPDFObjGen> visited;
    std::vector<QPDFObjectHandle> pending{root};
    while (!pending.empty()) {
        QPDFObjectHandle node = pending.back();
        pending.pop_back();
        if (!isFirstVisit(node, visited)) {
            continue;
        }
        if (hasDanglingItems(node)) {
            return true;
        }
        const auto members = items(node);
        pending.insert(pending.end(), members.begin(), members.end());
        if (!node.isDictionary()) {
            continue;
        }
        for (const char *key : keys) {
            if (isDangling(node, key)) {
                return true;
            }
            pending.push_back(node.getKey(key));
        }
    }
    return false;
}

} // namespace

std::set<std::size_t> pagesThatLackObjects(const std::vector<SourcePage> &pages) {
    ResourceCheck resources;
    std::map<int, bool> inherited;    // By InheritedValue::number.
    std::map<QPDFObjGen, bool> lists; // Of annotations, which pages may share.
    std::set<std::size_t> found;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        QPDFObjectHandle page = pages[i].page;
        const auto above = pages[i].inherited->find("/Resources");
        bool lacks = false;
        if (page.hasKey("/Resources") || above == pages[i].inherited->end()) {
            auto own = page.getKey("/Resources");
            lacks = own.isNull() ? isDangling(page, "/Resources") : resources.lacksObjects(own);
        } else {
            const auto [known, isNew] = inherited.try_emplace(above->second.number);
            if (isNew) {
                known->second = resources.lacksObjects(above->second.value);
            }
            lacks = known->second;
        }
        if (lacks || lacksAnnotations(page, lists)) {
            found.insert(i + 1);
        }
    }
    return found;
}

Warnings missingEntries(QPDF &source) {
    Warnings warnings;
    const auto say = [&](const QString &text) {
        warnings.push_back({WarningCode::PdfPartsLeft, text});
    };
    auto root = source.getRoot();
    if (isDangling(root, "/Outlines") || lacksNode(root.getKey("/Outlines"), {"/First", "/Next"})) {
        say(Reasons::tr("Some of its bookmarks are missing in the document itself"));
    }
    if (isDangling(root, "/AcroForm") ||
        lacksNode(root.getKey("/AcroForm"), {"/Fields", "/Kids"})) {
        say(Reasons::tr("Some of its form fields are missing in the document itself"));
    }
    return warnings;
}

} // namespace folioforge
