// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/Style.h"

#include "app/Appearance.h"
#include "app/painting.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace quillmark::app {

using namespace Qt::StringLiterals;
using design::Role;

namespace {

constexpr int controlHeight = 30;
constexpr int fieldInset = 6; ///< of a field's text, beyond what Fusion leaves
constexpr int indicatorSize = 18;
constexpr qreal indicatorRadius = 4.5;

QColor groundOf(const QStyleOption &option, const QColor &ground)
{
    const auto &appearance = Appearance::current();
    if (!(option.state & QStyle::State_Enabled))
        return ground;
    if (option.state & QStyle::State_Sunken)
        return over(ground, appearance.color(Role::Text), 0.12);
    return option.state & QStyle::State_MouseOver ? over(ground, appearance.color(Role::Text), 0.08) : ground;
}

bool isDefault(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && button->features & QStyleOptionButton::DefaultButton;
}

bool isFlat(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && button->features & QStyleOptionButton::Flat;
}

bool showsFocus(const QStyleOption &option, const QWidget *widget)
{
    return option.state & QStyle::State_HasFocus && widget && hasKeyboardFocus(*widget);
}

void drawButtonGround(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    const auto &appearance = Appearance::current();
    const QRectF bounds(option.rect);
    painter.save();
    if (!(option.state & QStyle::State_Enabled))
        painter.setOpacity(0.45);
    const bool isOn = option.state & QStyle::State_On;
    if (isDefault(option))
        paintBox(painter, bounds, buttonRadius, groundOf(option, appearance.color(Role::Accent)), {});
    else
        paintBox(painter, bounds, buttonRadius,
                 groundOf(option, appearance.color(isOn ? Role::AccentSoft : Role::Control)),
                 appearance.color(isOn ? Role::Accent : Role::ControlBorder));
    if (showsFocus(option, widget)) {
        paintFocusRing(painter, bounds, buttonRadius);
        if (isDefault(option)) // which is as blue as the ring
            paintBox(painter, bounds.adjusted(2, 2, -2, -2), buttonRadius - 2, {},
                     appearance.color(Role::OnAccent));
    }
    painter.restore();
}

/// A button without a ground of its own, until the pointer or the focus comes.
void drawFlatButton(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    const QRectF bounds(option.rect);
    auto veil = Appearance::current().color(Role::Text);
    veil.setAlphaF(option.state & QStyle::State_Sunken ? 0.12F : 0.08F);
    if (option.state & QStyle::State_Enabled &&
        option.state & (QStyle::State_Sunken | QStyle::State_MouseOver))
        paintBox(painter, bounds, buttonRadius, veil, {});
    if (showsFocus(option, widget))
        paintFocusRing(painter, bounds, buttonRadius);
}

void drawFieldGround(const QStyleOption &option, QPainter &painter)
{
    const auto &appearance = Appearance::current();
    const QRectF bounds(option.rect);
    paintBox(painter, bounds, buttonRadius, appearance.color(Role::Control),
             appearance.color(Role::ControlBorder));
    if (option.state & QStyle::State_HasFocus)
        paintFocusRing(painter, bounds, buttonRadius);
}

void drawIndicator(const QStyleOption &option, QPainter &painter, const QWidget *widget, bool isRadio)
{
    auto &appearance = Appearance::current();
    const QRectF bounds(option.rect);
    const qreal radius = isRadio ? bounds.height() / 2 : indicatorRadius;
    const bool isOn = option.state & (QStyle::State_On | QStyle::State_NoChange);
    painter.save();
    if (!(option.state & QStyle::State_Enabled))
        painter.setOpacity(0.45);
    if (!isOn) {
        paintBox(painter, bounds, radius, groundOf(option, appearance.color(Role::Control)),
                 appearance.color(Role::ControlStrong));
    } else {
        paintBox(painter, bounds, radius, groundOf(option, appearance.color(Role::Accent)), {});
        if (isRadio) {
            const qreal inset = bounds.height() * 0.31;
            paintBox(painter, bounds.adjusted(inset, inset, -inset, -inset), bounds.height(),
                     appearance.color(Role::OnAccent), {});
        } else {
            appearance.paintIcon(painter, bounds.adjusted(2, 2, -2, -2), u"checkmark"_s, Role::OnAccent);
        }
    }
    painter.restore();
    if (showsFocus(option, widget))
        paintFocusRing(painter, bounds.adjusted(-2, -2, 2, 2), radius + 2);
}

/// A thumb without arrows, and no ground: the page goes on below it.
void drawScrollBar(const QStyleOptionSlider &option, QPainter &painter, const QStyle &style,
                   const QWidget *widget)
{
    constexpr qreal inset = 2;
    if (option.maximum <= option.minimum)
        return;
    const QRectF thumb =
        style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, widget);
    const bool isHeld = option.activeSubControls & QStyle::SC_ScrollBarSlider;
    const auto inside = thumb.adjusted(inset, inset, -inset, -inset);
    const auto &appearance = Appearance::current();
    paintBox(painter, inside, std::min(inside.width(), inside.height()) / 2,
             appearance.color(isHeld ? Role::ControlStrong : Role::ControlBorder), {});
}

