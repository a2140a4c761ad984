// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/style.h"

#include "skin/calendar_look.h"
#include "skin/faces.h"
#include "skin/palette.h"
#include "skin/skin.h"
#include "skin/type.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace orvalis::skin {

namespace {

constexpr int kScrollBar = 12;
constexpr int kShortestSlider = 24;
constexpr int kComboArrow = 19;
constexpr int kFieldFrame = 2;
constexpr int kCaptionInset = 9;
constexpr int kMark = 14;

QColor of(QRgb rgb) {
    return QColor::fromRgba(rgb);
}

// The text and the rest of the widget show what lies behind.
void layOnPaper(QWidget* widget) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Window, Qt::transparent);
    widget->setPalette(palette);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) {
        area->setFrameShape(QFrame::NoFrame);
        area->viewport()->setAutoFillBackground(false);
    } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->setFrame(false);
    }
}

void layOnGlass(QWidget* widget) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, of(colour::GlassText));
    widget->setPalette(palette);
}

QRect scrollBarRect(const QStyleOptionSlider& bar, QStyle::SubControl part) {
    const bool upright = bar.orientation == Qt::Vertical;
    const int length = upright ? bar.rect.height() : bar.rect.width();
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    int slider = length;
    if (range > 0) {
        const qint64 page = qMax(1, bar.pageStep);
        slider = int(qMax<qint64>(length * page / (range + page), kShortestSlider));
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

void drawMenuItem(const QStyle* base, const QStyleOptionMenuItem& item, QPainter* painter,
                  const QWidget* widget) {
    QStyleOptionMenuItem ours(item);
    ours.palette.setColor(QPalette::Highlight, of(colour::Teal));
    ours.palette.setColor(QPalette::HighlightedText, Qt::white);
    base->drawControl(QStyle::CE_MenuItem, &ours, painter, widget);
}

} // namespace

Style::Style()
    : QProxyStyle(u"fusion"_s) {}

QPalette windowPalette() {
    QPalette palette(of(0xFFDCEAEF), of(0xFFEFF6F8));
    palette.setColor(QPalette::Window, of(0xFFEFF6F8));
    palette.setColor(QPalette::WindowText, of(colour::Ink));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, of(0xFFF4F8F1));
    palette.setColor(QPalette::Text, of(colour::Text));
    palette.setColor(QPalette::PlaceholderText, of(colour::Quiet));
    palette.setColor(QPalette::Button, of(0xFFDCEAEF));
    palette.setColor(QPalette::ButtonText, of(colour::Ink));
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, of(colour::Sage));
    palette.setColor(QPalette::HighlightedText, of(0xFF14261B));
    palette.setColor(QPalette::Link, of(0xFF00747A));
    palette.setColor(QPalette::LinkVisited, of(colour::LabelInk));
    palette.setColor(QPalette::ToolTipBase, of(0xFFFBFDF6));
    palette.setColor(QPalette::ToolTipText, of(colour::Ink));
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, of(0xFFE4EFF3));
    palette.setColor(QPalette::Mid, of(0xFFB7CED5));
    palette.setColor(QPalette::Dark, of(colour::Line));
    palette.setColor(QPalette::Shadow, of(0xFF4E8E9E));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, of(colour::DisabledText));
    palette.setColor(QPalette::Disabled, QPalette::Base, of(0xFFF1F3EF));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, of(colour::LineSoft));
    return palette;
}

QPalette Style::standardPalette() const {
    return windowPalette();
}

