// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/gg_command.h"
#include "widgets/property_bag.h"
#include "widgets/tool_tip_window.h"

#include <QApplication>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

Qt::CursorShape cursorOf(qint16 pointer) {
    switch (pointer) {
    case 2:
        return Qt::CrossCursor;
    case 3:
        return Qt::IBeamCursor;
    case 5:
    case 15:
        return Qt::SizeAllCursor;
    case 6:
        return Qt::SizeBDiagCursor;
    case 7:
        return Qt::SizeVerCursor;
    case 8:
        return Qt::SizeFDiagCursor;
    case 9:
        return Qt::SizeHorCursor;
    case 10:
        return Qt::UpArrowCursor;
    case 11:
        return Qt::WaitCursor;
    case 12:
        return Qt::ForbiddenCursor;
    case 13:
        return Qt::BusyCursor;
    case 14:
        return Qt::WhatsThisCursor;
    default:
        return Qt::ArrowCursor;
    }
}

} // namespace

void GGCommand::mark(const QString& name) {
    emit PropertyChanged(name);
}

void GGCommand::markAndRepaint(const QString& name) {
    repaintLook();
    mark(name);
}

void GGCommand::setCaption(const QString& caption) {
    m_caption = caption;
    nameForAssistivePrograms();
    markAndRepaint(u"Caption"_s);
}

void GGCommand::setCaptionAlignment(int alignment) {
    m_captionAlignment = alignment;
    markAndRepaint(u"CaptionAlignment"_s);
}

void GGCommand::setCaptionXOffset(int pixels) {
    m_captionXOffset = pixels;
    markAndRepaint(u"CaptionXOffset"_s);
}

void GGCommand::setCaptionYOffset(int pixels) {
    m_captionYOffset = pixels;
    markAndRepaint(u"CaptionYOffset"_s);
}

void GGCommand::setUseHoverProperties(bool use) {
    m_useHoverProperties = use;
    markAndRepaint(u"UseHoverProperties"_s);
}

void GGCommand::setFontBoldOnHover(bool bold) {
    m_fontBoldOnHover = bold;
    mark(u"FontBoldOnHover"_s);
}

void GGCommand::setFontColorOnHover(ColourValue colour) {
    m_fontColorOnHover = colour;
    mark(u"FontColorOnHover"_s);
}

void GGCommand::setBackColor(ColourValue colour) {
    m_backColor = colour;
    markAndRepaint(u"BackColor"_s);
}

void GGCommand::setForeColor(ColourValue colour) {
    m_foreColor = colour;
    markAndRepaint(u"ForeColor"_s);
}

void GGCommand::setFont(const QFont& newFont) {
    QWidget::setFont(newFont);
    markAndRepaint(u"Font"_s);
}

void GGCommand::setPicture(const PictureSource& picture) {
    m_picture = picture;
    markAndRepaint(u"Picture"_s);
}

void GGCommand::setPictureAlignment(int alignment) {
    m_pictureAlignment = alignment;
    markAndRepaint(u"PictureAlignment"_s);
}

void GGCommand::setPictureXOffset(int pixels) {
    m_pictureXOffset = pixels;
    markAndRepaint(u"PictureXOffset"_s);
}

void GGCommand::setPictureYOffset(int pixels) {
    m_pictureYOffset = pixels;
    markAndRepaint(u"PictureYOffset"_s);
}

void GGCommand::setAlwaysShowBorder(bool always) {
    m_alwaysShowBorder = always;
    PaintBorder(m_Hover ? m_BorderState : 0);
    mark(u"AlwaysShowBorder"_s);
}

void GGCommand::setToolTip(const QString& text) {
    QWidget::setToolTip(text);
    mark(u"ToolTip"_s);
}

void GGCommand::setToolTipTitle(const QString& title) {
    m_toolTipTitle = title;
    mark(u"ToolTipTitle"_s);
}

void GGCommand::setToolTipBackColor(ColourValue colour) {
    m_toolTipBackColor = colour;
    mark(u"ToolTipBackColor"_s);
}

void GGCommand::setToolTipForeColor(ColourValue colour) {
    m_toolTipForeColor = colour;
    mark(u"ToolTipForeColor"_s);
}

