// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "skin/SkinLabel.h"

#include <QImage>
#include <QSharedDataPointer>
#include <QSize>
#include <QString>

class QPainter;

namespace folioforge {

/// One look of a skinned control: a drawing that stays sharp at every screen scale, or a picture.
///
/// A value that shares its contents. Two skin images are equal when one is a copy of the other,
/// whatever their pixels.
class SkinImage {
  public:
    /// An empty image: draws nothing.
    SkinImage();
    /// A picture of one point a pixel.
    explicit SkinImage(const QImage &picture);
    /// The skin `name` of `folder`, "name.svg" or else "name.png"; empty when there is none that
    /// can be read. A drawing shows the words `label` in place of its own.
    static SkinImage named(const QString &folder, const QString &name, const QString &label = {},
                           SkinWidth width = SkinWidth::Grows);

    SkinImage(const SkinImage &);
    SkinImage &operator=(const SkinImage &);
    ~SkinImage();

    [[nodiscard]] bool isNull() const;
    /// Size in points.
    [[nodiscard]] QSize size() const;
    /// A new image that shows this one at `fraction` (0 to 1) of its opacity.
    [[nodiscard]] SkinImage atOpacity(double fraction) const;
    /// Draws the image over the whole of `target`.
    void draw(QPainter &painter, const QRectF &target) const;

    bool operator==(const SkinImage &other) const { return m_data == other.m_data; }

  private:
    struct Data;
    QExplicitlySharedDataPointer<const Data> m_data;
};

} // namespace folioforge
