// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "password/password_ground.h"

#include "runtime/ansi_page.h"

#include <QRandomGenerator>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Stop = 16;
constexpr int Information = 64;

QString randomText(QRandomGenerator& random, int length) {
    QString result;
    for (int i = 0; i < length; ++i)
        result += AnsiPage::ofUser().character(static_cast<quint8>(random.bounded(255)));
    return result;
}

} // namespace

class PasswordPanelTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    void thePanelSaysWhatItIs();
    void theClockGoesOnBesideAnAlarm_data();
    void theClockGoesOnBesideAnAlarm();
    void theCommandsHaveTheirToolTips();
    void thePasswordIsHiddenOnItsOwnPaper();
    void theFrameAndItsButtonsHaveTheirWords();
    void methodTwoIsChosenAndBothLieBelowThePanel();
    void methodOneIsAtWorkWhereItIsChosen();
    void newEmptiesBothTextsAndKeepsThePassword();
    void openFillsTheLeftText();
    void openThatIsCancelledSaysNothing();
    void openOfWhatCannotBeReadSaysNothing();
    void backCopiesTheLeftTextAndGoesToThePassword();
    void backOverwritesTheRightTextWithoutAsking();
    void backLosesAllFormatting();
    void backWithoutALeftTextSaysSo();
    void cryptWithoutAPasswordSaysSo();
    void cryptWithoutATextStaysEmpty();
    void textTypedOnTheRightIsScrambledWithoutBack();
    void scramblingTwiceGivesATextTwiceAsLongAgain();
    void blanksThatAreCodesAreMarked();
    void bringingBackGoesOnWithThePlainText();
    void aRunThatFailsEmptiesTheRightTextAndLeavesTheBar();
    void theNextNormalRunHidesTheBar();
    void aTextTooLongToComeBackIsScrambledAllTheSame();
    void theFocusStaysAfterCrypt();
    void theMailGoesToNobodyInParticular();
    void theSavePictureOpensItsMenuWithTheLeftButtonAlone();
    void theSaveMenuHasItsTwoEntries();
    void eachTextIsSavedByItsEntry_data();
    void eachTextIsSavedByItsEntry();
    void aSaveThatIsCancelledOrFailsSaysNothing();
    void anExistingFileIsReplacedWithoutAQuestion();
    void scrambledTextGoesThroughAFileAndBack();
    void nothingOfThePanelIsWrittenAnywhere();

private:
    std::unique_ptr<PasswordGround> m_ground;
};

void PasswordPanelTest::init() {
    m_ground = std::make_unique<PasswordGround>();
    m_ground->shown();
}

void PasswordPanelTest::theClockGoesOnBesideAnAlarm_data() {
    QTest::addColumn<int>("width");
    for (const int width : {800, 822, 864, 898, 1024})
        QTest::addRow("%d", width) << width;
}

void PasswordPanelTest::theClockGoesOnBesideAnAlarm() {
    QFETCH(int, width);
    m_ground->screen.screenSize = QSize(width, width);
    frmnotes4& panel = m_ground->shown();
    m_ground->program.state.alarmArmed = true;
    m_ground->program.state.alarmTimeText = u"23:00:00"_s;
    panel.showAlarm();
    QCOMPARE(panel.alarmShown(), u"23:00:00"_s);
    Label& clock = m_ground->control<Label>(u"lblVreme"_s);
    const auto drawn = [&] { return panel.grab(clock.geometry().adjusted(0, 0, -4, 0)).toImage(); };
    const QImage told = drawn();
    clock.setCaption({});
    QVERIFY(drawn() != told);
}

void PasswordPanelTest::thePanelSaysWhatItIs() {
    QCOMPARE(m_ground->panel().windowTitle(), u"Password"_s);
    QCOMPARE(m_ground->control<Label>(u"lblRem"_s).Caption(), u"PASSWORD"_s);
    QCOMPARE(m_ground->panel().size(), QSize(700, 450));
    QVERIFY(m_ground->left().Text().isEmpty());
    QVERIFY(m_ground->right().Text().isEmpty());
    QVERIFY(m_ground->password().text().isEmpty());
    QVERIFY(!m_ground->bar().isVisible());
}

