// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/style.h"

#include "skin/calendar_look.h"
#include "skin/faces.h"
#include "skin/palette.h"
#include "skin/skin.h"
#include "skin/type.h"
#include "skin/window_palette.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>
#include <QToolButton>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace orvalis::skin {

namespace {

/// The room that Fusion keeps beside the words of a menu for pictures and ticks, in logical pixels.
constexpr int SignColumn = 18;

QColor shade(QRgb rgb) {
    return QColor::fromRgba(rgb);
}

// What lies behind is covered, also where it is paper with writing on it.
void layAsSheet(QAbstractScrollArea& area) {
    QPalette palette = area.palette();
    palette.setColor(QPalette::Base, shade(colour::Paper));
    palette.setColor(QPalette::Window, shade(colour::Paper));
    area.setPalette(palette);
    area.setFrameShape(QFrame::StyledPanel);
    area.setAutoFillBackground(true);
    area.viewport()->setAutoFillBackground(true);
}

// The text and the rest of the widget show what lies behind.
void layOnPaper(QWidget* widget) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Window, Qt::transparent);
    widget->setPalette(palette);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) {
        area->setFrameShape(QFrame::NoFrame);
        area->setAutoFillBackground(false);
        area->viewport()->setAutoFillBackground(false);
    } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->setFrame(false);
    }
}

void layOnGlass(QWidget* widget) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, shade(colour::GlassText));
    widget->setPalette(palette);
}

/// Whether no entry of the menu has a picture or a tick.
bool hasNoSigns(const QStyleOptionMenuItem& item) {
    return !item.menuHasCheckableItems && item.maxIconWidth == 0 && item.icon.isNull();
}

void drawMenuItem(const QStyle* base, const QStyleOptionMenuItem& item, QPainter* painter,
                  const QWidget* widget) {
    QStyleOptionMenuItem ours(item);
    ours.palette.setColor(QPalette::Highlight, shade(colour::Teal));
    ours.palette.setColor(QPalette::HighlightedText, Qt::white);
    const bool isHeading = item.menuItemType == QStyleOptionMenuItem::Separator;
    if (hasNoSigns(item) && !isHeading)
        ours.rect.adjust(-SignColumn, 0, 0, 0);
    base->drawControl(QStyle::CE_MenuItem, &ours, painter, widget);
}

} // namespace

Style::Style()
    : QProxyStyle(u"fusion"_s) {}

QPalette Style::standardPalette() const {
    return windowPalette();
}

void Style::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    // A field has another edge under the pointer and is to hear that the pointer left.
    if (qobject_cast<QLineEdit*>(widget))
        widget->setAttribute(Qt::WA_Hover);
    const QVariant surface = widget->property("skinSurface");
    if (surface == u"paper"_s)
        layOnPaper(widget);
    else if (surface == u"glass"_s)
        layOnGlass(widget);
    else if (auto* area = qobject_cast<QAbstractScrollArea*>(widget); area && surface == u"sheet"_s)
        layAsSheet(*area);
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
    case PE_PanelScrollAreaCorner: // where two scroll bars meet, the page goes on
        return;
    case PE_FrameFocusRect:
        if (state.testFlag(State_KeyboardFocusChange)) {
            // A small tool has no room for a ring inside its edge.
            const bool isTool = qobject_cast<const QToolButton*>(widget) != nullptr;
            faces::focus(*painter, isTool ? widget->rect() : option->rect);
        }
        return;
    case PE_PanelTipLabel:
        // Filled twice, as a line of one pixel would fall between the pixels of odd scales.
        painter->fillRect(option->rect, shade(colour::Line));
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
        faces::scrollBar(*painter, *bar, subControlRect(control, bar, SC_ScrollBarSlider, widget));
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

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (item && type == CT_MenuItem && hasNoSigns(*item))
        size.rwidth() -= SignColumn;
    return size;
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
    QApplication::setStyle(new Style);
    QApplication::setPalette(windowPalette());
    QApplication::setFont(font(points::Body));
    QToolTip::setPalette(windowPalette());
    QToolTip::setFont(font(points::Body));
    application.setWindowIcon(icon(u"orvalis"));
}

} // namespace orvalis::skin
