// SPDX-License-Identifier: Apache-2.0

#include "support/TestUnit.h"

#include <algorithm>

namespace folioforge::test {

namespace {

/// The unit entered last; each knows the one before. Static objects enter, in any order.
const TestUnit *lastUnit = nullptr;

constexpr QByteArrayView kEnding = "Test";

} // namespace

TestUnit::TestUnit(const char *className, Prepare initMain, Create newTest) noexcept
    : m_className(className)
    , m_initMain(initMain)
    , m_newTest(newTest)
    , m_next(lastUnit) {
    lastUnit = this;
}

QByteArrayView TestUnit::name() const {
    const QByteArrayView name(m_className);
    return name.endsWith(kEnding) ? name.chopped(kEnding.size()) : name;
}

const TestUnit *TestUnit::named(const QByteArray &name) {
    const TestUnit *unit = lastUnit;
    while (unit != nullptr && unit->name() != name) {
        unit = unit->m_next;
    }
    return unit;
}

QList<QByteArray> TestUnit::names() {
    QList<QByteArray> names;
    for (const TestUnit *unit = lastUnit; unit != nullptr; unit = unit->m_next) {
        names += unit->name().toByteArray();
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace folioforge::test
