// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "TestApplication.h"
#include "app/Translations.h"
#include "skin/LightLook.h"

namespace folioforge::test {

/// The application in a language.
struct ForeignWindow {
    explicit ForeignWindow(const QString &language)
        : translations({language}, WindowWorld::realBundle()) {
        applyLightLook(*qApp);
        application = std::make_unique<Application>();
    }
    void openPanel() {
        QTest::mouseClick(&control<QWidget>("m_btnExpand"), Qt::LeftButton);
        QTRY_COMPARE(control<OptionsDrawer>("m_optionsDrawer").openWidth(), 342);
    }
    QMainWindow &window() const { return application->window(); }
    template<typename Control> Control &control(const char *name) {
        return controlOf<Control>(window(), name);
    }

    Translations translations;
    std::unique_ptr<Application> application;
};

} // namespace folioforge::test
