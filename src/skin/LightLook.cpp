// SPDX-License-Identifier: Apache-2.0

#include "skin/LightLook.h"

#include <QApplication>
#include <QIcon>
#include <QIconEngine>
#include <QPalette>
#include <QProxyStyle>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QPalette lightPalette() {
    const QColor ink(0x1f, 0x23, 0x28);
    const QColor faintInk(0x67, 0x6d, 0x75);
    const QColor accent(0x1f, 0x64, 0xc0); // Selected rows are drawn somewhat lighter.

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

/// Fields, buttons and bars that match the skins: the same corner radius, thin grey edges, the
/// accent colour for the focus.
constexpr QStringView kLightStyleSheet = uR"(
        QLineEdit {
            border: 1px solid #868d97; border-radius: 5px; padding: 3px 7px; min-height: 18px;
            background: #ffffff; selection-background-color: #2470d3; selection-color: #ffffff;
        }
        QLineEdit:focus { border: 2px solid #2470d3; padding: 2px 6px; }
        QLineEdit:disabled {
            border-color: #e0e4e9; background: #f6f7f9; color: #676d75;
        }
        QLineEdit[readOnly="true"] { background: #f8f9fb; }
        QLineEdit[fault="true"] { border: 2px solid #c62828; padding: 2px 6px; }
        QComboBox {
            border: 1px solid #868d97; border-radius: 5px; padding: 3px 7px; min-height: 18px;
            background: #ffffff;
        }
        QComboBox:hover { border-color: #2470d3; }
        QComboBox:focus { border: 2px solid #2470d3; padding: 2px 6px; }
        QComboBox::drop-down { border: none; width: 26px; }
        QComboBox::down-arrow { image: url(:/skin/down-arrow.png); width: 12px; height: 12px; }
        QCheckBox::indicator, QRadioButton::indicator {
            width: 14px; height: 14px; border: 1px solid #757c86; background: #ffffff;
        }
        QCheckBox::indicator { border-radius: 4px; }
        QRadioButton::indicator { border-radius: 8px; }
        QCheckBox::indicator:hover, QRadioButton::indicator:hover { border-color: #2470d3; }
        QCheckBox::indicator:pressed, QRadioButton::indicator:pressed { background: #e6edf7; }
        QCheckBox::indicator:checked {
            border-color: #2470d3; background: #2470d3; image: url(:/skin/tick.png);
        }
        QCheckBox::indicator:checked:pressed { border-color: #1b559f; background: #1b559f; }
        QRadioButton::indicator:checked {
            width: 6px; height: 6px; border: 5px solid #2470d3; background: #ffffff;
        }
        QRadioButton::indicator:checked:pressed { border-color: #1b559f; }
        QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { border-color: #b4bac3; }
        QCheckBox::indicator:checked:disabled { background: #b4bac3; }
        QPushButton {
            border: 1px solid #868d97; border-radius: 6px; padding: 5px 16px; min-height: 18px;
            background: #f7f8fa;
        }
        QPushButton:hover { background: #ffffff; border-color: #2470d3; }
        QPushButton:pressed { background: #e6edf7; }
        QPushButton:focus { border: 2px solid #2470d3; padding: 4px 15px; }
        QPushButton:disabled { border-color: #e0e4e9; color: #676d75; }
        #band QPushButton {
            border: 1px solid #8f8f8f; padding: 5px 13px; min-height: 28px;
            background: #4a4a4a; color: #f4f4f4;
        }
        #band QPushButton:hover { background: #5b5b5b; border-color: #a8a8a8; }
        #band QPushButton:pressed { background: #6a6a6a; }
        #band QPushButton:disabled {
            border-color: #4a4a4a; background: transparent; color: #a4a4a4;
        }
        #band QPushButton:focus { border: 2px solid #6fb0ff; padding: 4px 12px; }
        #foot { border-top: 1px solid #dfe2e7; background: #ffffff; }
        #previewPanel { border-left: 1px solid #dfe2e7; background: #f3f4f6; }
        #previewPanel QToolButton {
            border: 1px solid #868d97; border-radius: 5px; padding: 3px; background: #ffffff;
        }
        #previewPanel QToolButton:hover { border-color: #2470d3; }
        #previewPanel QToolButton:pressed { background: #e6edf7; }
        #previewPanel QToolButton:focus { border: 2px solid #2470d3; padding: 2px; }
        #previewPanel QToolButton:disabled { border-color: #e0e4e9; }
        #optionsPanel { border-left: 1px solid #dfe2e7; background: #ffffff; }
        #m_settingsViewContainer { border: 1px solid #d5dae1; border-radius: 6px; }
        QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
        QMessageBox #qt_msgbox_label { font-weight: 600; }
        QLabel[role="unit"] { color: #676d75; }
        QLabel[role="heading"] { color: #59616b; font-weight: 600; }
        QLabel[role="title"] { font-size: 20px; font-weight: 600; }
        QProgressBar { border: none; border-radius: 4px; background: #e4e7eb; }
        QProgressBar::chunk { border-radius: 4px; background: #2470d3; }
        QScrollBar:vertical { width: 12px; background: #ffffff; }
        QScrollBar::handle:vertical {
            min-height: 32px; margin: 2px; border-radius: 4px; background: #c9ced6;
        }
        QScrollBar::handle:vertical:hover { background: #a9b0ba; }
        QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }
        #busyCard { border: 1px solid #cfd4db; border-radius: 10px; background: #ffffff; }
        #busyTitle { font-size: 16px; font-weight: 600; }
        #busyCount { color: #59616b; }
)";

/// An icon of `style` that is read when it is first drawn.
class LaterIcon : public QIconEngine {
  public:
    LaterIcon(const QStyle &style, QStyle::StandardPixmap name)
        : m_style(style)
        , m_name(name) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
               QIcon::State state) override {
        m_style.standardIcon(m_name).paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        return m_style.standardIcon(m_name).pixmap(size, 1, mode, state);
    }
    [[nodiscard]] QIconEngine *clone() const override { return new LaterIcon(*this); }

  private:
    const QStyle &m_style;
    QStyle::StandardPixmap m_name;
};

class LightStyle : public QProxyStyle {
  public:
    LightStyle()
        : QProxyStyle(u"Fusion"_s) {}

    /// A menu bar asks at once for the arrow of a bar that is too narrow. To read its picture, Qt
    /// loads all of its plugins for pictures: three of the sixty milliseconds of the window's
    /// start.
    [[nodiscard]] QIcon standardIcon(StandardPixmap name, const QStyleOption *option,
                                     const QWidget *widget) const override {
        if (name == SP_ToolBarHorizontalExtensionButton) {
            return QIcon(new LaterIcon(*baseStyle(), name));
        }
        return QProxyStyle::standardIcon(name, option, widget);
    }
};

} // namespace

void applyLightLook(QApplication &application) {
    QApplication::setStyle(new LightStyle);
    QApplication::setPalette(lightPalette());
    QString sheet = kLightStyleSheet.toString();
    if (QGuiApplication::isRightToLeft()) {
        sheet.replace(u"border-left"_s, u"border-right"_s); // Sheets know no leading edge.
    }
    application.setStyleSheet(sheet);
}

} // namespace folioforge
