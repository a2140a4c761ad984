// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/picture_source.h"
#include "controls/pressable.h"
#include "runtime/colour.h"
#include "widgets/gg_face.h"

#include <QPointer>
#include <QWidget>

#include <optional>

namespace orvalis {

class Image;
class PropertyBag;
class ToolTipWindow;

/// The program's own push button: a face of two colours, a caption and a picture on a grid of nine
/// places, an edge that comes up under the pointer and sinks under a press, and a tool tip window
/// of its own. Colours are 0xBBGGRR, or an index of a system colour with the top bit set. All
/// pixels are logical ones.
///
/// A handler of any of its signals may delete the button.
class GGCommand : public QWidget, public Pressable {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(int CaptionAlignment READ CaptionAlignment WRITE setCaptionAlignment)
    Q_PROPERTY(int CaptionXOffset READ CaptionXOffset WRITE setCaptionXOffset)
    Q_PROPERTY(int CaptionYOffset READ CaptionYOffset WRITE setCaptionYOffset)
    Q_PROPERTY(bool UseHoverProperties READ UseHoverProperties WRITE setUseHoverProperties)
    Q_PROPERTY(bool FontBoldOnHover READ FontBoldOnHover WRITE setFontBoldOnHover)
    Q_PROPERTY(quint32 FontColorOnHover READ FontColorOnHover WRITE setFontColorOnHover)
    Q_PROPERTY(quint32 BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(quint32 ForeColor READ ForeColor WRITE setForeColor)
    Q_PROPERTY(QFont Font READ Font WRITE setFont)
    Q_PROPERTY(int PictureAlignment READ PictureAlignment WRITE setPictureAlignment)
    Q_PROPERTY(int PictureXOffset READ PictureXOffset WRITE setPictureXOffset)
    Q_PROPERTY(int PictureYOffset READ PictureYOffset WRITE setPictureYOffset)
    Q_PROPERTY(bool AlwaysShowBorder READ AlwaysShowBorder WRITE setAlwaysShowBorder)
    Q_PROPERTY(QString ToolTip READ ToolTip WRITE setToolTip)
    Q_PROPERTY(QString ToolTipTitle READ ToolTipTitle WRITE setToolTipTitle)
    Q_PROPERTY(quint32 ToolTipBackColor READ ToolTipBackColor WRITE setToolTipBackColor)
    Q_PROPERTY(quint32 ToolTipForeColor READ ToolTipForeColor WRITE setToolTipForeColor)
    Q_PROPERTY(int ToolTipIcon READ ToolTipIcon WRITE setToolTipIcon)
    Q_PROPERTY(int ToolTipStyle READ ToolTipStyle WRITE setToolTipStyle)
    Q_PROPERTY(int Border3DStyle READ Border3DStyle WRITE setBorder3DStyle)
    Q_PROPERTY(int GradientOrientation READ GradientOrientation WRITE setGradientOrientation)
    Q_PROPERTY(bool UseGradientFill READ UseGradientFill WRITE setUseGradientFill)
    Q_PROPERTY(quint32 GradientFromColor READ GradientFromColor WRITE setGradientFromColor)
    Q_PROPERTY(quint32 GradientToColor READ GradientToColor WRITE setGradientToColor)
    Q_PROPERTY(
        bool GradientInverseOnPress READ GradientInverseOnPress WRITE setGradientInverseOnPress)
    Q_PROPERTY(qint16 MousePointer READ MousePointer WRITE setMousePointer)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)

public:
    explicit GGCommand(QWidget* parent = nullptr);
    /// \param name the button's name in its form, also its first caption.
    explicit GGCommand(const QString& name, QWidget* parent = nullptr);
    ~GGCommand() override;

