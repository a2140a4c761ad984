// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT

// The tour: the program on a virtual display, a reminder saved through the Reminder panel that pops
// up as a sticker, and a picture of every window on the way.

#include "driver/reminder_road.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

namespace {

class Tour {
public:
    Tour(Stage& stage, const QString& executable, const QString& pictures)
        : m_pictures(pictures)
        , m_program(stage, executable) {}

    bool play();

private:
    void tell(const QString& words);
    void picture(const QString& name);
    bool reminder();

    QDir m_pictures;
    DrivenProgram m_program;
    QTextStream m_out{stdout};
    int m_step = 0;
    int m_picture = 0;
    bool m_everyPicture = true;
};

void Tour::tell(const QString& words) {
    m_out << "  " << ++m_step << ". " << words << Qt::endl;
}

void Tour::picture(const QString& name) {
    // One turn of the event loop beyond the window's appearance, so that it is painted whole.
    sleepMilliseconds(400);
    const QString file =
        m_pictures.filePath(u"%1-%2.png"_s.arg(++m_picture, 2, 10, QChar(u'0')).arg(name));
    const bool taken = m_program.takePicture(file) && QFileInfo(file).isFile();
    m_everyPicture &= taken;
    m_out << (taken ? "     picture: " : "     no picture could be taken: ")
          << QDir::toNativeSeparators(file) << Qt::endl;
}

bool Tour::reminder() {
    ReminderRoad road(m_program, [this](const QString& words) { tell(words); });
    road.openPanel();
    picture(u"reminder-panel"_s);
    road.typeMessage(u"Garden"_s, u"Water the roses, the old ones first."_s);
    road.tickRemind();
    picture(u"date-and-time"_s);
    road.pickTime(10, 25);
    road.typeEventMessage(u"Water the roses"_s);
    road.pressOk();
    picture(u"ready-to-save"_s);
    road.pressSave();
    picture(u"to-do-list"_s);
    if (road.trouble().isEmpty()) {
        m_program.click(u"frmnotes1/cmdmenu(0)"_s);
        picture(u"remind-list"_s);
        tell(u"the clock comes to 10:24:57"_s);
        m_program.setClock(QDateTime(QDate(2026, 3, 14), QTime(10, 24, 57), Qt::UTC));
    }
    if (!road.waitForSticker(15000)) {
        m_out << "The tour ends early: " << road.trouble() << Qt::endl;
        picture(u"where-it-ended"_s);
        return false;
    }
    const QString text = m_program.control(u"xn/Text1"_s).text;
    picture(u"sticker"_s);
    tell(u"the sticker reads: "_s + text.simplified());
    if (!text.contains(u"REMINDER:"_s) || !text.contains(u"Water the roses"_s)) {
        m_out << "The sticker does not show the reminder." << Qt::endl;
        return false;
    }
    return true;
}

bool Tour::play() {
    m_program.setClock(QDateTime(QDate(2026, 3, 14), QTime(10, 24, 20), Qt::UTC));
    tell(u"start the program"_s);
    if (!m_program.start() || !m_program.waitVisible(u"frmnotes"_s)) {
        m_out << "The program did not come up:\n" << m_program.output() << Qt::endl;
        return false;
    }
    picture(u"main-window"_s);
    return reminder() && m_everyPicture;
}

/// What an earlier tour left, and nothing else.
void removeOwnPictures(const QDir& folder) {
    static const QRegularExpression own(u"^\\d\\d-[a-z-]+\\.png$"_s);
    const QStringList files = folder.entryList(QDir::Files);
    for (const QString& file : files)
        if (own.match(file).hasMatch())
            QFile::remove(folder.filePath(file));
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: orvalis_tour EXECUTABLE FOLDER-OF-PICTURES\n";
        return 2;
    }
    const QString pictures = QDir::current().absoluteFilePath(arguments[2]);
    removeOwnPictures(QDir(pictures));
    if (!QDir().mkpath(pictures)) {
        QTextStream(stderr) << "cannot make " << pictures << '\n';
        return 1;
    }
    Stage stage({.screen = {1280, 800}});
    if (!stage.trouble().isEmpty()) {
        QTextStream(stderr) << stage.trouble() << '\n';
        return 1;
    }
    return Tour(stage, QDir::current().absoluteFilePath(arguments[1]), pictures).play() ? 0 : 1;
}