void GGCommand::setToolTipIcon(int icon) {
    m_toolTipIcon = icon;
    mark(u"ToolTipIcon"_s);
}

void GGCommand::setToolTipStyle(int style) {
    m_toolTipStyle = style;
    mark(u"ToolTipStyle"_s);
}

void GGCommand::setToolTipCentered(bool centered) {
    m_toolTipCentered = centered;
    mark(u"ToolTipCentered"_s);
}

void GGCommand::setBorder3DStyle(int style) {
    m_border3DStyle = style;
    markAndRepaint(u"Border3DStyle"_s);
}

void GGCommand::setGradientOrientation(int orientation) {
    if (m_gradientOrientation != orientation) {
        m_gradientOrientation = orientation;
        markAndRepaint(u"GradientOrientation"_s);
    }
}

void GGCommand::setUseGradientFill(bool use) {
    m_useGradientFill = use;
    markAndRepaint(u"UseGradientFill"_s);
}

void GGCommand::setGradientFromColor(ColourValue colour) {
    if (m_gradientFromColor != colour) {
        m_gradientFromColor = colour;
        markAndRepaint(u"GradientFromColor"_s);
    }
}

void GGCommand::setGradientToColor(ColourValue colour) {
    m_gradientToColor = colour;
    markAndRepaint(u"GradientToColor"_s);
}

void GGCommand::setGradientInverseOnPress(bool inverse) {
    m_gradientInverseOnPress = inverse;
    markAndRepaint(u"GradientInverseOnPress"_s);
}

void GGCommand::setMousePointer(qint16 pointer) {
    takeMousePointer(pointer);
    mark(u"MousePointer"_s);
}

void GGCommand::takeMousePointer(qint16 pointer) {
    m_mousePointer = pointer;
    if (pointer == 0)
        unsetCursor();
    else
        setCursor(cursorOf(pointer));
}

void GGCommand::setEnabled(bool enabled) {
    QWidget::setEnabled(enabled);
    mark(u"Enabled"_s);
}

void GGCommand::WriteProperties(PropertyBag& bag) const {
    const QWidget* container = parentWidget();
    const QFont ambient = container ? container->font() : QApplication::font();
    bag.WriteProperty(u"Caption"_s, Caption(), objectName());
    bag.WriteProperty(u"CaptionAlignment"_s, m_captionAlignment, 4);
    bag.WriteProperty(u"CaptionXOffset"_s, m_captionXOffset, 0);
    bag.WriteProperty(u"CaptionYOffset"_s, m_captionYOffset, 0);
    bag.WriteProperty(u"UseHoverProperties"_s, m_useHoverProperties, true);
    bag.WriteProperty(u"FontBoldOnHover"_s, m_fontBoldOnHover, false);
    bag.WriteProperty(u"FontColorOnHover"_s, m_fontColorOnHover, 0xFF0000U);
    bag.WriteProperty(u"BackColor"_s, m_backColor, ButtonFaceColour);
    bag.WriteProperty(u"ForeColor"_s, m_foreColor, ButtonTextColour);
    bag.WriteProperty(u"Font"_s, font(), ambient);
    bag.WriteProperty(u"Picture"_s, QVariant::fromValue(m_picture),
                      QVariant::fromValue(PictureSource()));
    bag.WriteProperty(u"PictureAlignment"_s, m_pictureAlignment, 1);
    bag.WriteProperty(u"PictureXOffset"_s, m_pictureXOffset, 0);
    bag.WriteProperty(u"PictureYOffset"_s, m_pictureYOffset, 0);
    bag.WriteProperty(u"AlwaysShowBorder"_s, m_alwaysShowBorder, false);
    bag.WriteProperty(u"ToolTip"_s, ToolTip(), QString());
    bag.WriteProperty(u"ToolTipTitle"_s, m_toolTipTitle, QString());
    bag.WriteProperty(u"ToolTipBackColor"_s, m_toolTipBackColor, ToolTipBackgroundColour);
    bag.WriteProperty(u"ToolTipForeColor"_s, m_toolTipForeColor, ToolTipTextColour);
    bag.WriteProperty(u"ToolTipIcon"_s, m_toolTipIcon, 0);
    bag.WriteProperty(u"ToolTipStyle"_s, m_toolTipStyle, 0);
    bag.WriteProperty(u"Border3DStyle"_s, m_border3DStyle, 0);
    bag.WriteProperty(u"GradientOrientation"_s, m_gradientOrientation, 0);
    bag.WriteProperty(u"UseGradientFill"_s, m_useGradientFill, true);
    bag.WriteProperty(u"GradientFromColor"_s, m_gradientFromColor, Highlight3DColour);
    bag.WriteProperty(u"GradientToColor"_s, m_gradientToColor, ButtonShadowColour);
    bag.WriteProperty(u"GradientInverseOnPress"_s, m_gradientInverseOnPress, true);
    bag.WriteProperty(u"MousePointer"_s, QVariant::fromValue(m_mousePointer),
                      QVariant::fromValue(qint16(0)));
    bag.WriteProperty(u"Enabled"_s, Enabled(), true);
}

