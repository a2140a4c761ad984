// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/form.h"
#include "support/test_main.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>

using namespace orvalis;

namespace {

/// Writes down what happens to it.
class LoggingForm final : public Form {
public:
    explicit LoggingForm(const QString& name)
        : Form(name, Qt::Window | Qt::FramelessWindowHint) {
        setFixedSize(300, 200);
    }
    QStringList log;
    bool unloadAgain = false;

protected:
    void onLoad() override { log << QStringLiteral("load"); }
    void onActivate() override { log << QStringLiteral("activate"); }
    void onQueryUnload() override { log << QStringLiteral("query-unload"); }
    void onUnload() override {
        log << QStringLiteral("unload");
        if (unloadAgain)
            unload();
    }
};

QStringList words(std::initializer_list<const char*> list) {
    QStringList result;
    for (const char* word : list)
        result << QString::fromLatin1(word);
    return result;
}

} // namespace

class FormTest : public QObject {
    Q_OBJECT
private slots:
    void loadRunsOnceAndUnloadRunsOnce();
    void aFormThatWasNeverLoadedHasNothingToGiveUp();
    void anUnloadHandlerThatAsksForUnloadAgainChangesNothing();
    void showingActivatesOnce();
    void showingAShownFormDoesNotActivateAgain();
    void comingBackFromAnotherFormActivates();
    void comingBackFromADialogDoesNotActivate();
    void comingBackFromAnotherProgramDoesNotActivate();
    void theFormBeforeIsActivatedWhenTheActiveOneGoes();
    void aFormShownWithoutFocusDoesNotActivate();
    void theFirstWindowOpensInTheMiddleOfTheScreen();
    void aWindowThatTakesAPlaceHasTheSameCentre();
    void aWindowGivenAPlaceOpensThere();
    void aWindowNeverOpensOutsideTheScreen();
    void aWindowShownOverAnotherBelongsToIt();
    void theWindowManagersCloseAsksAndDoesNotClose();
    void anUnloadedFormIsDeafAndStaysHidden();
};

void FormTest::loadRunsOnceAndUnloadRunsOnce() {
    LoggingForm form(QStringLiteral("a"));
    form.load();
    form.load();
    form.unload();
    form.unload();
    QCOMPARE(form.log, words({"load", "query-unload", "unload"}));
    QCOMPARE(form.objectName(), QStringLiteral("a"));
}

void FormTest::aFormThatWasNeverLoadedHasNothingToGiveUp() {
    LoggingForm form(QStringLiteral("a"));
    form.unload();
    QCOMPARE(form.log, QStringList());
}

void FormTest::anUnloadHandlerThatAsksForUnloadAgainChangesNothing() {
    LoggingForm form(QStringLiteral("a"));
    form.unloadAgain = true;
    form.load();
    form.unload();
    QCOMPARE(form.log, words({"load", "query-unload", "unload"}));
}

void FormTest::showingActivatesOnce() {
    LoggingForm form(QStringLiteral("a"));
    form.load();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QCOMPARE(form.log, words({"load", "activate"}));
    form.Hide();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QCOMPARE(form.log, words({"load", "activate", "activate"}));
}

void FormTest::showingAShownFormDoesNotActivateAgain() {
    LoggingForm form(QStringLiteral("a"));
    form.load();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.Show();
    QCoreApplication::processEvents();
    QCOMPARE(form.log, words({"load", "activate"}));
}

void FormTest::comingBackFromAnotherFormActivates() {
    LoggingForm first(QStringLiteral("a"));
    LoggingForm second(QStringLiteral("b"));
    first.load();
    second.load();
    first.Show();
    QVERIFY(QTest::qWaitForWindowActive(&first));
    second.Show();
    QVERIFY(QTest::qWaitForWindowActive(&second));
    first.log.clear();
    first.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&first));
    QCOMPARE(first.log, words({"activate"}));
    QCOMPARE(Form::lastActive(), &first);
}

void FormTest::comingBackFromADialogDoesNotActivate() {
    LoggingForm form(QStringLiteral("a"));
    form.load();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QDialog dialog(&form);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.hide();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QCOMPARE(form.log, words({"load", "activate"}));
}

void FormTest::comingBackFromAnotherProgramDoesNotActivate() {
    LoggingForm form(QStringLiteral("a"));
    form.load();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QApplication::setActiveWindow(nullptr);
    QTRY_VERIFY(!form.isActiveWindow());
    QApplication::setActiveWindow(&form);
    QTRY_VERIFY(form.isActiveWindow());
    QCOMPARE(form.log, words({"load", "activate"}));
}

