// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

class QApplication;

namespace orvalis::skin {

/// Gives the whole program its look: style, palette, font, tool tips and window icon. One call,
/// made once the application object stands and before the first window shows. It draws nothing.
void dress(QApplication& application);

/// The style of the whole program: what Fusion leaves alone (layout, keys, sizes) with faces of our
/// own, all drawn as vectors so that they are sharp at every scale. A style rather than a style
/// sheet: it costs nothing at start-up, and a sheet could show check marks and arrows only as
/// bitmaps.
///
/// The dynamic property "skinSurface" tells what a widget lies on. "paper": a rich text box, list
/// or line that shows the page or sticker behind it, without a frame. "sheet": a rich text box that
/// is a loose sheet over the page and hides what is written there. "glass": a label on the dark
/// glass, in its pale text.
class Style : public QProxyStyle {
public:
    Style();

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    QPalette standardPalette() const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                       const QWidget* widget) const override;
};

} // namespace orvalis::skin