/// All of it is groove: there are no arrows.
QRect scrollBarPart(const QStyleOptionSlider &option, QStyle::SubControl part)
{
    const bool isVertical = option.orientation == Qt::Vertical;
    const int length = isVertical ? option.rect.height() : option.rect.width();
    constexpr int leastThumb = 32;
    const auto range = static_cast<qint64>(option.maximum) - option.minimum;
    const auto share =
        length * static_cast<qint64>(option.pageStep) / std::max<qint64>(1, range + option.pageStep);
    const int thumb = std::clamp(static_cast<int>(share), std::min(leastThumb, length), length);
    const int begin = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      length - thumb, option.upsideDown);
    const auto stretch = [&](int from, int size) {
        return isVertical ? QRect(option.rect.x(), option.rect.y() + from, option.rect.width(), size)
                          : QRect(option.rect.x() + from, option.rect.y(), size, option.rect.height());
    };
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return stretch(begin, thumb);
    case QStyle::SC_ScrollBarSubPage:
        return stretch(0, begin);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(begin + thumb, length - begin - thumb);
    case QStyle::SC_ScrollBarGroove:
        return option.rect;
    default:
        return {};
    }
}

} // namespace

Style::Style()
    : QProxyStyle(u"Fusion"_s)
{}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        drawButtonGround(*option, *painter, widget);
        return;
    case PE_PanelLineEdit:
        drawFieldGround(*option, *painter);
        return;
    case PE_IndicatorCheckBox:
        drawIndicator(*option, *painter, widget, false);
        return;
    case PE_IndicatorRadioButton:
        drawIndicator(*option, *painter, widget, true);
        return;
    // Drawn with the control itself, and for keys only.
    case PE_FrameFocusRect:
    case PE_FrameDefaultButton:
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const
{
    const bool isColored = isDefault(*option) || isFlat(*option);
    if (element == CE_PushButtonLabel && isColored && option->state & State_Enabled) {
        auto label = *qstyleoption_cast<const QStyleOptionButton *>(option);
        label.palette.setColor(
            QPalette::ButtonText,
            Appearance::current().color(isDefault(*option) ? Role::OnAccent : Role::AccentText));
        QProxyStyle::drawControl(element, &label, painter, widget);
        return;
    }
    if (element == CE_PushButtonBevel && isFlat(*option)) {
        drawFlatButton(*option, *painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider)
        drawScrollBar(*slider, *painter, *this, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                            const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider)
        return visualRect(slider->direction, slider->rect, scrollBarPart(*slider, part));
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
        const auto field = QProxyStyle::subControlRect(control, option, part, widget);
        const bool isMirrored = option->direction == Qt::RightToLeft;
        return isMirrored ? field.adjusted(0, 0, -fieldInset, 0) : field.adjusted(fieldInset, 0, 0, 0);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    const auto &appearance = Appearance::current();
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return appearance.scaled(indicatorSize);
    case PM_ButtonIconSize:
        return appearance.scaled(16);
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 9;
    case PM_ScrollBarExtent:
        return 10;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                              const QWidget *widget) const
{
    auto result = QProxyStyle::sizeFromContents(type, option, size, widget);
    const int height = Appearance::current().scaled(controlHeight);
    switch (type) {
    case CT_PushButton:
        result.setWidth(size.width() + 2 * buttonPadding);
        result.setHeight(std::max(height, size.height() + 8));
        break;
    case CT_ComboBox:
        result.rwidth() += fieldInset;
        [[fallthrough]];
    case CT_LineEdit:
        result.setHeight(std::max(height, result.height()));
        break;
    default:
        break;
    }
    return result;
}

int Style::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                     QStyleHintReturn *data) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_FormLayoutLabelAlignment:
        return Qt::AlignLeft | Qt::AlignVCenter;
    case SH_EtchDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

} // namespace quillmark::app
