// SPDX-License-Identifier: Apache-2.0

// The main function of every test program: test_ROOM UNIT [ARGUMENTS OF QT TEST].

#include "support/TestUnit.h"

// The class of the room's application object, whose header is called like it.
#define HEADER_OF(Class) <Class>
#include HEADER_OF(FOLIOFORGE_TEST_APPLICATION)

#include <cstdio>

using folioforge::test::TestUnit;

namespace {

int listUnits(const char *program) {
    std::fprintf(stderr, "usage: %s UNIT [ARGUMENTS OF QT TEST]\nUnits:\n", program);
    for (const QByteArray &name : TestUnit::names()) {
        std::fprintf(stderr, "  %s\n", name.constData());
    }
    return 2;
}

} // namespace

int main(int argc, char *argv[]) {
    const TestUnit *unit = argc > 1 ? TestUnit::named(argv[1]) : nullptr;
    if (unit == nullptr) {
        return listUnits(argv[0]);
    }
    // Qt Test reads the arguments behind the unit.
    argv[1] = argv[0];
    --argc;
    ++argv;
    unit->prepare();
    const FOLIOFORGE_TEST_APPLICATION application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    return QTest::qExec(unit->create().get(), argc, argv);
}
