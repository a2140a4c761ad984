// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/main_window.h"

#include "controls/image.h"
#include "controls/label.h"
#include "core/picture_button.h"
#include "core/program.h"

namespace orvalis {

using namespace Qt::StringLiterals;

frmnotes::frmnotes(Program& program)
    : ChromePanel(program, chromeRow(ChromeKind::Main)) {
    Image* first =
        makeOpener(1, u"open_reminder"_s, u"Reminder"_s, {14, 147, 146, 144}, ChromeKind::Reminder);
    makeOpener(2, u"open_notes"_s, u"Notes"_s, {160, 147, 146, 144}, ChromeKind::Notes);
    makeOpener(3, u"open_address"_s, u"Address"_s, {14, 293, 146, 144}, ChromeKind::Address);
    Image* last = makeOpener(4, u"open_password"_s, u"Password"_s, {160, 293, 146, 144},
                             ChromeKind::Password);
    tabToChromeAfter(*last);
    first->setFocus();
    auto* label = new Label(u"Label2"_s, u"L2"_s, this);
    label->setGeometry(0, 466, 10, 10);
    label->hide();
}

void frmnotes::onLoad() {
    layOut();
}

Image* frmnotes::makeOpener(int number, const QString& picture, const QString& name,
                            const QRect& place, ChromeKind target) {
    Image* opener = pictureButton(*this, u"imgopen%1"_s.arg(number), place, {}, picture);
    // The picture carries its word, so it needs no tool tip; who cannot see it hears the word.
    opener->setAccessibleName(name);
    connect(opener, &Image::MouseMove, this, &frmnotes::HoverReset);
    connect(opener, &Image::MouseDown, this, [this, target] { openPanel(target); });
    return opener;
}

} // namespace orvalis
