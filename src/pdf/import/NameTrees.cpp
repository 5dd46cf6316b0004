// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/NameTrees.h"

#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"
#include "pdf/import/SourceNames.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QUtil.hh>

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <string_view>

namespace folioforge {

namespace {

/// Attachments first, since actions among the others refer to them by name.
constexpr std::array kTrees{kAttachments, "/AP",         kScripts,
                            "/Pages",     kTemplates,    "/IDS",
                            "/URLS",      "/Renditions", "/AlternatePresentations"};

/// Numbers all scripts in their order. Their names are UTF-16, so that none but the number decides.
NamedObjects numberedScripts(const std::vector<TreeEntries> &sources) {
    std::size_t count = 0;
    for (const TreeEntries &scripts : sources) {
        count += scripts.size();
    }
    const auto digits = static_cast<int>(std::to_string(count).size());
    NamedObjects numbered;
    int number = 0;
    for (const TreeEntries &scripts : sources) {
        for (const auto &[name, script] : scripts) {
            const std::string text = QUtil::int_to_string(++number, digits) + ' ' + nameText(name);
            numbered.emplace(QUtil::utf8_to_utf16(text), script);
        }
    }
    return numbered;
}

/// Whether numbers are needed to keep all scripts and their order.
bool needNumbers(const std::vector<TreeEntries> &sources) {
    const auto nameOf = [](const auto &named) {
        return QPDFObjectHandle(named.first).getStringValue();
    };
    return sources.size() > 1 || std::ranges::adjacent_find(sources.front(), std::greater_equal(),
                                                            nameOf) != sources.front().end();
}

} // namespace

ImportedNameTrees importNameTrees(QPDF &source, SourceNames &names, ObjectCopier &copier) {
    const auto trees = entry(source.getRoot(), "/Names");
    ImportedNameTrees imported;
    for (const char *key : kTrees) {
        const TreeEntries entries = readNameTree(entry(trees, key));
        if (entries.empty()) {
            continue;
        }
        const bool isScripts = std::string_view(key) == kScripts;
        if (!isScripts) {
            std::vector<QPDFObjectHandle> own;
            std::ranges::transform(entries, std::back_inserter(own),
                                   [](const auto &named) { return named.first; });
            names.declare(key, own);
        }
        for (const auto &[name, object] : entries) {
            auto copied = copier.copy(object);
            if (!copied.isNull()) {
                imported[key].emplace_back(
                    isScripts ? shortened(name).shallowCopy() : names.nextKey(key, name), copied);
            }
        }
    }
    return imported;
}

NamedObjects furtherNames(QPDF &source) {
    auto names = entry(source.getRoot(), "/Names");
    NamedObjects further = names.isDictionary() ? names.getDictAsMap() : NamedObjects();
    further.erase(kDestinations);
    for (const char *key : kTrees) {
        further.erase(key);
    }
    return further;
}

void NameTreeMerger::add(const ImportedNameTrees &imported) {
    for (const auto &[key, entries] : imported) {
        if (key == kScripts) {
            m_scripts.push_back(entries);
        } else {
            addNames(m_trees[key], entries);
        }
    }
}

void NameTreeMerger::finish(QPDF &document) {
    if (!m_scripts.empty() && needNumbers(m_scripts)) {
        m_trees[kScripts] = numberedScripts(m_scripts);
    } else if (!m_scripts.empty()) {
        addNames(m_trees[kScripts], m_scripts.front());
    }
    for (const auto &[key, entries] : m_trees) {
        putNameTree(document, key, entries);
    }
    for (const auto &[key, object] : m_further) {
        namesOf(document).replaceKey(key, object);
    }
}

} // namespace folioforge
