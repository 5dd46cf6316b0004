// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Entries.h"
#include "pdf/import/LeftTargets.h"
#include "pdf/import/LeftTopics.h"

#include <qpdf/QPDF.hh>

#include <algorithm>

namespace folioforge {

namespace {

std::vector<QPDFObjectHandle> beadsOf(const QPDFObjectHandle &thread) {
    std::vector<QPDFObjectHandle> beads;
    std::set<QPDFObjGen> visited;
    for (auto bead = entry(thread, "/F");
         bead.isDictionary() && visited.insert(bead.getObjGen()).second; bead = bead.getKey("/N")) {
        beads.push_back(bead);
    }
    return beads;
}

} // namespace

std::size_t removeThreadsOn(const LeftTargets &left, QPDF &source,
                            const std::vector<SourcePage> &kept) {
    auto catalog = source.getRoot();
    std::set<QPDFObjGen> goneBeads;
    std::set<QPDFObjGen> goneThreads;
    std::size_t gone = 0;
    for (const auto &thread : items(catalog.getKey("/Threads"))) {
        const auto beads = beadsOf(thread);
        if (std::ranges::any_of(
                beads, [&](QPDFObjectHandle bead) { return left.contains(bead.getKey("/P")); })) {
            ++gone;
            goneThreads.insert(thread.getObjGen());
            for (const auto &bead : beads) {
                goneBeads.insert(bead.getObjGen());
            }
        }
    }
    removeItems(catalog, "/Threads", goneThreads);
    if (!goneBeads.empty()) {
        for (const auto &[page, inherited] : kept) {
            removeItems(page, "/B", goneBeads);
        }
    }
    return gone;
}

} // namespace folioforge