void PasswordPanelTest::theCommandsHaveTheirToolTips() {
    QStringList tips;
    for (const QString& name :
         {u"imgNew"_s, u"imgOpen"_s, u"imgSave"_s, u"imgMail"_s, u"imgBack"_s})
        tips << m_ground->control<Image>(name).toolTip();
    QCOMPARE(tips,
             (QStringList{u"New"_s, u"Open"_s, u"Save"_s, u"Sand Email"_s, u"Encrypt/Decrypt"_s}));
}

void PasswordPanelTest::thePasswordIsHiddenOnItsOwnPaper() {
    QLineEdit& field = m_ground->password();
    QCOMPARE(field.echoMode(), QLineEdit::Password);
    field.setText(u"rose"_s);
    QCOMPARE(field.displayText().size(), 4);
    QVERIFY(!field.displayText().contains(u'r'));
    QCOMPARE(field.palette().color(QPalette::Base), QColor(0x86, 0xBD, 0xCB));
}

void PasswordPanelTest::theFrameAndItsButtonsHaveTheirWords() {
    QCOMPARE(m_ground->control<QGroupBox>(u"Frame4"_s).title(), u"Encrypt/Decrypt text "_s);
    QCOMPARE(m_ground->control<Label>(u"Label6"_s).Caption(), u"Password"_s);
    auto& encrypt = m_ground->control<GGCommand>(u"cmdCrypt(0)"_s);
    auto& decrypt = m_ground->control<GGCommand>(u"cmdCrypt(1)"_s);
    QCOMPARE(encrypt.Caption(), u"Encrypt"_s);
    QCOMPARE(decrypt.Caption(), u"Decrypt"_s);
    for (const GGCommand* button : {&encrypt, &decrypt}) {
        QCOMPARE(button->GradientFromColor(), 0xFFFCF8u);
        QCOMPARE(button->GradientToColor(), 0xCBBD86u);
        QCOMPARE(button->FontColorOnHover(), 0x808000u);
        QCOMPARE(button->font().family(), u"MS Sans Serif"_s);
    }
}

void PasswordPanelTest::methodTwoIsChosenAndBothLieBelowThePanel() {
    auto& first = m_ground->control<QRadioButton>(u"optMethod(0)"_s);
    auto& second = m_ground->control<QRadioButton>(u"optMethod(1)"_s);
    QCOMPARE(first.text(), u"1"_s);
    QCOMPARE(second.text(), u"2"_s);
    QVERIFY(!first.isChecked());
    QVERIFY(second.isChecked());
    for (const QRadioButton* option : {&first, &second}) {
        QVERIFY(option->y() > m_ground->panel().height());
        QCOMPARE(option->focusPolicy(), Qt::NoFocus);
    }
    m_ground->right().SetText(u"A"_s);
    m_ground->password().setText(u"b"_s);
    m_ground->encrypt();
    QCOMPARE(m_ground->right().Text(), Chr(130) + Chr(33));
}

void PasswordPanelTest::methodOneIsAtWorkWhereItIsChosen() {
    m_ground->control<QRadioButton>(u"optMethod(0)"_s).setChecked(true);
    m_ground->right().SetText(u"A"_s);
    m_ground->password().setText(u"b"_s);
    m_ground->encrypt();
    QCOMPARE(m_ground->right().Text(), Chr(163) + Chr(82));
    m_ground->decrypt();
    QCOMPARE(m_ground->right().Text(), u"A"_s);
}

