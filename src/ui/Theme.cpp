#include "ui/Theme.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Zandrove::Theme {

namespace {

QString declaration(QLatin1StringView property, QLatin1StringView value)
{
    return value.isEmpty() ? QString() : u" %1: %2;"_s.arg(property, value);
}

QString rule(const QString &selector, const QString &declarations)
{
    return declarations.isEmpty() ? QString() : u"%1 {%2 } "_s.arg(selector, declarations);
}

/// The three pictures of a box, in whatever sub-control shows it.
QString indicatorStyle(QLatin1StringView indicator)
{
    return u"%1 { width: 16px; height: 16px; image: url(:/icons/checkbox-unchecked.svg); border: none; "
           u"background: transparent; } "
           u"%1:checked { image: url(:/icons/checkbox-checked.svg); } "
           u"%1:indeterminate { image: url(:/icons/checkbox-partial.svg); } "_s.arg(indicator);
}

} // namespace

QString gradient(QLatin1StringView from, QLatin1StringView to)
{
    return u"qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 %1, stop:1 %2)"_s.arg(from, to);
}

QString gradient(QLatin1StringView from, QLatin1StringView middle, QLatin1StringView to)
{
    return u"qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 %1, stop:0.5 %2, stop:1 %3)"_s.arg(from, middle,
                                                                                               to);
}

QString textStyle(int pixels, QLatin1StringView colour, int weight)
{
    // With a selector: bare properties would dress the label's tool tip as well.
    return u"QLabel { background: transparent; border: none; color: %1; font-size: %2px; font-weight: %3; }"_s
        .arg(colour)
        .arg(pixels)
        .arg(weight);
}

QString statusStyle(Status status)
{
    constexpr int Pixels = 12;
    switch (status) {
    case Status::Working:
        return textStyle(Pixels, Colour::Primary);
    case Status::Success:
        return textStyle(Pixels, Colour::SuccessText);
    case Status::Failure:
        return textStyle(Pixels, Colour::DangerText);
    case Status::Neutral:
        break;
    }
    return textStyle(Pixels, Colour::TextFaint);
}

QString boxProperties(const QString &background, int radius, QLatin1StringView border)
{
    return u"background: %1; border-radius: %2px; border: %3;"_s.arg(
        background, QString::number(radius), border.isEmpty() ? u"none"_s : u"1px solid "_s + border);
}

QString boxStyle(QLatin1StringView type, const QString &background, int radius, QLatin1StringView border)
{
    return u"%1 { %2 }"_s.arg(type, boxProperties(background, radius, border));
}

ButtonLook primaryButton()
{
    ButtonLook look;
    look.background = Colour::Primary;
    look.hover = Colour::PrimaryHover;
    look.disabled = Colour::PrimaryDisabled;
    return look;
}

QString buttonStyle(const ButtonLook &look)
{
    QString base =
        declaration("background"_L1, look.background) + declaration("color"_L1, look.text) +
        declaration("padding"_L1, look.padding) +
        u" border: %1; border-radius: %2px; font-size: %3px; font-weight: %4; outline: none;"_s.arg(
            look.border.isEmpty() ? u"none"_s : u"1px solid "_s + look.border, QString::number(look.radius),
            QString::number(look.fontPixels), QString::number(look.weight));
    if (look.minimumWidth > 0)
        base += u" min-width: %1px;"_s.arg(look.minimumWidth);
    return rule(u"QPushButton"_s, base) +
           rule(u"QPushButton:hover"_s,
                declaration("background"_L1, look.hover) + declaration("color"_L1, look.hoverText)) +
           rule(u"QPushButton:pressed"_s, declaration("background"_L1, look.pressed)) +
           rule(u"QPushButton:disabled"_s,
                declaration("background"_L1, look.disabled) + declaration("color"_L1, look.disabledText));
}

QString checkBoxStyle()
{
    return u"QCheckBox { background: transparent; spacing: 8px; } "_s +
           indicatorStyle("QCheckBox::indicator"_L1);
}

QString treeCheckBoxStyle()
{
    return indicatorStyle("QTreeView::indicator"_L1);
}

QString progressBarStyle(int height, QLatin1StringView track, QLatin1StringView chunk)
{
    return u"QProgressBar { background: %1; border: none; border-radius: %3px; min-height: %4px; max-height: "
           u"%4px; "
           u"} "
           u"QProgressBar::chunk { background: %2; border-radius: %3px; }"_s.arg(
               track, chunk, QString::number(height / 2), QString::number(height));
}

QString scrollAreaStyle()
{
    return u"QScrollArea, QScrollArea > QWidget > QWidget { background: transparent; border: none; }"_s;
}

QString messageBoxStyle()
{
    ButtonLook button = primaryButton();
    button.fontPixels = 13;
    button.padding = "8px 24px"_L1;
    button.radius = 6;
    button.minimumWidth = 80;
    return u"QMessageBox { background: %1; } QMessageBox QLabel { color: %2; font-size: 13px; } "_s.arg(
               Colour::White, Colour::SlateText) +
           buttonStyle(button);
}

QString menuStyle()
{
    return u"QMenu { background: %1; border: 1px solid %2; border-radius: 8px; padding: 8px 4px; "
           u"min-width: 180px; } "
           u"QMenu::item { padding: 10px 16px; border-radius: 6px; margin: 2px 4px; color: %3; "
           // With its box as wide as the least menu, which does not stretch entries that can be checked.
           u"min-width: 140px; "
           u"background: transparent; } "
           u"QMenu::item:selected { background: %4; color: %5; } "
           u"QMenu::indicator { width: 16px; height: 16px; left: 8px; } "
           u"QMenu::indicator:checked { image: url(:/icons/check.svg); } "
           u"QMenu::separator { height: 1px; background: %2; margin: 6px 8px; }"_s.arg(
               Colour::White, Colour::SlateBorder, Colour::SlateText, Colour::SlateHover, Colour::Slate);
}

} // namespace Zandrove::Theme
