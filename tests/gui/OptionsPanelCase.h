// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "WindowWorld.h"
#include "mainwnd/MainWndCtrl.h"
#include "skin/OptionsDrawer.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>

namespace folioforge::test {

/// A loaded and shown window with the real skins.
struct Panel {
    Panel() {
        world.storeFolder(world.home.path());
        world.notices.answerNoticesAtOnce();
        ctrl.window()->show();
    }

    template<typename Control> Control &control(const char *name) {
        return controlOf<Control>(*ctrl.window(), name);
    }
    QLineEdit &field(const char *name) { return control<QLineEdit>(name); }
    void press(const char *name) { QTest::mouseClick(&control<QWidget>(name), Qt::LeftButton); }
    void tick(const char *name) { test::tick(control<QAbstractButton>(name)); }
    void type(const char *name, const QString &text) {
        field(name).selectAll();
        QTest::keyClicks(&field(name), text);
    }
    void openPanel() {
        press("m_btnExpand");
        QTRY_COMPARE(control<OptionsDrawer>("m_optionsDrawer").openWidth(), 342);
    }
    /// Opens the panel at the security settings, enabled as with files in the list.
    void openSecurity() {
        ctrl.EnableSettings(true);
        openPanel();
        press("m_btnSecuritySetting");
    }
    [[nodiscard]] QString lastMessage() const {
        return world.notices.shown().empty() ? QString()
                                             : world.notices.shown().back().notice.textInWindow();
    }
    QStringList enabledAmong(const QStringList &names) {
        QStringList enabled;
        for (const QString &name : names) {
            if (control<QWidget>(qPrintable(name)).isEnabled()) {
                enabled << name;
            }
        }
        return enabled;
    }

    WindowWorld world;
    MainWndCtrl ctrl{world.services()};
};

} // namespace folioforge::test
