// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/form.h"
#include "controls/msg_box.h"
#include "runtime/program_end.h"
#include "support/test_main.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>

using namespace orvalis;

namespace {

QMessageBox* openBox() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

/// Asks a box and does something to it while it stands open.
Answer ask(int flags, const std::function<void(QMessageBox&)>& use, const QString& title = {}) {
    QTimer::singleShot(0, qApp, [&use] {
        QMessageBox* box = openBox();
        if (box == nullptr) {
            QTest::qFail("No box is open", __FILE__, __LINE__);
            return;
        }
        use(*box);
    });
    return QtMessageBoxes().MsgBox(QStringLiteral("Words"), flags, title);
}

} // namespace

class MsgBoxTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void flagsGiveIconButtonsAndDefault_data();
    void flagsGiveIconButtonsAndDefault();
    void theTitleIsTheProgramsUnlessOneIsGiven();
    void aBoxOfFewWordsIsWideEnoughForItsTitle();
    void aBoxStandsOverTheMiddleOfItsWindow();
    void itsWordsStandBesideTheMiddleOfThePicture();
    void theFeetOfItsLettersHaveRoom();
    void escapeAnswersOkWhereThereIsOkAlone();
    void escapeAnswersCancelWhereThereIsCancel();
    void escapeAndTheCloseButtonLeaveAYesNoBoxOpen();
    void aPressedButtonIsTheAnswer();
    void textIsNoMarkup();
    void timersGoOnWhileABoxIsOpen();
    void theHourglassStandsBackWhileABoxIsOpen();
    void theCallerGoesNoFurtherWhenTheProgramEndsBehindTheBox();
};

void MsgBoxTest::init() {
    qApp->setProperty("orvalisEnded", QVariant());
}

void MsgBoxTest::flagsGiveIconButtonsAndDefault_data() {
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("buttons");
    QTest::addColumn<QString>("defaultButton");
    const auto row = [](const char* name, int flags, QMessageBox::Icon icon, const char* buttons,
                        const char* defaultButton) {
        QTest::newRow(name) << flags << static_cast<int>(icon) << QString::fromLatin1(buttons)
                            << QString::fromLatin1(defaultButton);
    };
    row("plain", 0, QMessageBox::NoIcon, "OK", "OK");
    row("OK and Cancel", 1, QMessageBox::NoIcon, "OK Cancel", "OK");
    row("Yes and No", 4, QMessageBox::NoIcon, "Yes No", "Yes");
    row("stop", 16, QMessageBox::Critical, "OK", "OK");
    row("Yes and No, stop", 20, QMessageBox::Critical, "Yes No", "Yes");
    row("OK and Cancel, question", 33, QMessageBox::Question, "OK Cancel", "OK");
    row("exclamation", 48, QMessageBox::Warning, "OK", "OK");
    row("OK and Cancel, exclamation", 49, QMessageBox::Warning, "OK Cancel", "OK");
    row("Yes and No, exclamation", 52, QMessageBox::Warning, "Yes No", "Yes");
    row("information", 64, QMessageBox::Information, "OK", "OK");
    row("Yes and No, information", 68, QMessageBox::Information, "Yes No", "Yes");
    row("No is default", 308, QMessageBox::Warning, "Yes No", "No");
}

void MsgBoxTest::flagsGiveIconButtonsAndDefault() {
    QFETCH(int, flags);
    QFETCH(int, icon);
    QFETCH(QString, buttons);
    QFETCH(QString, defaultButton);
    ask(flags, [&](QMessageBox& box) {
        QCOMPARE(static_cast<int>(box.icon()), icon);
        QStringList captions;
        for (const auto button : {QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::Yes,
                                  QMessageBox::No, QMessageBox::Close, QMessageBox::Help})
            if (box.button(button) != nullptr)
                captions << box.button(button)->text().remove(u'&');
        QCOMPARE(captions.join(u' '), buttons);
        QVERIFY(box.defaultButton() != nullptr);
        QCOMPARE(box.defaultButton()->text().remove(u'&'), defaultButton);
        box.buttons().constFirst()->click();
    });
}

void MsgBoxTest::theTitleIsTheProgramsUnlessOneIsGiven() {
    ask(0, [](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), QStringLiteral("Orvalis"));
        QCOMPARE(box.text(), QStringLiteral("Words"));
        box.accept();
    });
    ask(
        0,
        [](QMessageBox& box) {
            QCOMPARE(box.windowTitle(), QStringLiteral("Exit Orvalis"));
            box.accept();
        },
        QStringLiteral("Exit Orvalis"));
}

