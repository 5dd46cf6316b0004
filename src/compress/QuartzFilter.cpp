// SPDX-License-Identifier: Apache-2.0

#include "compress/QuartzFilter.h"

#include "compress/PropertyList.h"
#include "error/Error.h"
#include "error/Reasons.h"

#include <array>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// Reads typed values out of a filter file's dictionary and names the key that is wrong.
class FilterReader {
  public:
    FilterReader(QString path, QVariantMap values)
        : m_path(std::move(path))
        , m_values(std::move(values)) {}

    [[nodiscard]] double number(const QString &key, double least, double most) const {
        const QVariant value = m_values.value(key);
        const bool isNumber =
            value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Double;
        const double number = value.toDouble();
        if (!isNumber || !(number >= least && number <= most)) {
            throw wrong(key);
        }
        return number;
    }

    [[nodiscard]] bool boolean(const QString &key) const {
        const QVariant value = m_values.value(key);
        if (value.typeId() != QMetaType::Bool) {
            throw wrong(key);
        }
        return value.toBool();
    }

    [[nodiscard]] FilterReader dictionary(const QString &key) const {
        const QVariant value = m_values.value(key);
        if (value.typeId() != QMetaType::QVariantMap) {
            throw wrong(key);
        }
        return {m_path, value.toMap()};
    }

  private:
    [[nodiscard]] Error wrong(const QString &key) const {
        return Error(
            Reasons::tr("The filter file %1 lacks a valid value for \"%2\"").arg(m_path, key));
    }

    QString m_path;
    QVariantMap m_values;
};

} // namespace

QString quartzFilterName(int index) {
    static const std::array<QString, 4> names{QString(), u"150m"_s, u"96m"_s, u"72l"_s};
    return index >= 0 && index < static_cast<int>(names.size()) ? names[index] : QString();
}

QString quartzFilterPath(const QString &bundlePath, const QString &name) {
    return u"%1/Contents/Resources/%2.qfilter"_s.arg(bundlePath, name);
}

QuartzFilter readQuartzFilter(const QString &path) {
    const FilterReader file(path, readPropertyList(path));
    QuartzFilter filter;
    filter.resolution =
        file.number(u"Resolution"_s, QuartzFilter::kLeastResolution, QuartzFilter::kMaxResolution);
    filter.jpegQuality = static_cast<int>(file.number(u"JPEGQuality"_s, 1, 100));
    const FilterReader left = file.dictionary(u"LeaveAlone"_s);
    filter.tolerance = left.number(u"ResolutionTolerance"_s, 1, 10);
    filter.smallestImage = static_cast<qint64>(left.number(u"FewerPixelsThan"_s, 0, 1e9));
    filter.keepLineArt = left.boolean(u"LineArt"_s);
    return filter;
}

} // namespace folioforge
