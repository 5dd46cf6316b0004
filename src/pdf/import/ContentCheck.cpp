// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/ContentCheck.h"

#include "image/Deflate.h"
#include "pdf/import/Dangling.h"
#include "pdf/import/Entries.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <utility>

namespace folioforge {

namespace {

/// Packed bytes that are checked at once. Of a source in good order no more are looked at.
constexpr qsizetype kBatchBytes = 1 << 20;

/// The filters of `stream`, the outermost first.
std::vector<QPDFObjectHandle> filtersOf(QPDFObjectHandle stream) {
    auto filter = stream.getDict().getKey("/Filter");
    if (filter.isArray()) {
        return filter.getArrayAsVector();
    }
    return filter.isNull() ? std::vector<QPDFObjectHandle>() : std::vector{filter};
}

bool isOneOf(QPDFObjectHandle name, std::initializer_list<const char *> names) {
    return std::ranges::any_of(names,
                               [&](const char *known) { return name.isNameAndEquals(known); });
}

/// Whether there is a filter that contents cannot have.
bool hasUnknownFilter(const std::vector<QPDFObjectHandle> &filters) {
    return std::ranges::any_of(filters, [](const QPDFObjectHandle &filter) {
        return !isOneOf(filter,
                        {"/FlateDecode", "/Fl", "/LZWDecode", "/LZW", "/ASCII85Decode", "/A85",
                         "/ASCIIHexDecode", "/AHx", "/RunLengthDecode", "/RL", "/Crypt"});
    });
}

} // namespace

ContentCheck::ContentCheck(QPDF &source, const std::vector<SourcePage> &pages) {
    for (std::size_t i = 0; i < pages.size(); ++i) {
        auto page = pages[i].page;
        auto contents = page.getKey("/Contents");
        if (isDangling(page, "/Contents") || hasDanglingItems(contents)) {
            m_damaged.insert(i + 1);
        }
        const auto parts = contents.isArray() ? items(contents) : std::vector{contents};
        for (const auto &part : parts) {
            add(i + 1, part);
        }
    }
    read(source);
}

void ContentCheck::add(std::size_t page, const QPDFObjectHandle &part) {
    QPDFObjectHandle stream = part;
    if (stream.isStream()) {
        Part &known = m_parts[stream.getObjGen()];
        known.stream = stream;
        known.pages.push_back(page);
    } else if (!stream.isNull()) {
        m_damaged.insert(page); // A page without any contents is blank.
    }
}

void ContentCheck::read(QPDF &source) {
    const bool wasRepaired = source.anyWarnings();
    Batch batch;
    qsizetype bytes = 0;
    for (const auto &[id, part] : m_parts) {
        const auto filters = filtersOf(part.stream);
        if (hasUnknownFilter(filters)) {
            note({&part});
        }
        const bool isLookedAt = wasRepaired || bytes < kBatchBytes;
        if (!isLookedAt || filters.empty() || !isOneOf(filters.front(), {"/FlateDecode", "/Fl"})) {
            continue;
        }
        if (bytes >= kBatchBytes) {
            note(damagedIn(std::exchange(batch, {})));
            bytes = 0;
        }
        batch.push_back({&part, QPDFObjectHandle(part.stream).getRawStreamData()});
        bytes += static_cast<qsizetype>(batch.back().data->getSize());
    }
    m_running = runAsync(
        bytes, [batch = std::make_shared<Batch>(std::move(batch))] { return damagedIn(*batch); });
}

ContentCheck::Damaged ContentCheck::damagedIn(const Batch &batch) {
    // More than any page that is drawn; what is longer counts as whole.
    constexpr qsizetype kMaxUnpacked = 64 << 20;
    Damaged damaged;
    ZlibCheck check(kMaxUnpacked);
    for (const auto &[part, data] : batch) {
        const QByteArrayView bytes(data->getBuffer(), static_cast<qsizetype>(data->getSize()));
        if (!bytes.isEmpty() && check.isDamaged(bytes)) {
            damaged.push_back(part);
        }
    }
    return damaged;
}

void ContentCheck::note(const Damaged &parts) {
    for (const Part *part : parts) {
        m_damaged.insert(part->pages.begin(), part->pages.end());
    }
}

std::set<std::size_t> ContentCheck::damagedPages() {
    note(m_running.get());
    return std::move(m_damaged);
}

} // namespace folioforge
