// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QTest>

#include <memory>

namespace folioforge::test {

/// A test class of a room's test program, which runs one class at a time by its name.
/// FOLIOFORGE_TEST at the end of a test file makes one.
class TestUnit {
  public:
    using Prepare = void (*)();
    using Create = std::unique_ptr<QObject> (*)();

    /// `className` ends in "Test"; the unit's name is what stands before. `prepare` is called
    /// before the application object is made.
    TestUnit(const char *className, Prepare prepare, Create create) noexcept;
    TestUnit(const TestUnit &) = delete;
    TestUnit &operator=(const TestUnit &) = delete;

    /// The unit named `name`; null where the program has none.
    static const TestUnit *named(const QByteArray &name);
    /// The names of all units of the program, in order.
    static QList<QByteArray> names();

    void prepare() const { m_initMain(); }
    std::unique_ptr<QObject> create() const { return m_newTest(); }

  private:
    QByteArrayView name() const;

    const char *m_className;
    Prepare m_initMain;
    Create m_newTest;
    const TestUnit *m_next;
};

/// Calls `Test::initMain` where there is one.
template<typename Test> void initMain() {
    if constexpr (requires { Test::initMain(); }) {
        Test::initMain();
    }
}

template<typename Test> std::unique_ptr<QObject> newTest() {
    return std::make_unique<Test>();
}

} // namespace folioforge::test

/// Enters the test class `Test` in the test program that the file is linked to.
#define FOLIOFORGE_TEST(Test)                                                                      \
    static const folioforge::test::TestUnit registered##Test(                                      \
        #Test, folioforge::test::initMain<Test>, folioforge::test::newTest<Test>);