void FormTest::theFormBeforeIsActivatedWhenTheActiveOneGoes() {
    LoggingForm first(QStringLiteral("a"));
    LoggingForm second(QStringLiteral("b"));
    first.load();
    second.load();
    first.Show();
    second.Show();
    QVERIFY(QTest::qWaitForWindowActive(&second));
    first.log.clear();
    second.unload();
    QVERIFY(QTest::qWaitForWindowActive(&first));
    QCOMPARE(first.log, words({"activate"}));
}

void FormTest::aFormShownWithoutFocusDoesNotActivate() {
    LoggingForm form(QStringLiteral("a"));
    LoggingForm sticker(QStringLiteral("b"));
    form.load();
    sticker.load();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    sticker.showWithoutFocus();
    QCOMPARE(sticker.log, words({"load"}));
    QVERIFY(sticker.isVisible());
    QVERIFY(sticker.testAttribute(Qt::WA_ShowWithoutActivating));
    QCOMPARE(Form::lastActive(), &form);
}

void FormTest::theFirstWindowOpensInTheMiddleOfTheScreen() {
    LoggingForm form(QStringLiteral("a"));
    form.load();
    form.Show();
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(form.pos(),
             room.topLeft() + QPoint((room.width() - 300) / 2, (room.height() - 200) / 2));
}

void FormTest::aWindowThatTakesAPlaceHasTheSameCentre() {
    LoggingForm form(QStringLiteral("a"));
    LoggingForm panel(QStringLiteral("b"));
    form.load();
    panel.load();
    panel.setFixedSize(400, 240);
    form.Show();
    form.move(150, 160);
    panel.takePlaceOf(form);
    panel.Show();
    QCOMPARE(panel.pos(), QPoint(100, 140));
    // To and fro leaves it where it was, also where the sizes differ by an odd number.
    panel.setFixedSize(401, 241);
    const QPoint before = panel.pos();
    for (int i = 0; i < 10; ++i) {
        form.takePlaceOf(panel);
        panel.takePlaceOf(form);
    }
    QCOMPARE(panel.pos(), before);
}

void FormTest::aWindowGivenAPlaceOpensThere() {
    LoggingForm form(QStringLiteral("a"));
    form.load();
    form.standAt({31, 47});
    form.Show();
    QCOMPARE(form.pos(), QPoint(31, 47));
}

void FormTest::aWindowNeverOpensOutsideTheScreen() {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    LoggingForm place(QStringLiteral("a"));
    LoggingForm form(QStringLiteral("b"));
    place.load();
    form.load();
    place.move(room.right() - 20, room.bottom() - 20);
    form.takePlaceOf(place);
    form.Show();
    QVERIFY2(room.contains(form.frameGeometry()), "right and bottom");
    form.Hide();
    place.move(-280, -180);
    form.takePlaceOf(place);
    form.Show();
    QVERIFY2(room.contains(form.frameGeometry()), "left and top");
    form.Hide();
    form.setFixedSize(room.width() + 100, room.height() + 100);
    form.Show();
    QCOMPARE(form.pos(), room.topLeft());
}

void FormTest::aWindowShownOverAnotherBelongsToIt() {
    LoggingForm owner(QStringLiteral("a"));
    LoggingForm form(QStringLiteral("b"));
    owner.load();
    form.load();
    owner.Show();
    form.ShowOver(owner);
    QVERIFY(form.isVisible());
    QCOMPARE(form.windowModality(), Qt::NonModal);
    QCOMPARE(form.windowHandle()->transientParent(), owner.windowHandle());
    QCOMPARE(form.log, words({"load", "activate"}));
}

void FormTest::theWindowManagersCloseAsksAndDoesNotClose() {
    LoggingForm form(QStringLiteral("a"));
    form.load();
    form.Show();
    const QSignalSpy asked(&form, &Form::unloadRequested);
    QVERIFY(!form.close());
    QCOMPARE(asked.count(), 1);
    QVERIFY(form.isVisible());
}

void FormTest::anUnloadedFormIsDeafAndStaysHidden() {
    LoggingForm form(QStringLiteral("a"));
    auto* timer = new QTimer(&form);
    timer->start(1000);
    form.load();
    form.Show();
    form.unload();
    QVERIFY(!form.isVisible());
    QVERIFY(!timer->isActive());
    form.Show();
    form.showWithoutFocus();
    QVERIFY(!form.isVisible());
    const QSignalSpy asked(&form, &Form::unloadRequested);
    form.close();
    QCOMPARE(asked.count(), 0);
}

ORVALIS_TEST_MAIN_WITH(QApplication, FormTest)
#include "form_test.moc"
