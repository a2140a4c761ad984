// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// Where the parts of a control lie, how large they are, and how controls behave.
#include "skin/style.h"

#include <QStyleOption>

namespace orvalis::skin {

namespace {

constexpr int ScrollBar = 12;
constexpr int ShortestSlider = 24;
constexpr int ComboArrow = 19;
constexpr int FieldFrame = 2;
constexpr int CaptionInset = 9;
constexpr int Mark = 14;
constexpr int MenuMargin = 3;

QRect scrollBarRect(const QStyleOptionSlider& bar, QStyle::SubControl part) {
    const bool upright = bar.orientation == Qt::Vertical;
    const int length = upright ? bar.rect.height() : bar.rect.width();
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    int slider = length;
    if (range > 0) {
        const qint64 page = qMax(1, bar.pageStep);
        slider = int(qMax<qint64>(length * page / (range + page), ShortestSlider));
        slider = qMin(slider, length);
    }
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - slider, bar.upsideDown);
    int from = 0;
    int size = length;
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        from = start;
        size = slider;
        break;
    case QStyle::SC_ScrollBarSubPage:
        size = start;
        break;
    case QStyle::SC_ScrollBarAddPage:
        from = start + slider;
        size = length - from;
        break;
    case QStyle::SC_ScrollBarGroove:
        break;
    default:
        return {};
    }
    const QRect rect =
        upright ? QRect(0, from, bar.rect.width(), size) : QRect(from, 0, size, bar.rect.height());
    return QStyle::visualRect(bar.direction, bar.rect, rect.translated(bar.rect.topLeft()));
}

} // namespace

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl part, const QWidget* widget) const {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar)
        return scrollBarRect(*bar, part);
    if (control == CC_ComboBox) {
        const QRect whole = option->rect;
        const QRect arrow = whole.adjusted(whole.width() - ComboArrow, 0, 0, 0);
        if (part == SC_ComboBoxArrow)
            return visualRect(option->direction, whole, arrow);
        if (part == SC_ComboBoxEditField)
            return visualRect(option->direction, whole,
                              whole.adjusted(FieldFrame, FieldFrame, -ComboArrow, -FieldFrame));
    }
    if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        group && control == CC_GroupBox && part == SC_GroupBoxLabel) {
        const QSize text = group->fontMetrics.size(Qt::TextShowMnemonic, group->text) + QSize(2, 0);
        return visualRect(group->direction, group->rect,
                          QRect(group->rect.topLeft() + QPoint(CaptionInset, 0), text));
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
    switch (metric) {
    case PM_ScrollBarExtent:
        return ScrollBar;
    case PM_ScrollBarSliderMin:
        return ShortestSlider;
    case PM_ScrollView_ScrollBarSpacing:
        return 0;
    case PM_DefaultFrameWidth:
        return FieldFrame;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return Mark;
    case PM_MenuVMargin:
        return MenuMargin;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* result) const {
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ComboBox_Popup:
    case SH_EtchDisabledText:
        return 0;
    case SH_LineEdit_PasswordCharacter:
        return u'*';
    default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
}

} // namespace orvalis::skin
