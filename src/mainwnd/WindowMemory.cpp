// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/WindowMemory.h"

#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QString sizeKey() {
    return u"Window/Size"_s;
}

QString columnsKey() {
    return u"Window/ColumnShares"_s;
}

QString panelKey(const QString &panel) {
    return u"PanelFolders/"_s + panel;
}

} // namespace

WindowMemory::WindowMemory(QSettings &settings)
    : m_settings(settings) {}

std::optional<QSize> WindowMemory::size() const {
    const QSize size = m_settings.value(sizeKey()).toSize();
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

void WindowMemory::keepSize(const QSize &size) {
    m_settings.setValue(sizeKey(), size);
}

std::vector<double> WindowMemory::columnShares() const {
    std::vector<double> shares;
    for (const QVariant &share : m_settings.value(columnsKey()).toList()) {
        shares.push_back(share.toDouble());
    }
    return shares;
}

void WindowMemory::keepColumnShares(const std::vector<double> &shares) {
    m_settings.setValue(columnsKey(), QVariantList(shares.begin(), shares.end()));
}

QString WindowMemory::panelFolder(const QString &panel, const QString &otherwise) const {
    const QString folder = m_settings.value(panelKey(panel)).toString();
    return !folder.isEmpty() && QFileInfo(folder).isDir() ? folder : otherwise;
}

void WindowMemory::keepPanelFolder(const QString &panel, const QString &folder) {
    m_settings.setValue(panelKey(panel), folder);
}

} // namespace folioforge