void PasswordPanelTest::newEmptiesBothTextsAndKeepsThePassword() {
    m_ground->left().SetText(u"left"_s);
    m_ground->right().SetText(u"right"_s);
    m_ground->password().setText(u"rose"_s);
    m_ground->press(u"imgNew"_s);
    QCOMPARE(m_ground->left().Text(), QString());
    QCOMPARE(m_ground->right().Text(), QString());
    QCOMPARE(m_ground->password().text(), u"rose"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::openFillsTheLeftText() {
    m_ground->right().SetText(u"right"_s);
    m_ground->dialogs.answerOpen(m_ground->folder.write(u"a.txt"_s, "one\r\ntwo"));
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(m_ground->left().Text(), u"one\r\ntwo"_s);
    QCOMPARE(m_ground->right().Text(), u"right"_s);
    QCOMPARE(m_ground->dialogs.opened.constLast().filter,
             u"Text (*.txt)|*.txt|All Files (*.*)|*.*"_s);
    // The name of the file before does not come up again.
    m_ground->dialogs.answerOpen(std::nullopt);
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(m_ground->dialogs.opened.constLast().fileName, QString());
}

void PasswordPanelTest::openThatIsCancelledSaysNothing() {
    m_ground->left().SetText(u"left"_s);
    m_ground->dialogs.answerOpen(std::nullopt);
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(m_ground->left().Text(), u"left"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::openOfWhatCannotBeReadSaysNothing() {
    m_ground->left().SetText(u"left"_s);
    m_ground->dialogs.answerOpen(m_ground->folder.file(u"missing.txt"_s));
    m_ground->press(u"imgOpen"_s);
    m_ground->dialogs.answerOpen(m_ground->folder.path());
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(m_ground->left().Text(), u"left"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::backCopiesTheLeftTextAndGoesToThePassword() {
    m_ground->left().SetText(u"words"_s);
    m_ground->left().setFocus();
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->right().Text(), u"words"_s);
    QCOMPARE(m_ground->left().Text(), u"words"_s);
    QVERIFY(m_ground->password().hasFocus());
}

void PasswordPanelTest::backOverwritesTheRightTextWithoutAsking() {
    m_ground->left().SetText(u"words"_s);
    m_ground->right().SetText(u"something else"_s);
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->right().Text(), u"words"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::backLosesAllFormatting() {
    m_ground->left().SetTextRTF(QByteArray("{\\rtf1 \\b bold}"));
    m_ground->press(u"imgBack"_s);
    m_ground->right().SetSelStart(0);
    m_ground->right().SetSelLength(4);
    QCOMPARE(m_ground->right().SelBold(), std::optional(false));
}

void PasswordPanelTest::backWithoutALeftTextSaysSo() {
    m_ground->right().SetText(u"right"_s);
    m_ground->boxes.expect(u"Write or load text you want to encrypt/decrypt."_s, Information,
                           Answer::Ok);
    m_ground->press(u"imgBack"_s);
    QCOMPARE(m_ground->right().Text(), u"right"_s);
    QVERIFY(!m_ground->password().hasFocus());
}

void PasswordPanelTest::cryptWithoutAPasswordSaysSo() {
    m_ground->right().SetText(u"right"_s);
    for (int index = 0; index < 2; ++index) {
        m_ground->boxes.expect(u"Enter Password."_s, Stop, Answer::Ok);
        m_ground->press(u"cmdCrypt(%1)"_s.arg(index));
    }
    QCOMPARE(m_ground->right().Text(), u"right"_s);
}

void PasswordPanelTest::cryptWithoutATextStaysEmpty() {
    m_ground->password().setText(u"rose"_s);
    m_ground->encrypt();
    m_ground->decrypt();
    QCOMPARE(m_ground->right().Text(), QString());
    QVERIFY(!m_ground->bar().isVisible());
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::textTypedOnTheRightIsScrambledWithoutBack() {
    m_ground->password().setText(u"rose"_s);
    m_ground->right().setFocus();
    QTest::keyClicks(&m_ground->right(), u"typed"_s);
    m_ground->encrypt();
    QCOMPARE(m_ground->right().Text().size(), 10);
    m_ground->decrypt();
    QCOMPARE(m_ground->right().Text(), u"typed"_s);
}

void PasswordPanelTest::blanksThatAreCodesAreMarked() {
    QVERIFY(m_ground->left().marksNoBreakBlanks());
    QVERIFY(m_ground->right().marksNoBreakBlanks());
}

void PasswordPanelTest::scramblingTwiceGivesATextTwiceAsLongAgain() {
    m_ground->password().setText(u"rose"_s);
    m_ground->right().SetText(u"words"_s);
    m_ground->encrypt();
    QCOMPARE(m_ground->right().Text().size(), 10);
    m_ground->encrypt();
    QCOMPARE(m_ground->right().Text().size(), 20);
    m_ground->decrypt();
    m_ground->decrypt();
    QCOMPARE(m_ground->right().Text(), u"words"_s);
}

void PasswordPanelTest::bringingBackGoesOnWithThePlainText() {
    m_ground->password().setText(u"!"_s);
    m_ground->right().SetText(u"  words!  "_s);
    m_ground->decrypt();
    QCOMPARE(m_ground->right().Text().size(), 5);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::aRunThatFailsEmptiesTheRightTextAndLeavesTheBar() {
    m_ground->password().setText(u"rose"_s);
    m_ground->right().SetText(u"odd"_s);
    m_ground->boxes.expect(u"Invalid property value"_s, Stop, Answer::Ok);
    m_ground->decrypt();
    QCOMPARE(m_ground->right().Text(), QString());
    QVERIFY(m_ground->bar().isVisible());
    QVERIFY(m_ground->bar().Value() > 60);

    m_ground->right().SetText(QString(32768, u'x'));
    m_ground->boxes.expect(u"Overflow"_s, Stop, Answer::Ok);
    m_ground->encrypt();
    QCOMPARE(m_ground->right().Text(), QString());

    m_ground->right().SetText(Chr(255) + Chr(255));
    m_ground->boxes.expect(u"Invalid procedure call or argument"_s, Stop, Answer::Ok);
    m_ground->decrypt();
    QCOMPARE(m_ground->right().Text(), QString());
    QVERIFY(m_ground->bar().isVisible());
}

void PasswordPanelTest::theNextNormalRunHidesTheBar() {
    m_ground->password().setText(u"rose"_s);
    m_ground->right().SetText(u"odd"_s);
    m_ground->boxes.answer(Answer::Ok);
    m_ground->decrypt();
    m_ground->right().SetText(u"words"_s);
    m_ground->encrypt();
    QVERIFY(!m_ground->bar().isVisible());
}

void PasswordPanelTest::aTextTooLongToComeBackIsScrambledAllTheSame() {
    m_ground->password().setText(u"rose"_s);
    m_ground->right().SetText(QString(16384, u'x'));
    m_ground->encrypt();
    QCOMPARE(m_ground->right().Text().size(), 32768);
    m_ground->boxes.expect(u"Overflow"_s, Stop, Answer::Ok);
    m_ground->decrypt();
    QCOMPARE(m_ground->right().Text(), QString());
}

void PasswordPanelTest::theFocusStaysAfterCrypt() {
    m_ground->password().setText(u"rose"_s);
    m_ground->right().SetText(u"words"_s);
    m_ground->password().setFocus();
    m_ground->encrypt();
    QVERIFY(m_ground->password().hasFocus());
}

void PasswordPanelTest::theMailGoesToNobodyInParticular() {
    m_ground->left().SetText(u"secret"_s);
    m_ground->shell.opens = false; // not looked at
    m_ground->press(u"imgMail"_s);
    QCOMPARE(m_ground->shell.opened, QStringList{u"mailto:someone@example.com"_s});
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::theSavePictureOpensItsMenuWithTheLeftButtonAlone() {
    auto& picture = m_ground->control<Image>(u"imgSave"_s);
    QTest::mouseClick(&picture, Qt::RightButton);
    QCOMPARE(m_ground->menus, QStringList());
    QTest::mousePress(&picture, Qt::LeftButton);
    QCOMPARE(m_ground->menus, QStringList{u"mnusave"_s});
}

void PasswordPanelTest::theSaveMenuHasItsTwoEntries() {
    const auto* menu =
        m_ground->program.windows.get<PopupMenus>().form().findChild<QMenu*>(u"mnusave"_s);
    QVERIFY(menu);
    QStringList entries;
    for (const QAction* action : menu->actions())
        entries << action->objectName() + u' ' + action->text();
    QCOMPARE(entries, (QStringList{u"mninormal Save Text on the &Left"_s,
                                   u"mnuencrypted Save Text on the &Right"_s}));
}

void PasswordPanelTest::eachTextIsSavedByItsEntry_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("left") << u"mninormal"_s << u"Text (*.txt)|*.txt|"_s << QByteArray("left");
    QTest::newRow("right") << u"mnuencrypted"_s << u"Text (*.txt)|*.txt"_s << QByteArray("right");
}

void PasswordPanelTest::eachTextIsSavedByItsEntry() {
    QFETCH(QString, entry);
    QFETCH(QString, filter);
    QFETCH(QByteArray, bytes);
    m_ground->left().SetText(u"left"_s);
    m_ground->right().SetText(u"right"_s);
    for (int round = 0; round < 2; ++round) {
        m_ground->dialogs.answerSave(m_ground->folder.file(u"out"_s));
        m_ground->choose(entry);
        QCOMPARE(m_ground->dialogs.saved.constLast().filter, filter);
        QCOMPARE(m_ground->dialogs.saved.constLast().fileName, QString());
        QCOMPARE(m_ground->folder.read(u"out"_s), bytes); // no extension is added
    }
}

void PasswordPanelTest::aSaveThatIsCancelledOrFailsSaysNothing() {
    for (const QString& entry : {u"mninormal"_s, u"mnuencrypted"_s}) {
        m_ground->dialogs.answerSave(std::nullopt);
        m_ground->choose(entry);
        m_ground->dialogs.answerSave(m_ground->folder.file(u"no such folder/out.txt"_s));
        m_ground->choose(entry);
    }
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::anExistingFileIsReplacedWithoutAQuestion() {
    m_ground->folder.write(u"out.txt"_s, "old");
    m_ground->left().SetText(u"new"_s);
    m_ground->dialogs.answerSave(m_ground->folder.file(u"out.txt"_s));
    m_ground->choose(u"mninormal"_s);
    QCOMPARE(m_ground->folder.read(u"out.txt"_s), QByteArray("new"));
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::scrambledTextGoesThroughAFileAndBack() {
    QRandomGenerator random(7);
    const QString path = m_ground->folder.file(u"secret.txt"_s);
    for (int round = 0; round < 40; ++round) {
        // All codes but 255, which the cipher itself can lose.
        const QString words = randomText(random, round * 25);
        m_ground->password().setText(u"rose %1"_s.arg(round));
        m_ground->right().SetText(words);
        QCOMPARE(m_ground->right().Text(), words);
        m_ground->encrypt();
        const QString scrambled = m_ground->right().Text();
        QCOMPARE(scrambled.size(), 2 * words.size());
        m_ground->dialogs.answerSave(path);
        m_ground->choose(u"mnuencrypted"_s);
        QCOMPARE(m_ground->folder.read(u"secret.txt"_s), AnsiPage::ofUser().encode(scrambled));
        m_ground->press(u"imgNew"_s);
        m_ground->dialogs.answerOpen(path);
        m_ground->press(u"imgOpen"_s);
        // It comes back on the left, and is not on the right before it is carried over.
        QCOMPARE(m_ground->left().Text(), scrambled);
        QCOMPARE(m_ground->right().Text(), QString());
        if (words.isEmpty())
            continue;
        m_ground->press(u"imgBack"_s);
        m_ground->decrypt();
        QCOMPARE(m_ground->right().Text(), words);
    }
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void PasswordPanelTest::nothingOfThePanelIsWrittenAnywhere() {
    m_ground->left().SetText(u"secret"_s);
    m_ground->right().SetText(u"secret"_s);
    m_ground->password().setText(u"rose"_s);
    m_ground->encrypt();
    m_ground->program.windows.unload<PasswordPanel>();
    QVERIFY(QDir(m_ground->folder.path()).entryList(QDir::Files).isEmpty());
}

ORVALIS_TEST_MAIN_WITH(QApplication, PasswordPanelTest)
#include "password_panel_test.moc"