void MsgBoxTest::aBoxOfFewWordsIsWideEnoughForItsTitle() {
    // A title bar has an icon and three buttons beside its title, each about as wide as it is high.
    constexpr int PartsOfATitleBar = 4 * 24;
    for (const QString& title : {QString(), QStringLiteral("A title of more words than the box")}) {
        int width = 0;
        int needed = 0;
        ask(
            0,
            [&](QMessageBox& box) {
                QFont font = box.font();
                font.setBold(true);
                needed = QFontMetrics(font).horizontalAdvance(box.windowTitle()) + PartsOfATitleBar;
                width = box.width();
                box.accept();
            },
            title);
        QVERIFY(width >= needed);
    }
}

void MsgBoxTest::aBoxStandsOverTheMiddleOfItsWindow() {
    Form form(QStringLiteral("window"));
    form.setFixedSize(500, 400);
    form.load();
    form.Show();
    form.move(120, 130);
    for (const int flags : {0, 16, 68}) {
        QPoint off;
        ask(flags, [&](QMessageBox& box) {
            off = box.geometry().center() - form.geometry().center();
            box.buttons().constFirst()->click();
        });
        QVERIFY2(off.manhattanLength() <= 2,
                 qPrintable(QStringLiteral("%1 and %2").arg(off.x()).arg(off.y())));
    }
    form.Hide();
}

void MsgBoxTest::itsWordsStandBesideTheMiddleOfThePicture() {
    QPoint words;
    QPoint picture;
    ask(16, [&](QMessageBox& box) {
        const auto middle = [&box](const char* name) {
            const auto* label = box.findChild<QLabel*>(QString::fromLatin1(name));
            return label->geometry().center();
        };
        words = middle("qt_msgbox_label");
        picture = middle("qt_msgboxex_icon_label");
        QVERIFY(box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))
                    ->alignment()
                    .testFlag(Qt::AlignVCenter));
        box.accept();
    });
    QVERIFY(std::abs(words.y() - picture.y()) <= 2);
}

void MsgBoxTest::theFeetOfItsLettersHaveRoom() {
    int room = 0;
    ask(0, [&](QMessageBox& box) {
        const auto* words = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        room = words->height() - words->fontMetrics().height();
        box.accept();
    });
    QVERIFY2(room >= 2, qPrintable(QString::number(room)));
}

void MsgBoxTest::escapeAnswersOkWhereThereIsOkAlone() {
    QCOMPARE(ask(
                 48, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
             Answer::Ok);
}

void MsgBoxTest::escapeAnswersCancelWhereThereIsCancel() {
    QCOMPARE(ask(
                 49, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
             Answer::Cancel);
}

void MsgBoxTest::escapeAndTheCloseButtonLeaveAYesNoBoxOpen() {
    const Answer answer = ask(68, [](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        QVERIFY(box.isVisible());
        QVERIFY(!box.close());
        QVERIFY(box.isVisible());
        box.button(QMessageBox::Yes)->click();
    });
    QCOMPARE(answer, Answer::Yes);
}

void MsgBoxTest::aPressedButtonIsTheAnswer() {
    QCOMPARE(ask(
                 4, [](QMessageBox& box) { box.button(QMessageBox::No)->click(); }),
             Answer::No);
    QCOMPARE(ask(
                 4, [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }),
             Answer::Yes);
    QCOMPARE(ask(
                 1, [](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); }),
             Answer::Ok);
    QCOMPARE(ask(1, [](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); }),
             Answer::Cancel);
}

void MsgBoxTest::textIsNoMarkup() {
    ask(
        0,
        [](QMessageBox& box) {
            QCOMPARE(box.textFormat(), Qt::PlainText);
            box.accept();
        });
}

void MsgBoxTest::timersGoOnWhileABoxIsOpen() {
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (++ticks == 3)
            openBox()->accept();
    });
    timer.start(1);
    QtMessageBoxes().MsgBox(QStringLiteral("Words"));
    QVERIFY(ticks >= 3);
}

void MsgBoxTest::theHourglassStandsBackWhileABoxIsOpen() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    bool stoodBack = false;
    ask(0, [&stoodBack](QMessageBox& box) {
        stoodBack = QGuiApplication::overrideCursor() == nullptr;
        box.accept();
    });
    QVERIFY(stoodBack);
    QVERIFY(QGuiApplication::overrideCursor() != nullptr);
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void MsgBoxTest::theCallerGoesNoFurtherWhenTheProgramEndsBehindTheBox() {
    bool wentOn = false;
    try {
        ask(0, [](QMessageBox& box) {
            markProgramEnded();
            box.done(0);
        });
        wentOn = true;
    } catch (const ProgramEnded&) {
        QVERIFY(programHasEnded());
    }
    QVERIFY(!wentOn);
}

ORVALIS_TEST_MAIN_WITH(QApplication, MsgBoxTest)
#include "msg_box_test.moc"
