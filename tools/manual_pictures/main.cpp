// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// manual_pictures FOLDER: draws the program's windows as the manual shows them, at twice their size
// so that they stay sharp on fine screens, with a clock that stands still.
#include "address/address_book.h"
#include "address/address_file.h"
#include "address/address_panel.h"
#include "address/print_window.h"
#include "alarm/alarm_set_dialog.h"
#include "controls/combo_box.h"
#include "controls/image.h"
#include "controls/label.h"
#include "controls/rich_text_box.h"
#include "controls/tree_view.h"
#include "core/main_window.h"
#include "core/options_dialog.h"
#include "core/start_window.h"
#include "core/tray_handover.h"
#include "letters/letters_window.h"
#include "notes/notes_panel.h"
#include "planner/reminder_panel.h"
#include "platform/tray_window.h"
#include "skin/style.h"
#include "stickers/stickers.h"
#include "support/recording_tray_icon.h"
#include "support/test_program.h"
#include "widgets/gg_command.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>

#include <cstdio>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// The program with its real windows, and the folder that its pictures go to.
class Studio {
public:
    explicit Studio(const QDir& folder)
        : m_folder(folder) {
        m_outside.screen.screenSize = QSize(800, 600);
        Program& program = m_outside.program;
        program.stickers = &m_stickers;
        program.makeTrayOwner = [this](ChromeWindow& window) {
            return std::make_unique<TrayHandover>(window, m_tray);
        };
        Windows& windows = program.windows;
        windows.registerMaker<StartWindow>(
            [&program] { return std::make_unique<frmStart>(program, false); });
        windows.registerMaker<MainWindow>(
            [&program] { return std::make_unique<frmnotes>(program); });
        windows.registerMaker<ReminderPanel>(
            [&program] { return std::make_unique<frmnotes1>(program); });
        windows.registerMaker<NotesPanel>(
            [&program] { return std::make_unique<frmnotes2>(program); });
        windows.registerMaker<AddressPanel>(
            [this, &program] { return std::make_unique<frmnotes3>(program, m_book); });
        windows.registerMaker<PrintWindow>([this, &program] {
            return std::make_unique<frmPrint>(
                program, m_book,
                [&program]() -> ContactPanel& {
                    return static_cast<frmnotes3&>(program.windows.get<AddressPanel>());
                });
        });
        windows.registerMaker<OptionsWindow>(
            [&program] { return std::make_unique<frmOptions>(program); });
        windows.registerMaker<AlarmSetDialog>(
            [&program] { return std::make_unique<frmAlSet>(program); });
        windows.registerMaker<LettersWindow>(
            [&program] { return std::make_unique<frmpisma>(program); });
    }

    void drawAll();
    bool failed() const { return m_failed; }

private:
    template <class Role>
    Form& shown() {
        Form& form = m_outside.program.windows.get<Role>().form();
        form.Show();
        QApplication::processEvents();
        return form;
    }
    void keep(const QString& name, const QPixmap& picture);
    void keepDialog(const QString& name, Form& form);
    void drawReminderPanel();
    void drawNotesPanel();
    void drawAddressPanel();
    void drawStickers();
    void drawAlarmDialog();
    void drawLetters();
    void drawTray();

    QDir m_folder;
    TestProgram m_outside;
    AddressBook m_book{m_outside.app};
    Stickers m_stickers{m_outside.program};
    RecordingTrayIcon m_tray;
    bool m_failed = false;
};

template <class Control>
Control& control(Form& form, const QString& name) {
    auto* found = form.findChild<Control*>(name);
    if (found == nullptr)
        qFatal("no control %s", qPrintable(name));
    return *found;
}

/// A picture on clear ground that others are put on.
QPixmap emptySheet(QSize size, qreal ratio) {
    QPixmap sheet(size * ratio);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(Qt::transparent);
    return sheet;
}

/// The picture of a large window, made small enough for the help's page. The width is that on the
/// page, in pixels; the picture has twice as many.
QPixmap fitted(const QPixmap& picture, int width) {
    const int height = picture.height() * width / picture.width();
    return picture.scaled(2 * QSize(width, height), Qt::IgnoreAspectRatio,
                          Qt::SmoothTransformation);
}

void Studio::keep(const QString& name, const QPixmap& picture) {
    const QString file = m_folder.filePath(name + u".png"_s);
    const bool written = picture.toImage().save(file, "PNG");
    m_failed = m_failed || !written;
    std::printf("%s: %d x %d%s\n", qPrintable(file), picture.width(), picture.height(),
                written ? "" : ", not written");
}

