#include "forms/common/Look.h"

#include <QApplication>
#include <QPalette>
#include <QRegularExpressionValidator>
#include <QWidget>

namespace vypx {

namespace {

QPalette LightPalette()
{
    const QColor chrome = ScreenColour(ChromeColour);
    QPalette palette(QColor(239, 239, 241), chrome);
    const QColor text(20, 20, 24), dim(130, 130, 138);
    for (const QPalette::ColorRole role :
        { QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText }) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, dim);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(245, 245, 247));
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    palette.setColor(QPalette::PlaceholderText, dim);
    palette.setColor(QPalette::Highlight, QColor(48, 110, 190));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(20, 80, 170));
    return palette;
}

constexpr const char* GroupBoxes = R"(
QGroupBox {
    background-color: %1;
    border: 1px solid rgb(172, 171, 178);
    border-radius: 4px;
    margin-top: 0.7em;
    padding-top: 0.3em;
    color: rgb(20, 20, 24);
}
QGroupBox::title {
    subcontrol-origin: margin;
    subcontrol-position: top left;
    left: 9px;
    padding: 0 4px;
}
)";

} // namespace

void UseLightColours() { QApplication::setPalette(LightPalette()); }

void PaintChrome(QWidget& window, Rgb colour)
{
    window.setAutoFillBackground(true);
    QPalette palette = window.palette();
    palette.setColor(QPalette::Window, ScreenColour(colour));
    window.setPalette(palette);
    window.setStyleSheet(QString(GroupBoxes).arg(ScreenColour(colour).name()));
}

void KeepRoom(std::initializer_list<QWidget*> controls)
{
    for (QWidget* control : controls) {
        QSizePolicy policy = control->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        control->setSizePolicy(policy);
    }
}

QValidator* Latin1Validator(QObject& owner)
{
    return new QRegularExpressionValidator(QRegularExpression("[\\x20-\\x7E\\xA0-\\xFF]*"), &owner);
}

} // namespace vypx
