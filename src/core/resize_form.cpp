// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/resize_form.h"

#include "controls/image.h"
#include "controls/rich_text_box.h"
#include "controls/shapes.h"
#include "controls/twips_geometry.h"
#include "core/layout_rule.h"
#include "runtime/twips.h"
#include "widgets/gg_command.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>
#include <QToolBar>

#include <array>
#include <utility>
#include <vector>

namespace orvalis {

namespace {

/// The kinds of control in the order in which a control is tried against them.
enum class Kind {
    TextBox,
    Shape,
    RichTextBox,
    MonthView,
    Line,
    Frame,
    OptionButton,
    CheckBox,
    CommandButton,
    Label,
    ComboBox,
    ProgressBar,
    GGCommand,
    Toolbar,
    PictureBox,
    Image,
    Other,
};

template <class... Classes>
bool isAnyOf(const QWidget& widget) {
    return (... || (qobject_cast<const Classes*>(&widget) != nullptr));
}

bool isPlain(const QWidget& widget, const QMetaObject& meta) {
    return widget.metaObject() == &meta;
}

Kind kindOf(const QWidget& widget) {
    // Qualified: the toolkit and the house have classes of the same short name.
    const bool isImage = isAnyOf<orvalis::Image>(widget);
    const std::array<std::pair<Kind, bool>, 16> table{{
        {Kind::TextBox, isAnyOf<QLineEdit, QPlainTextEdit>(widget)},
        {Kind::Shape, isAnyOf<orvalis::Shape>(widget)},
        {Kind::RichTextBox, isAnyOf<QTextEdit>(widget)},
        {Kind::MonthView, isAnyOf<QCalendarWidget>(widget)},
        {Kind::Line, isAnyOf<orvalis::Line>(widget)},
        {Kind::Frame, isAnyOf<QGroupBox>(widget) || isPlain(widget, QFrame::staticMetaObject)},
        {Kind::OptionButton, isAnyOf<QRadioButton>(widget)},
        {Kind::CheckBox, isAnyOf<QCheckBox>(widget)},
        {Kind::CommandButton, isAnyOf<QPushButton>(widget)},
        {Kind::Label, isAnyOf<QLabel>(widget) && !isImage},
        {Kind::ComboBox, isAnyOf<QComboBox>(widget)},
        {Kind::ProgressBar, isAnyOf<QProgressBar>(widget)},
        {Kind::GGCommand, isAnyOf<orvalis::GGCommand>(widget)},
        {Kind::Toolbar, isAnyOf<QToolBar>(widget)},
        {Kind::PictureBox, isPlain(widget, QWidget::staticMetaObject)},
        {Kind::Image, isImage},
    }};
    for (const auto& [kind, fits] : table)
        if (fits)
            return kind;
    return Kind::Other;
}

/// A control to scale, with the point size that it had before anything was scaled: a control that
/// takes its font from its container must not be scaled with it and then once more.
struct Control {
    QWidget* widget;
    Kind kind;
    double pointSize;
};

double pointSizeOf(const QFont& font) {
    return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

void collect(const QWidget& container, std::vector<Control>& controls) {
    for (QObject* child : container.children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow())
            continue;
        const Kind kind = kindOf(*widget);
        if (!widget->objectName().isEmpty())
            controls.push_back({widget, kind, pointSizeOf(widget->font())});
        if (kind == Kind::Frame || kind == Kind::PictureBox)
            collect(*widget, controls);
    }
}

/// The name that the elements of a control array share.
QString nameOf(const QWidget& widget) {
    return widget.objectName().section(u'(', 0, 0);
}

class Scaling {
public:
    Scaling(float ratio, double factor)
        : m_ratio(ratio)
        , m_factor(factor) {}

    float operator()(qreal twips) const {
        return scaledGeometry(static_cast<float>(twips), m_ratio);
    }