/// A dialog has its frame from the desktop; a line stands for it.
void Studio::keepDialog(const QString& name, Form& form) {
    QPixmap picture = form.grab();
    QPainter painter(&picture);
    painter.setPen(form.palette().color(QPalette::Mid));
    painter.drawRect(QRectF(form.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.end();
    keep(name, picture);
}

void Studio::drawReminderPanel() {
    Form& panel = shown<ReminderPanel>();
    const auto write = [&panel](const QString& title, const QString& message) {
        control<QLineEdit>(panel, u"txt1"_s).setText(title);
        control<RichTextBox>(panel, u"rt1"_s).SetText(message);
    };
    const auto save = [&panel] {
        QTest::mouseClick(&control<Image>(panel, u"imgSave"_s), Qt::LeftButton);
    };
    write(u"Garden"_s, u"Water the roses, the old ones first."_s);
    save();
    write(u"House"_s, u"Ring the plumber about the tap in the kitchen."_s);
    save();
    write(u"House"_s, u"Take the carpet to the cleaner."_s);
    QApplication::processEvents();
    keep(u"reminder"_s, fitted(panel.grab(), 500));
    control<QCheckBox>(panel, u"chkRemind"_s).click();
    control<RichTextBox>(panel, u"rtMs2"_s).SetText(u"The carpet!"_s);
    auto& hour = control<ComboBox>(panel, u"Combo1"_s);
    hour.setCurrentIndex(18);
    emit hour.activated(18);
    QApplication::processEvents();
    auto& frame = control<QWidget>(panel, u"Frame3"_s);
    keep(u"remind_me"_s, panel.grab(frame.geometry().adjusted(-4, -2, 4, 4)));
    panel.Hide();
}

void Studio::drawNotesPanel() {
    const QByteArray letter =
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0\\green112\\blue112;}\\f0\\fs18"
        "\\qr 14 March 2026\\par\\pard\\par{\\b\\fs24\\cf1 A week by the lake}\\par\\par "
        "Dear Anna,\\par\\par the house is ours from Saturday. It has {\\b two rooms}, a stove and "
        "a "
        "boat that {\\i may} float. Bring:\\par"
        "{\\pntext\\bullet\\tab}{\\*\\pn\\pnlvlblt\\pnindent360{\\pntxtb\\bullet}}\\fi-360\\li360 "
        "warm socks\\par {\\pntext\\bullet\\tab}the green book\\par"
        "{\\pntext\\bullet\\tab}matches\\par\\pard\\par Yours, Paul}";
    Form& panel = shown<NotesPanel>();
    const QString file = m_outside.folder.write(u"lake.rtf"_s, letter);
    m_outside.dialogs.answerOpen(file);
    QTest::mouseClick(&control<Image>(panel, u"imgOpen"_s), Qt::LeftButton);
    control<GGCommand>(panel, u"Button1"_s).setValue(true);
    auto& left = control<RichTextBox>(panel, u"rt1"_s);
    left.SetSelStart(left.Find(u"two rooms"_s));
    left.SetSelLength(9);
    left.SetSelText(u"three rooms"_s);
    QApplication::processEvents();
    keep(u"notes"_s, fitted(panel.grab(), 500));
    panel.Hide();
}

void Studio::drawAddressPanel() {
    AddressRecord anna;
    anna.First = u"Anna"_s;
    anna.Second = u"Bell"_s;
    anna.Area = u"Friends"_s;
    anna.Address = u"4 Harbour Street\r\nTop floor"_s;
    anna.Town = u"Whitby"_s;
    anna.Pin = u"YO22"_s;
    anna.District = u"North Yorkshire"_s;
    anna.State = u"England"_s;
    anna.Country = u"United Kingdom"_s;
    anna.Tel = u"+44 1632 960 144"_s;
    anna.Email = u"anna@example.org"_s;
    anna.Web = u"http://www.example.org"_s;
    anna.Notes = u"Has the key of the house by the lake.\r\nBirthday on 2 June."_s;
    m_outside.folder.write(u"address1.dat"_s, addressFileBytes(std::vector{anna}));
    Form& panel = shown<AddressPanel>();
    keep(u"address"_s, fitted(panel.grab(), 500));
    auto& window = m_outside.program.windows.get<PrintWindow>();
    window.stampaAll();
    window.rtb().SetSelStart(0);
    QApplication::processEvents();
    keepDialog(u"address_print"_s, window.form());
    m_outside.program.windows.unload<PrintWindow>();
    panel.Hide();
}

void Studio::drawStickers() {
    Form& note = m_stickers.newFrmstick().form();
    note.Show();
    control<QLineEdit>(note, u"txtLabel1"_s).setText(u"Shopping"_s);
    control<RichTextBox>(note, u"Text1"_s).SetText(u"Bread, tea,\r\nstamps for the letters"_s);
    StickerWindow& alarm = m_stickers.globalXn();
    alarm.Text1().SetSelBold(true);
    alarm.Text1().SetSelColor(255);
    alarm.Text1().SetText(u"Alarm time: 07:30:00\r\nTea is ready"_s);
    alarm.form().Show();
    QApplication::processEvents();
    const QPixmap left = note.grab();
    const QPixmap right = alarm.form().grab();
    constexpr int Gap = 20;
    QPixmap both = emptySheet(QSize(note.width() + Gap + alarm.form().width(), note.height()),
                              left.devicePixelRatio());
    QPainter painter(&both);
    painter.drawPixmap(0, 0, left);
    painter.drawPixmap(note.width() + Gap, 0, right);
    painter.end();
    keep(u"stickers"_s, both);
    note.Hide();
    alarm.form().Hide();
}

void Studio::drawAlarmDialog() {
    Form& dialog = shown<AlarmSetDialog>();
    control<ComboBox>(dialog, u"Combo1"_s).setText(u"07"_s);
    control<ComboBox>(dialog, u"Combo2"_s).setText(u"30"_s);
    control<RichTextBox>(dialog, u"rt1"_s).SetText(u"Tea is ready"_s);
    QApplication::processEvents();
    keepDialog(u"alarm"_s, dialog);
    control<GGCommand>(dialog, u"imgOK"_s).setValue(true);
}

void Studio::drawLetters() {
    Form& letters = shown<LettersWindow>();
    auto& tree = control<TreeView>(letters, u"TV1"_s);
    const QModelIndex group = tree.model()->index(3, 0, tree.model()->index(0, 0));
    tree.setCurrentIndex(tree.model()->index(4, 0, group));
    tree.scrollTo(tree.currentIndex(), QTreeView::PositionAtCenter);
    auto& preview = control<RichTextBox>(letters, u"rtp"_s);
    preview.Find(u"The quilt arrived yesterday, and it is already on our bed."_s);
    preview.setFocus();
    QApplication::processEvents();
    keepDialog(u"letters"_s, letters);
    letters.Hide();
}

/// The icon window with its tip and the menu of a program whose alarm is set.
void Studio::drawTray() {
    auto& main = static_cast<frmnotes&>(shown<MainWindow>());
    main.showAlarm();
    QApplication::processEvents();
    keep(u"main_window_alarm"_s, main.grab(QRect(0, 0, main.width(), 146)));
    main.miniClick();
    // As a tray tells of the right button, upon which the menu gets its bold entry.
    m_tray.tell({TrayMouse::Move, TrayMouse::RightDown});
    TrayWindow window;
    window.setIcon(m_tray.record().hIcon);
    window.show();
    QMenu& menu = *m_tray.menu();
    menu.popup(QPoint(0, 0));
    QApplication::processEvents();
    const QPixmap icon = window.grab();
    const QPixmap entries = menu.grab();
    QPixmap both = emptySheet(QSize(menu.width() + window.width() / 2, menu.height() + 24),
                              icon.devicePixelRatio());
    QPainter painter(&both);
    painter.drawPixmap(both.deviceIndependentSize().toSize().width() - window.width(),
                       both.deviceIndependentSize().toSize().height() - window.height(), icon);
    painter.drawPixmap(0, 0, entries);
    painter.end();
    keep(u"tray"_s, both);
    menu.close();
}

void Studio::drawAll() {
    m_outside.clock.set(QDateTime(QDate(2026, 3, 14), QTime(7, 24, 36), Qt::UTC));
    keep(u"main_window"_s, fitted(shown<MainWindow>().grab(), 240));
    keepDialog(u"options"_s, shown<OptionsWindow>());
    m_outside.program.windows.unload<OptionsWindow>();
    drawReminderPanel();
    drawNotesPanel();
    drawAddressPanel();
    drawStickers();
    drawAlarmDialog();
    drawLetters();
    drawTray();
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("TZ", "UTC");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication application(argc, argv);
    skin::dress(application);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments[1])) {
        std::fprintf(stderr, "usage: manual_pictures FOLDER\n");
        return 2;
    }
    Studio studio((QDir(arguments[1])));
    studio.drawAll();
    return studio.failed() ? 1 : 0;
}