    QString Caption() const { return m_caption.value_or(objectName()); }
    void setCaption(const QString& caption);
    int CaptionAlignment() const { return m_captionAlignment; }
    void setCaptionAlignment(int alignment);
    int CaptionXOffset() const { return m_captionXOffset; }
    void setCaptionXOffset(int pixels);
    int CaptionYOffset() const { return m_captionYOffset; }
    void setCaptionYOffset(int pixels);
    bool UseHoverProperties() const { return m_useHoverProperties; }
    void setUseHoverProperties(bool use);
    bool FontBoldOnHover() const { return m_fontBoldOnHover; }
    void setFontBoldOnHover(bool bold);
    ColourValue FontColorOnHover() const { return m_fontColorOnHover; }
    void setFontColorOnHover(ColourValue colour);
    ColourValue BackColor() const { return m_backColor; }
    void setBackColor(ColourValue colour);
    ColourValue ForeColor() const { return m_foreColor; }
    void setForeColor(ColourValue colour);
    const QFont& Font() const { return font(); }
    void setFont(const QFont& newFont);
    const PictureSource& Picture() const { return m_picture; }
    void setPicture(const PictureSource& picture);
    int PictureAlignment() const { return m_pictureAlignment; }
    void setPictureAlignment(int alignment);
    int PictureXOffset() const { return m_pictureXOffset; }
    void setPictureXOffset(int pixels);
    int PictureYOffset() const { return m_pictureYOffset; }
    void setPictureYOffset(int pixels);
    bool AlwaysShowBorder() const { return m_alwaysShowBorder; }
    void setAlwaysShowBorder(bool always);
    QString ToolTip() const { return toolTip(); }
    void setToolTip(const QString& text);
    QString ToolTipTitle() const { return m_toolTipTitle; }
    void setToolTipTitle(const QString& title);
    ColourValue ToolTipBackColor() const { return m_toolTipBackColor; }
    void setToolTipBackColor(ColourValue colour);
    ColourValue ToolTipForeColor() const { return m_toolTipForeColor; }
    void setToolTipForeColor(ColourValue colour);
    /// 0 none, 1 information, 2 exclamation, 3 error.
    int ToolTipIcon() const { return m_toolTipIcon; }
    void setToolTipIcon(int icon);
    /// 1 a balloon, anything else a rectangle.
    int ToolTipStyle() const { return m_toolTipStyle; }
    void setToolTipStyle(int style);
    int Border3DStyle() const { return m_border3DStyle; }
    void setBorder3DStyle(int style);
    /// 0 from top to bottom, 1 from left to right.
    int GradientOrientation() const { return m_gradientOrientation; }
    void setGradientOrientation(int orientation);
    bool UseGradientFill() const { return m_useGradientFill; }
    void setUseGradientFill(bool use);
    ColourValue GradientFromColor() const { return m_gradientFromColor; }
    void setGradientFromColor(ColourValue colour);
    ColourValue GradientToColor() const { return m_gradientToColor; }
    void setGradientToColor(ColourValue colour);
    bool GradientInverseOnPress() const { return m_gradientInverseOnPress; }
    void setGradientInverseOnPress(bool inverse);
    qint16 MousePointer() const { return m_mousePointer; }
    void setMousePointer(qint16 pointer);
    bool Enabled() const { return isEnabledTo(parentWidget()); }
    void setEnabled(bool enabled);

    /// Not stored: whether the tool tip stands centred under the button.
    bool ToolTipCentered() const { return m_toolTipCentered; }
    void setToolTipCentered(bool centered);
    /// Not stored: while true, leaving the button does not end the hover.
    void setDontReleaseCapture(bool dont);
    /// True raises Click; false does nothing.
    void setValue(bool value);
    WId hWnd() const { return effectiveWinId(); }

    /// Stores every property that differs from its default, in their fixed order.
    void WriteProperties(PropertyBag& bag) const;
    /// Takes every property from the bag, or its default, and lays the button out.
    void ReadProperties(const PropertyBag& bag);

    /// The extended window style that Border3DStyle last set.
    quint32 exStyle() const { return m_exStyle; }
    /// The width of the frame that exStyle() puts round the face, in pixels.
    int frameWidth() const { return frameWidthOf(m_exStyle); }
    /// Width and height of the face, inside the frame.
    int ScaleWidth() const { return width() - 2 * frameWidth(); }
    int ScaleHeight() const { return height() - 2 * frameWidth(); }
    /// The tool tip window while one exists.
    ToolTipWindow* toolTipWindow() const;

