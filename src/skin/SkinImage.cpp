// SPDX-License-Identifier: Apache-2.0

#include "skin/SkinImage.h"

#include <QDir>
#include <QPainter>
#include <QSvgRenderer>

#include <memory>

using namespace Qt::StringLiterals;

namespace folioforge {

struct SkinImage::Data : QSharedData {
    std::shared_ptr<QSvgRenderer> drawing; ///< Shared between the opacities of one drawing.
    QImage picture;
    double opacity = 1.0;
};

SkinImage::SkinImage() = default;
SkinImage::SkinImage(const SkinImage &) = default;
SkinImage &SkinImage::operator=(const SkinImage &) = default;
SkinImage::~SkinImage() = default;

SkinImage::SkinImage(const QImage &picture) {
    if (!picture.isNull()) {
        auto *data = new Data;
        data->picture = picture;
        m_data = data;
    }
}

SkinImage SkinImage::named(const QString &folder, const QString &name, const QString &label,
                           SkinWidth width) {
    const QString base = QDir(folder).filePath(name);
    auto drawing = std::make_shared<QSvgRenderer>();
    QFile file(base + u".svg"_s);
    if (file.open(QIODevice::ReadOnly) && drawing->load(withLabel(file.readAll(), label, width))) {
        auto *data = new Data;
        data->drawing = std::move(drawing);
        SkinImage image;
        image.m_data = data;
        return image;
    }
    return SkinImage(QImage(base + u".png"_s));
}

bool SkinImage::isNull() const {
    return !m_data;
}

QSize SkinImage::size() const {
    if (!m_data) {
        return {};
    }
    return m_data->drawing ? m_data->drawing->defaultSize() : m_data->picture.size();
}

SkinImage SkinImage::atOpacity(double fraction) const {
    SkinImage image;
    if (m_data) {
        auto *data = new Data(*m_data);
        data->opacity *= fraction;
        image.m_data = data;
    }
    return image;
}

void SkinImage::draw(QPainter &painter, const QRectF &target) const {
    if (!m_data) {
        return;
    }
    painter.save();
    painter.setOpacity(painter.opacity() * m_data->opacity);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (m_data->drawing) {
        m_data->drawing->render(&painter, target);
    } else {
        painter.drawImage(target, m_data->picture);
    }
    painter.restore();
}

} // namespace folioforge
