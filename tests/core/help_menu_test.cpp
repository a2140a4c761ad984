// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "controls/label.h"
#include "core/about_box.h"
#include "core/help_file.h"
#include "core/popup_menus.h"
#include "runtime/file_saving.h"
#include "support/plain_windows.h"
#include "support/test_main.h"
#include "support/test_program.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

class RecordingDisplay final : public HelpDisplay {
public:
    WId HtmlHelpA(WId owner, const QString& path, int command, quint32 data) override {
        owners << owner;
        calls << u"%1 %2 %3"_s.arg(path).arg(command).arg(data);
        return 1;
    }
    QList<WId> owners;
    QStringList calls;
};

struct Menus {
    Menus() {
        Windows& windows = outside.program.windows;
        windows.registerMaker<PopupMenus>(
            [this] { return std::make_unique<frmdel1>(outside.program, display); });
        windows.registerMaker<OptionsWindow>([] { return std::make_unique<PlainOptions>(false); });
        windows.registerMaker<AboutBox>(
            [this] { return std::make_unique<frmAbout>(outside.program); });
    }
    Form& holder() { return outside.program.windows.get<PopupMenus>().form(); }
    QMenu* help() { return holder().findChild<QMenu*>(u"mnuhelp"_s); }
    void choose(const QString& name) { holder().findChild<QAction*>(name)->trigger(); }
    Form* about() {
        AboutBox* box = outside.program.windows.loaded<AboutBox>();
        return box == nullptr ? nullptr : &box->form();
    }
    /// Opens the about box and does the work while it stands.
    void whileAboutIsOpen(const std::function<void()>& work) {
        QTimer::singleShot(0, [&] {
            QVERIFY(about() != nullptr);
            QVERIFY(about()->isVisible());
            work();
            outside.program.windows.unload<AboutBox>();
        });
        choose(u"mnuabout"_s);
    }

    TestProgram outside;
    RecordingDisplay display;
};

} // namespace

class HelpMenuTest : public QObject {
    Q_OBJECT
private slots:
    void theHelpMenuHasItsThreeEntries() {
        Menus menus;
        QStringList entries;
        for (const QAction* entry : menus.help()->actions())
            entries << entry->objectName() + u' ' + entry->text();
        QCOMPARE(entries, (QStringList{u"mnuh1 &Contents..."_s, u"mnuh2 &Options..."_s,
                                       u"mnuabout &About..."_s}));
        QVERIFY(!menus.holder().isVisible());
    }

    void contentsShowsTheHelpFileFromItsFirstPage() {
        Menus menus;
        const QString file = menus.outside.app.file(u"orvalis.chm"_s);
        saveWhole(file, "anything");
        menus.choose(u"mnuh1"_s);
        QCOMPARE(menus.display.calls, QStringList{file + u" 0 0"_s});
        QCOMPARE(menus.display.owners, QList<WId>{menus.holder().winId()});
    }

    void withTheHelpFileRemovedContentsDoesNothing() {
        Menus menus;
        menus.choose(u"mnuh1"_s);
        QVERIFY(menus.display.calls.isEmpty());
        QVERIFY(menus.outside.boxes.asked.isEmpty());
    }

    void optionsShowsTheOptions() {
        Menus menus;
        menus.choose(u"mnuh2"_s);
        QVERIFY(menus.outside.program.windows.get<OptionsWindow>().form().isVisible());
    }

    void theMenuPopsUpAndHoldsTheCallerUntilItIsClosed() {
        Menus menus;
        bool wasUp = false;
        QTimer::singleShot(0, [&] {
            wasUp = menus.help()->isVisible();
            menus.help()->close();
        });
        menus.outside.program.windows.get<PopupMenus>().PopupMenu(u"mnuhelp"_s);
        QVERIFY(wasUp);
    }

