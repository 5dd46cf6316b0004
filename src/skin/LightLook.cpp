#include "skin/LightLook.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace folioforge {
namespace {

QPalette lightPalette() {
    const QColor ink(0x1f, 0x23, 0x28);
    const QColor faintInk(0x8a, 0x90, 0x98);
    const QColor accent(0x2f, 0x7d, 0xe1);

    QPalette palette(QColor(0xf3, 0xf4, 0xf6), QColor(0xff, 0xff, 0xff));
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::ButtonText, ink);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf8, 0xfa));
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x0b, 0x57, 0xd0));
    palette.setColor(QPalette::PlaceholderText, faintInk);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xff, 0xf0));
    palette.setColor(QPalette::ToolTipText, ink);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faintInk);
    }
    return palette;
}

} // namespace

void applyLightLook(QApplication &application) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(lightPalette());
    application.setEffectEnabled(Qt::UI_AnimateCombo, false);
}

} // namespace folioforge