    void place(QWidget& widget) const {
        const QRectF is = twipsGeometry(widget);
        set(widget, QRectF((*this)(is.left()), (*this)(is.top()), (*this)(is.width()),
                           (*this)(is.height())));
    }

    void move(QWidget& widget) const {
        const QRectF is = twipsGeometry(widget);
        set(widget, QRectF(QPointF((*this)(is.left()), (*this)(is.top())), is.size()));
    }

    /// The height is the one that the control wants in its font.
    void placeWithOwnHeight(QWidget& widget) const {
        const QRectF is = twipsGeometry(widget);
        const qreal height = pixelsToTwips(widget.sizeHint().height());
        setTwipsGeometry(
            widget, QRectF((*this)(is.left()), (*this)(is.top()), (*this)(is.width()), height));
    }

    void placeWithoutLeft(QWidget& widget) const {
        const QRectF is = twipsGeometry(widget);
        set(widget,
            QRectF(is.left(), (*this)(is.top()), (*this)(is.width()), (*this)(is.height())));
    }

    void font(const Control& control) const {
        const int size = scaledFontSize(control.pointSize, m_factor);
        if (size < 1)
            return;
        // What stands in a rich text box has sizes of its own, which belong to the document.
        auto* rich = qobject_cast<RichTextBox*>(control.widget);
        if (rich && rich->document()->isEmpty()) {
            rich->SetFontSize(size);
            return;
        }
        QFont font = control.widget->font();
        font.setPointSize(size);
        if (auto* button = qobject_cast<orvalis::GGCommand*>(control.widget))
            button->setFont(font);
        else
            control.widget->setFont(font);
    }

private:
    /// Without a ratio not even the pixels are touched.
    void set(QWidget& widget, const QRectF& twips) const {
        if (m_ratio != 0.0F)
            setTwipsGeometry(widget, twips);
    }

    float m_ratio;
    double m_factor;
};

void scale(const Control& control, const Scaling& scaling, const QStringList& kept) {
    QWidget& widget = *control.widget;
    switch (control.kind) {
    case Kind::TextBox:
    case Kind::RichTextBox:
    case Kind::CheckBox:
    case Kind::CommandButton:
    case Kind::Label:
    case Kind::GGCommand:
        scaling.place(widget);
        scaling.font(control);
        break;
    case Kind::MonthView:
        scaling.placeWithoutLeft(widget);
        static_cast<QCalendarWidget&>(widget).setVerticalHeaderFormat(
            QCalendarWidget::NoVerticalHeader);
        scaling.font(control);
        break;
    case Kind::Line: {
        auto& line = static_cast<orvalis::Line&>(widget);
        const QLineF ends = line.ends();
        line.setEnds(
            QLineF(scaling(ends.x1()), scaling(ends.y1()), scaling(ends.x2()), scaling(ends.y2())));
        break;
    }
    case Kind::ComboBox:
        scaling.font(control);
        scaling.placeWithOwnHeight(widget);
        break;
    case Kind::Shape:
    case Kind::Frame:
    case Kind::OptionButton:
    case Kind::ProgressBar:
    case Kind::Toolbar:
    case Kind::PictureBox:
        scaling.place(widget);
        break;
    case Kind::Image:
        if (kept.contains(nameOf(widget)))
            scaling.move(widget);
        else
            scaling.place(widget);
        break;
    case Kind::Other:
        break;
    }
}

} // namespace

void clsResize::ResizeForm(QWidget& frm, int designWidth, int currentWidth, const Image* keepA,
                           const Image* keepB, const Image* keepC) const {
    QStringList kept;
    for (const Image* image : {keepA, keepB, keepC})
        if (image)
            kept << nameOf(*image);
    std::vector<Control> controls;
    collect(frm, controls);
    const Scaling scaling(layoutRatio(designWidth, currentWidth), fontFactor(m_screenWidth));
    for (const Control& control : controls)
        scale(control, scaling, kept);
}

} // namespace orvalis
