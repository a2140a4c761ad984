// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/about_box.h"

#include "controls/image.h"
#include "controls/label.h"
#include "controls/twips_geometry.h"
#include "core/program.h"
#include "core/resize_form.h"
#include "core/skin_picture.h"
#include "core/window_shape.h"
#include "platform/screen.h"
#include "runtime/app.h"
#include "runtime/failure.h"
#include "runtime/twips.h"
#include "skin/ink.h"
#include "skin/palette.h"
#include "skin/type.h"

#include <QEventLoop>
#include <QKeyEvent>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

constexpr int AboutWidth = 6000; // twips

/// A line of the picture: a click on it is one on the box.
void write(Label& label, int points, QRgb ink) {
    label.setFont(skin::font(points));
    skin::setInk(label, ink);
    label.setAttribute(Qt::WA_TransparentForMouseEvents);
}

} // namespace

frmAbout::frmAbout(Program& program)
    : Form(u"frmAbout"_s, Qt::Dialog | Qt::FramelessWindowHint)
    , m_program(program)
    , m_Image1(new Image(u"Image1"_s, this))
    , m_Label1(new Label(u"Label1"_s, {}, this))
    , m_Label3(new Label(u"Label3"_s, u"A desktop organizer for one"_s, this)) {
    setWindowTitle(u"About Orvalis"_s);
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_TranslucentBackground);
    m_Image1->setPicture(skinPicture(u"about_background"_s));
    m_Image1->setAccessibleName(windowTitle());
    setTwipsGeometry(*m_Label1, QRectF(2387, 1209, 3422, 287));
    setTwipsGeometry(*m_Label3, QRectF(2387, 1528, 3422, 287));
    write(*m_Label1, skin::points::PanelLabel, skin::colour::Ink);
    write(*m_Label3, skin::points::Body, skin::colour::Ink);
    connect(m_Image1, &Image::Click, this, &Form::unloadRequested);
}

void frmAbout::onLoad() {
    const int width = pixelsToTwips(m_Image1->width());
    resumeNext(
        [this] {
            const App& app = m_program.services.app;
            m_Label1->setCaption(
                u"Ver. %1.%2.%3"_s.arg(app.Major()).arg(app.Minor()).arg(app.Revision()));
        },
        [&] {
            clsResize(m_program.services.screen.GetSystemMetrics(0))
                .ResizeForm(*this, AboutWidth, width, m_Image1);
        });
    setFixedSize(m_Image1->size());
}

void frmAbout::showEvent(QShowEvent* event) {
    wearShape(*this, u"about_background"_s, m_program.services.windowCutter);
    Form::showEvent(event);
}

void frmAbout::showModal() {
    QEventLoop open;
    connect(this, &frmAbout::closed, &open, &QEventLoop::quit);
    Show();
    open.exec();
    throwIfEnded();
}

void frmAbout::onUnload() {
    emit closed();
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        emit unloadRequested();
}

void frmAbout::mouseReleaseEvent(QMouseEvent* /*event*/) {
    emit unloadRequested();
}

} // namespace orvalis