    void aPanelsMenuIsOwnedAndPopsUpByItsName() {
        TestProgram outside;
        RecordingDisplay display;
        int chosen = 0;
        frmdel1 holder(outside.program, display, {[&chosen](QWidget* parent) {
                           auto* menu = new QMenu(parent);
                           menu->setObjectName(u"mnibrisi"_s);
                           QObject::connect(menu->addAction(u"Clear"_s), &QAction::triggered,
                                            [&chosen] { ++chosen; });
                           return menu;
                       }});
        QTimer::singleShot(0, [&] {
            auto* menu = holder.findChild<QMenu*>(u"mnibrisi"_s);
            QVERIFY(menu->isVisible());
            menu->actions().constFirst()->trigger();
            menu->close();
        });
        holder.PopupMenu(u"mnibrisi"_s);
        QCOMPARE(chosen, 1);
    }

    void theAboutBoxTellsTheVersion() {
        Menus menus;
        menus.whileAboutIsOpen([&] {
            const App& app = menus.outside.app;
            QCOMPARE(menus.about()->findChild<Label*>(u"Label1"_s)->Caption(),
                     u"Ver. %1.%2.%3"_s.arg(app.Major()).arg(app.Minor()).arg(app.Revision()));
            QVERIFY(!menus.about()->findChild<Label*>(u"Label3"_s)->Caption().isEmpty());
        });
    }

    void itsLabelsAreLaidOutForThePicturesWidth() {
        Menus menus;
        menus.whileAboutIsOpen([&] {
            QCOMPARE(menus.about()->size(), QSize(377, 135));
            const QRect version = menus.about()->findChild<Label*>(u"Label1"_s)->geometry();
            QVERIFY2(qAbs(version.x() - 150) <= 1, "2387 twips times 5655 / 6000");
            QVERIFY(menus.about()->rect().contains(version));
        });
    }

    void itIsModalAndTimersGoOn() {
        Menus menus;
        QPushButton behind(u"Behind"_s);
        behind.show();
        int clicks = 0;
        QObject::connect(&behind, &QPushButton::clicked, [&] { ++clicks; });
        // Through the window, as the desktop tells of a click, and not straight to the widget.
        const auto clickBehind = [&] {
            QTest::mouseClick(behind.windowHandle(), Qt::LeftButton, {}, behind.rect().center());
        };
        clickBehind();
        QCOMPARE(clicks, 1);
        int ticks = 0;
        QTimer tick;
        tick.start(1);
        QObject::connect(&tick, &QTimer::timeout, [&] { ++ticks; });
        menus.whileAboutIsOpen([&] {
            QCOMPARE(menus.about()->windowModality(), Qt::ApplicationModal);
            QCOMPARE(QApplication::activeModalWidget(), menus.about());
            clickBehind();
            QCOMPARE(clicks, 1);
            const int before = ticks;
            QTRY_VERIFY(ticks > before);
        });
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        clickBehind();
        QCOMPARE(clicks, 2);
    }

    void escapeAndAClickCloseIt_data() {
        QTest::addColumn<QString>("way");
        for (const auto* way : {"escape", "form", "picture"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }
    void escapeAndAClickCloseIt() {
        QFETCH(QString, way);
        Menus menus;
        menus.whileAboutIsOpen([&] {
            if (way == u"escape"_s)
                QTest::keyClick(menus.about(), Qt::Key_Escape);
            else if (way == u"form"_s)
                QTest::mouseClick(menus.about(), Qt::LeftButton);
            else
                QTest::mouseClick(menus.about()->findChild<Image*>(u"Image1"_s), Qt::LeftButton);
            QVERIFY(menus.about() == nullptr);
        });
    }

    void anyKeyButEscapeLeavesItOpen() {
        Menus menus;
        menus.whileAboutIsOpen([&] {
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_A, Qt::Key_F1})
                QTest::keyClick(menus.about(), key);
            QVERIFY(menus.about() != nullptr);
            QVERIFY(menus.about()->isVisible());
        });
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, HelpMenuTest)
#include "help_menu_test.moc"