    void press() override;
    bool isPressable() const override { return true; }
    QString spokenName() const override;

    QSize sizeHint() const override;

    /// The edge last drawn: 0 none, 1 raised, 2 sunken.
    int borderState() const { return m_BorderState; }

signals:
    void Click();
    void DblClick();
    void MouseEnter();
    void MouseExit();
    /// \a Button: 1 left, 2 right, 4 middle; \a Shift: 1 shift, 2 control, 4 alt, added up; the
    /// point in logical pixels of the face, or of the picture for an event on it.
    void MouseDown(int Button, int Shift, float X, float Y);
    void MouseMove(int Button, int Shift, float X, float Y);
    void MouseUp(int Button, int Shift, float X, float Y);
    /// A property was set and is to be stored with the form.
    void PropertyChanged(const QString& name);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// Tells that a property is to be stored.
    void mark(const QString& name);
    /// The same for a property that shows.
    void markAndRepaint(const QString& name);

    void CalcLayout(bool hoverLook);
    void PaintFace(int Offset, bool Inverse, bool hoverLook);
    void PaintBorder(int State);
    /// Lays the button out and paints face and edge anew, in the look that it has.
    void repaintLook();
    void applyBorder3DStyle();
    void takeMousePointer(qint16 pointer);
    QFont lookFont(bool hoverLook) const;
    void nameForAssistivePrograms();

    void handleMouseDown(int Button, int Shift, const QPointF& point);
    void handleMouseMove(int Button, int Shift, const QPointF& point, const QPointF& facePoint);
    void handleMouseUp(int Button, int Shift, const QPointF& point);
    bool isOver(const QPointF& facePoint) const;
    void beginHover();
    void endHover();
    /// The pointer is gone, or can't be followed any more.
    void pointerLeft();
    void createToolTip();
    void endToolTip();
    QPointF facePoint(const QPointF& point) const;

    std::optional<QString> m_caption;
    int m_captionAlignment = 4;
    int m_captionXOffset = 0;
    int m_captionYOffset = 0;
    bool m_useHoverProperties = true;
    bool m_fontBoldOnHover = false;
    ColourValue m_fontColorOnHover = 0xFF0000;
    ColourValue m_backColor = ButtonFaceColour;
    ColourValue m_foreColor = ButtonTextColour;
    PictureSource m_picture;
    int m_pictureAlignment = 1;
    int m_pictureXOffset = 0;
    int m_pictureYOffset = 0;
    bool m_alwaysShowBorder = false;
    QString m_toolTipTitle;
    ColourValue m_toolTipBackColor = ToolTipBackgroundColour;
    ColourValue m_toolTipForeColor = ToolTipTextColour;
    int m_toolTipIcon = 0;
    int m_toolTipStyle = 0;
    int m_border3DStyle = 0;
    int m_gradientOrientation = 0;
    bool m_useGradientFill = true;
    ColourValue m_gradientFromColor = Highlight3DColour;
    ColourValue m_gradientToColor = ButtonShadowColour;
    bool m_gradientInverseOnPress = true;
    qint16 m_mousePointer = 0;
    bool m_toolTipCentered = false;
    bool m_dontReleaseCapture = false;

    bool m_Hover = false;
    bool m_MouseDown = false;
    bool m_Pressed = false;
    int m_BorderState = 0;
    quint8 m_Offset = 0;
    QPoint m_captionAt;
    QPoint m_pictureAt;
    quint32 m_exStyle = 0;
    QPointer<ToolTipWindow> m_ToolTipWnd;

    Image* m_imgPicture;
    /// What stands painted: the face as of the last PaintFace, and the edge drawn over it since.
    GGFace m_face;
    std::optional<GGEdge> m_edge;
    bool m_inverse = false;
    bool m_hoverLook = false;
    /// The next paint event is of our own asking. Any other draws the edge again.
    bool m_ownPaint = false;
    bool m_pointerInside = false;
};

} // namespace orvalis
