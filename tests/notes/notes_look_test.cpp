// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_ground.h"

#include "skin/style.h"
#include "support/contrast.h"

#include <QFrame>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

/// The open book in the dress of the program.
class NotesLookTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { skin::dress(*qApp); }
    void aDoublePageHidesWhatStandsOnTheRightPage();
    void theRightPageIsReadAgainBesideASinglePage();
    void everyWordStandsOutFromItsGround();
    void everyWordOfTheFindFrameStandsOutFromItsGround();
    void everyCaptionHasItsRoom_data();
    void everyCaptionHasItsRoom();
    void theToolsStandOnThePaper_data() { everyCaptionHasItsRoom_data(); }
    void theToolsStandOnThePaper();

private:
    static QImage rightPage(NotesGround& ground) {
        return ground.panel().grab(ground.rt1a().geometry()).toImage();
    }
    static double contrastOf(NotesGround& ground, const QString& name) {
        return textContrast(drawnLarge(ground.control<QWidget>(name)));
    }
};

void NotesLookTest::aDoublePageHidesWhatStandsOnTheRightPage() {
    NotesGround ground;
    ground.shown();
    const QImage blank = rightPage(ground);
    ground.rt1a().SetText(QString(2000, u'M'));
    QVERIFY(rightPage(ground) != blank);
    ground.press(u"Toolbar2(9)"_s);
    const QImage covered = rightPage(ground);
    ground.rt1a().SetText({});
    QCOMPARE(rightPage(ground), covered);
}

void NotesLookTest::theRightPageIsReadAgainBesideASinglePage() {
    NotesGround ground;
    ground.shown();
    ground.rt1a().SetText(QString(2000, u'M'));
    const QImage before = ground.panel().grab().toImage();
    ground.press(u"Toolbar2(9)"_s);
    QVERIFY(ground.panel().grab().toImage() != before);
    ground.press(u"Toolbar2(10)"_s);
    QCOMPARE(ground.panel().grab().toImage(), before);
}

void NotesLookTest::everyWordStandsOutFromItsGround() {
    NotesGround ground;
    ground.shown();
    ground.rt1().SetText(u"What is written here is read."_s);
    ground.rt1a().SetText(u"What is written here is read."_s);
    for (const char* name : {"lblNot", "lblAdd", "lblPass", "lblVreme", "Label3", "Button1"})
        QVERIFY2(contrastOf(ground, QString::fromLatin1(name)) >= ReadableContrast, name);
    for (const RichTextBox* page : {&ground.rt1(), &ground.rt1a()}) {
        const QRect line(page->pos(), QSize(120, 24));
        QVERIFY2(textContrast(drawnLarge(ground.panel(), line)) >= ReadableContrast,
                 qPrintable(page->objectName()));
    }
}

void NotesLookTest::everyWordOfTheFindFrameStandsOutFromItsGround() {
    NotesGround ground;
    ground.shown();
    ground.rt1().SetText(u" lake"_s);
    ground.press(u"Toolbar2(7)"_s);
    ground.control<QLineEdit>(u"Text1"_s).setText(u"lake"_s);
    ground.press(u"FindButton"_s);
    for (const char* name : {"Label5", "Label4", "Check4", "Check3", "FindButton", "FindNextButton",
                             "ReplaceButton", "ReplaceAllButton", "Command5"})
        QVERIFY2(contrastOf(ground, QString::fromLatin1(name)) >= ReadableContrast, name);
}

void NotesLookTest::everyCaptionHasItsRoom_data() {
    QTest::addColumn<int>("width");
    for (const int width : {800, 822, 864, 898, 1024})
        QTest::addRow("%d", width) << width;
}

void NotesLookTest::everyCaptionHasItsRoom() {
    QFETCH(int, width);
    NotesGround ground(QSize(width, width));
    ground.shown();
    const auto wide = [](const QWidget& widget, const QString& text) {
        return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
    };
    for (const Label* label : ground.panel().findChildren<Label*>())
        QVERIFY2(wide(*label, label->Caption()) <= label->width(), qPrintable(label->objectName()));
    for (const QCheckBox* check : ground.panel().findChildren<QCheckBox*>())
        QVERIFY2(check->sizeHint().width() <= check->width(), qPrintable(check->objectName()));
    for (const GGCommand* button : ground.panel().findChildren<GGCommand*>())
        QVERIFY2(wide(*button, button->Caption()) + 4 <= button->width(),
                 qPrintable(button->objectName()));
}

void NotesLookTest::theToolsStandOnThePaper() {
    QFETCH(int, width);
    NotesGround ground(QSize(width, width));
    ground.shown();
    QApplication::processEvents();
    constexpr int PaperTop = 31; // the picture's highest line of paper
    for (const char* bar : {"Toolbar1", "Toolbar2"}) {
        const auto& tools = ground.control<QWidget>(QString::fromLatin1(bar));
        const auto* title = &ground.control<Label>(u"Label3"_s);
        QVERIFY(tools.geometry().bottom() <= title->geometry().top());
        for (const QToolButton* tool : tools.findChildren<QToolButton*>()) {
            if (tool->isHidden())
                continue;
            const QRect place(tool->mapTo(&ground.panel(), QPoint()), tool->size());
            QVERIFY2(place.top() > PaperTop, qPrintable(tool->objectName()));
            QVERIFY2(place.bottom() <= title->geometry().top(), qPrintable(tool->objectName()));
            QVERIFY2(tools.rect().contains(tool->geometry()), qPrintable(tool->objectName()));
        }
    }
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesLookTest)
#include "notes_look_test.moc"
