// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include <utility>

// What a person does in front of the program.

using namespace Qt::StringLiterals;

namespace orvalis::driver {

namespace {

QString withoutMnemonic(QString text) {
    return text.remove(u'&');
}

} // namespace

bool DrivenProgram::xdotool(const QStringList& arguments) {
    QProcess process;
    process.setProcessEnvironment(m_stage.environment());
    process.start(u"xdotool"_s, arguments);
    return process.waitForFinished(20000) && process.exitCode() == 0;
}

Control DrivenProgram::waitAtRest(const QString& name) {
    return waitAtRest([&] { return control(name); });
}

Control DrivenProgram::waitAtRest(const std::function<Control()>& look) {
    constexpr int RestMilliseconds = 100;
    Control seen;
    const bool rests = waitUntil(
        [&] {
            const Control earlier = std::exchange(seen, look());
            sleepMilliseconds(RestMilliseconds);
            return seen.visible && seen.enabled && seen.rect == earlier.rect &&
                   seen.window == earlier.window && seen.buttonRects == earlier.buttonRects;
        },
        8000);
    return rests ? seen : Control();
}

bool DrivenProgram::point(const QString& name) {
    const Control target = waitAtRest(name);
    if (!target.visible)
        return false;
    const QPoint centre = target.rect.center();
    // A pointer that a person moves crosses the control; a jump alone may not be told as a move.
    return xdotool({u"mousemove"_s, QString::number(centre.x() - 2),
                    QString::number(centre.y() - 1), u"mousemove"_s, QString::number(centre.x()),
                    QString::number(centre.y())});
}

bool DrivenProgram::clickAt(QPoint place, int button) {
    return xdotool({u"mousemove"_s, QString::number(place.x() - 1), QString::number(place.y()),
                    u"mousemove"_s, QString::number(place.x()), QString::number(place.y()),
                    u"sleep"_s, u"0.08"_s, u"click"_s, QString::number(button)});
}

bool DrivenProgram::click(const QString& name, int button) {
    const Control target = waitAtRest(name);
    return target.visible && clickAt(target.rect.center(), button);
}

bool DrivenProgram::doubleClick(const QString& name) {
    const Control target = waitAtRest(name);
    if (!target.visible)
        return false;
    const QPoint place = target.rect.center();
    return xdotool({u"mousemove"_s, QString::number(place.x()), QString::number(place.y()),
                    u"click"_s, u"--repeat"_s, u"2"_s, u"--delay"_s, u"60"_s, u"1"_s});
}

bool DrivenProgram::choose(const QString& menuEntryNameOrText) {
    const Control entry = waitAtRest([&] { return menuEntry(menuEntryNameOrText); });
    return entry.visible && clickAt(entry.rect.center());
}

bool DrivenProgram::answer(const QString& buttonText) {
    const Control box = waitAtRest([&] { return messageBox(); });
    for (qsizetype i = 0; i < box.buttons.size(); ++i)
        if (withoutMnemonic(box.buttons[i]) == buttonText)
            return clickAt(box.buttonRects[i].center());
    return false;
}

bool DrivenProgram::drag(const QString& name, QPoint by) {
    const Control target = waitAtRest(name);
    if (!target.visible)
        return false;
    const QPoint from = target.rect.center();
    QStringList steps{u"mousemove"_s, QString::number(from.x()), QString::number(from.y()),
                      u"mousedown"_s, u"1"_s};
    constexpr int Parts = 8;
    for (int i = 1; i <= Parts; ++i)
        steps << u"sleep"_s << u"0.03"_s << u"mousemove"_s
              << QString::number(from.x() + by.x() * i / Parts)
              << QString::number(from.y() + by.y() * i / Parts);
    steps << u"sleep"_s << u"0.05"_s << u"mouseup"_s << u"1"_s;
    return xdotool(steps);
}

void DrivenProgram::waitForKeyboard() {
    waitUntil([&] { return ask(u"keyboard"_s)[u"found"_s].toBool(); }, 8000);
}

void DrivenProgram::type(const QString& text) {
    waitForKeyboard();
    xdotool({u"type"_s, u"--delay"_s, u"15"_s, u"--"_s, text});
}

void DrivenProgram::key(const QString& keys) {
    waitForKeyboard();
    xdotool(QStringList{u"key"_s, u"--delay"_s, u"30"_s} + keys.split(u' '));
}

bool DrivenProgram::tabTo(const QString& name) {
    constexpr int MostStops = 60;
    for (int stops = 0; stops < MostStops; ++stops) {
        if (control(name).focused)
            return true;
        const QString before = focus().name;
        key(u"Tab"_s);
        waitUntil([&] { return focus().name != before; }, 2000);
    }
    return control(name).focused;
}

bool DrivenProgram::chooseByKeys(const QString& menu, const QString& entryText) {
    const qsizetype entries = control(menu).entries.size();
    for (qsizetype step = 0; step < entries; ++step) {
        const QString before = control(menu).marked;
        key(u"Down"_s);
        waitUntil([&] { return control(menu).marked != before; }, 2000);
        if (control(menu).marked != entryText)
            continue;
        key(u"Return"_s);
        return waitUntil([&] { return !control(menu).visible; }, 5000);
    }
    return false;
}

bool DrivenProgram::closeThroughWindowManager(const QString& window) {
    const Control target = control(window);
    return target.visible && m_stage.display().askToClose(target.window);
}

bool DrivenProgram::beginDrag(const QString& name) {
    const Control target = waitAtRest(name);
    if (!target.visible)
        return false;
    constexpr int Inset = 12;
    const QPoint from = target.rect.topLeft() + QPoint(Inset, Inset);
    QStringList steps{u"mousemove"_s, QString::number(from.x()), QString::number(from.y()),
                      u"mousedown"_s, u"1"_s};
    for (int moved = 10; moved <= 60; moved += 10)
        steps << u"sleep"_s << u"0.05"_s << u"mousemove"_s << QString::number(from.x() + moved)
              << QString::number(from.y());
    return xdotool(steps);
}

void DrivenProgram::letGo() {
    xdotool({u"mouseup"_s, u"1"_s});
}

} // namespace orvalis::driver