void Style::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    const QVariant surface = widget->property("skinSurface");
    if (surface == u"paper"_s)
        layOnPaper(widget);
    else if (surface == u"glass"_s)
        layOnGlass(widget);
    if (auto* calendar = qobject_cast<QCalendarWidget*>(widget))
        dressCalendar(*calendar);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    const QStyle::State state = option->state;
    switch (element) {
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame && frame->lineWidth > 0)
            faces::field(*painter, option->rect, option->palette.brush(QPalette::Base), state);
        return;
    case PE_FrameLineEdit:
    case PE_Frame:
        faces::field(*painter, option->rect, Qt::NoBrush, state & ~QStyle::State_MouseOver);
        return;
    case PE_PanelButtonTool:
        faces::toolButton(*painter, option->rect, state);
        return;
    case PE_IndicatorCheckBox:
        faces::checkBox(*painter, option->rect, state);
        return;
    case PE_IndicatorRadioButton:
        faces::option(*painter, option->rect, state);
        return;
    case PE_IndicatorArrowDown:
        faces::arrow(*painter, option->rect, Qt::DownArrow, state);
        return;
    case PE_IndicatorArrowUp:
        faces::arrow(*painter, option->rect, Qt::UpArrow, state);
        return;
    case PE_IndicatorArrowLeft:
        faces::arrow(*painter, option->rect, Qt::LeftArrow, state);
        return;
    case PE_IndicatorArrowRight:
        faces::arrow(*painter, option->rect, Qt::RightArrow, state);
        return;
    case PE_IndicatorBranch:
        if (state.testFlag(State_Children))
            faces::arrow(*painter, option->rect,
                         state.testFlag(State_Open) ? Qt::DownArrow : Qt::RightArrow, state);
        return;
    case PE_PanelItemViewItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option))
            painter->fillRect(item->rect, item->backgroundBrush);
        faces::item(*painter, option->rect, state);
        return;
    case PE_PanelItemViewRow:
        return;
    case PE_FrameFocusRect:
        if (state.testFlag(State_KeyboardFocusChange))
            faces::focus(*painter, option->rect);
        return;
    case PE_PanelTipLabel:
        // Filled twice, as a line of one pixel would fall between the pixels of odd scales.
        painter->fillRect(option->rect, of(colour::Line));
        painter->fillRect(option->rect.adjusted(1, 1, -1, -1),
                          option->palette.brush(QPalette::ToolTipBase));
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    switch (element) {
    case CE_PushButtonBevel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            faces::button(*painter, button->rect, button->state,
                          button->features.testFlag(QStyleOptionButton::DefaultButton));
            return;
        }
        break;
    case CE_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            drawMenuItem(baseStyle(), *item, painter, widget);
            return;
        }
        break;
    case CE_ProgressBarGroove:
        faces::progressGroove(*painter, option->rect);
        return;
    case CE_ProgressBarContents:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option)) {
            faces::progressFill(*painter, *bar);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        combo && control == CC_ComboBox) {
        faces::combo(*painter, *combo, subControlRect(control, combo, SC_ComboBoxArrow, widget));
        return;
    }
    if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        group && control == CC_GroupBox && !group->subControls.testFlag(SC_GroupBoxCheckBox)) {
        faces::group(*painter, *group, subControlRect(control, group, SC_GroupBoxLabel, widget));
        return;
    }
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar) {
        faces::scrollBar(*painter, *bar, scrollBarRect(*bar, SC_ScrollBarSlider));
        return;
    }
    const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(option);
    if (tool && widget && widget->objectName() == u"qt_calendar_monthbutton"_s) {
        // The name of the month is pressed as it stands; an arrow in its corner would crowd it.
        QStyleOptionToolButton plain(*tool);
        plain.features.setFlag(QStyleOptionToolButton::HasMenu, false);
        QProxyStyle::drawComplexControl(control, &plain, painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl part, const QWidget* widget) const {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar)
        return scrollBarRect(*bar, part);
    if (control == CC_ComboBox) {
        const QRect whole = option->rect;
        const QRect arrow = whole.adjusted(whole.width() - kComboArrow, 0, 0, 0);
        if (part == SC_ComboBoxArrow)
            return visualRect(option->direction, whole, arrow);
        if (part == SC_ComboBoxEditField)
            return visualRect(option->direction, whole,
                              whole.adjusted(kFieldFrame, kFieldFrame, -kComboArrow, -kFieldFrame));
    }
    if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        group && control == CC_GroupBox && part == SC_GroupBoxLabel) {
        const QSize text = group->fontMetrics.size(Qt::TextShowMnemonic, group->text) + QSize(2, 0);
        return visualRect(group->direction, group->rect,
                          QRect(group->rect.topLeft() + QPoint(kCaptionInset, 0), text));
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
    switch (metric) {
    case PM_ScrollBarExtent:
        return kScrollBar;
    case PM_ScrollBarSliderMin:
        return kShortestSlider;
    case PM_ScrollView_ScrollBarSpacing:
        return 0;
    case PM_DefaultFrameWidth:
        return kFieldFrame;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return kMark;
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
    default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
}

QIcon Style::standardIcon(StandardPixmap picture, const QStyleOption* option,
                          const QWidget* widget) const {
    switch (picture) {
    case SP_MessageBoxInformation:
        return icon(u"box_information");
    case SP_MessageBoxWarning:
        return icon(u"box_warning");
    case SP_MessageBoxCritical:
        return icon(u"box_stop");
    case SP_MessageBoxQuestion:
        return icon(u"box_question");
    case SP_TitleBarMenuButton:
        return icon(u"orvalis");
    default:
        return QProxyStyle::standardIcon(picture, option, widget);
    }
}

void dress(QApplication& application) {
    constexpr int kDialogPoints = 9;
    QApplication::setStyle(new Style);
    QApplication::setPalette(windowPalette());
    QApplication::setFont(font(kDialogPoints));
    QToolTip::setPalette(windowPalette());
    QToolTip::setFont(font(kDialogPoints));
    application.setWindowIcon(icon(u"orvalis"));
}

} // namespace orvalis::skin