void GGCommand::ReadProperties(const PropertyBag& bag) {
    const auto number = [&](const QString& name, int defaultValue) {
        return bag.ReadProperty(name, defaultValue).toInt();
    };
    const auto flag = [&](const QString& name, bool defaultValue) {
        return bag.ReadProperty(name, defaultValue).toBool();
    };
    const auto text = [&](const QString& name) {
        return bag.ReadProperty(name, QString()).toString();
    };
    const auto colour = [&](const QString& name, ColourValue defaultValue) {
        return ColourValue(bag.ReadProperty(name, defaultValue).toUInt());
    };
    m_caption = bag.ReadProperty(u"Caption"_s, objectName()).toString();
    m_captionAlignment = number(u"CaptionAlignment"_s, 4);
    m_captionXOffset = number(u"CaptionXOffset"_s, 0);
    m_captionYOffset = number(u"CaptionYOffset"_s, 0);
    m_useHoverProperties = flag(u"UseHoverProperties"_s, true);
    m_fontBoldOnHover = flag(u"FontBoldOnHover"_s, false);
    m_fontColorOnHover = colour(u"FontColorOnHover"_s, 0xFF0000);
    m_backColor = colour(u"BackColor"_s, ButtonFaceColour);
    m_foreColor = colour(u"ForeColor"_s, ButtonTextColour);
    QWidget::setFont(bag.ReadProperty(u"Font"_s, QFont()).value<QFont>());
    m_picture = bag.ReadProperty(u"Picture"_s, {}).value<PictureSource>();
    m_pictureAlignment = number(u"PictureAlignment"_s, 1);
    m_pictureXOffset = number(u"PictureXOffset"_s, 0);
    m_pictureYOffset = number(u"PictureYOffset"_s, 0);
    m_alwaysShowBorder = flag(u"AlwaysShowBorder"_s, false);
    QWidget::setToolTip(text(u"ToolTip"_s));
    m_toolTipTitle = text(u"ToolTipTitle"_s);
    m_toolTipBackColor = colour(u"ToolTipBackColor"_s, ToolTipBackgroundColour);
    m_toolTipForeColor = colour(u"ToolTipForeColor"_s, ToolTipTextColour);
    m_toolTipIcon = number(u"ToolTipIcon"_s, 0);
    m_toolTipStyle = number(u"ToolTipStyle"_s, 0);
    m_border3DStyle = number(u"Border3DStyle"_s, 0);
    m_gradientOrientation = number(u"GradientOrientation"_s, 0);
    m_useGradientFill = flag(u"UseGradientFill"_s, true);
    m_gradientFromColor = colour(u"GradientFromColor"_s, Highlight3DColour);
    m_gradientToColor = colour(u"GradientToColor"_s, ButtonShadowColour);
    m_gradientInverseOnPress = flag(u"GradientInverseOnPress"_s, true);
    takeMousePointer(bag.ReadProperty(u"MousePointer"_s, 0).value<qint16>());
    QWidget::setEnabled(flag(u"Enabled"_s, true));
    nameForAssistivePrograms();
    repaintLook();
}

} // namespace orvalis
