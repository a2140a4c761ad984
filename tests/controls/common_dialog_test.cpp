// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/common_dialog.h"
#include "controls/font_dialog.h"
#include "runtime/program_end.h"
#include "support/environment.h"
#include "support/scripted_dialogs.h"
#include "support/test_main.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

#include <functional>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

const FontChoice Present{.italic = true,
                         .bold = false,
                         .name = QStringLiteral("No Such Family"),
                         .size = 11.5,
                         .strikethrough = true,
                         .underline = false,
                         .colour = 0x0000FF};

template <class Dialog>
void whenOpen(const std::function<void(Dialog&)>& use) {
    QTimer::singleShot(
        0, qApp,
        [use] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) {
                QTest::qFail("No such dialog is open", __FILE__, __LINE__);
                return;
            }
            use(*dialog);
        });
}

/// A home with folders for music, pictures and documents.
class UsersFolders {
public:
    UsersFolders() {
        m_environment.set("HOME", m_home.path().toUtf8());
        m_environment.set("XDG_CONFIG_HOME", m_home.path().toUtf8());
        QFile file(m_home.filePath(u"user-dirs.dirs"_s));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no folders");
        for (const QString& name : {u"Music"_s, u"Pictures"_s, u"Documents"_s}) {
            QDir(m_home.path()).mkdir(name);
            file.write("XDG_" + name.toUpper().toUtf8() + "_DIR=\"" + path(name).toUtf8() + "\"\n");
        }
    }
    QString path(const QString& name) const { return m_home.filePath(name); }

private:
    QTemporaryDir m_home;
    test::Environment m_environment;
};

std::optional<quint32> noColour(quint32) {
    return std::nullopt;
}

} // namespace

class CommonDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void theChosenFileIsTheFileName();
    void theFileDialogsGetWhatTheFormSet();
    void cancelLeavesThePropertiesAndIsSilentByDefault();
    void cancelFailsWith32755WhereTheFormAsksForThat();
    void theFontDialogStartsFromTheProperties();
    void theFontChoiceGoesIntoTheProperties();
    void theColourChoiceGoesIntoTheColour();
    void aMixedSelectionHasNoValueAndFailsWith94();
    void filtersBecomeNameFilters_data();
    void filtersBecomeNameFilters();
    void savingOverAFileAsksNothingAndAddsNoExtension();
    void aFileThatIsNotThereCanBeOpened();
    void theFileDialogOpensInTheFolderOfItsKind_data();
    void theFileDialogOpensInTheFolderOfItsKind();
    void theFileDialogComesBackToWhereTheLastFileWas();
    void theFileDialogShowsWholeDates();
    void escapeInAFileDialogIsCancel();
    void theHourglassStandsBackWhileADialogIsOpen();
    void theFontDialogOffersAllSevenThings();
    void aFamilyThatIsNotInstalledIsKept();
    void anUnreadableSizeIsTheOneThatWasGiven();
    void thePreviewShowsTheChoice();
    void theColourOfTheFontDialogComesFromTheColourDialog();
    void cancelOfTheFontDialogGivesNothing();
    void aDialogBehindWhichTheProgramEndedGivesNothing();

private:
    test::ScriptedDialogs m_dialogs;
};

void CommonDialogTest::initTestCase() {
    // The desktop's own file dialog would not be Qt's.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void CommonDialogTest::init() {
    m_dialogs.verifyAllAsked();
    qApp->setProperty("orvalisEnded", QVariant());
}

void CommonDialogTest::theChosenFileIsTheFileName() {
    CommonDialog dialog(m_dialogs);
    m_dialogs.answerOpen(u"/a/b.rtf"_s);
    dialog.ShowOpen();
    QCOMPARE(dialog.FileName, u"/a/b.rtf"_s);
    m_dialogs.answerSave(u"/a/c.txt"_s);
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, u"/a/c.txt"_s);
}

void CommonDialogTest::theFileDialogsGetWhatTheFormSet() {
    CommonDialog dialog(m_dialogs);
    dialog.Filter = u"Notes (*.rtf)|*.rtf"_s;
    dialog.InitDir = u"/tmp"_s;
    dialog.FileName = u"x.rtf"_s;
    dialog.DialogTitle = u"Backup data"_s;
    m_dialogs.answerSave(std::nullopt);
    dialog.ShowSave();
    const FileRequest asked = m_dialogs.saved.constLast();
    QCOMPARE(asked.filter, u"Notes (*.rtf)|*.rtf"_s);
    QCOMPARE(asked.directory, u"/tmp"_s);
    QCOMPARE(asked.fileName, u"x.rtf"_s);
    QCOMPARE(asked.title, u"Backup data"_s);
}

void CommonDialogTest::cancelLeavesThePropertiesAndIsSilentByDefault() {
    CommonDialog dialog(m_dialogs);
    dialog.FileName = u"before"_s;
    dialog.FontName = u"Arial"_s;
    dialog.Color = 7;
    m_dialogs.answerOpen(std::nullopt);
    m_dialogs.answerSave(std::nullopt);
    m_dialogs.answerFont(std::nullopt);
    m_dialogs.answerColour(std::nullopt);
    dialog.ShowOpen();
    dialog.ShowSave();
    dialog.ShowFont();
    dialog.ShowColor();
    QCOMPARE(dialog.FileName, u"before"_s);
    QCOMPARE(dialog.FontName, u"Arial"_s);
    QCOMPARE(dialog.Color, 7U);
}

void CommonDialogTest::cancelFailsWith32755WhereTheFormAsksForThat() {
    CommonDialog dialog(m_dialogs);
    dialog.CancelError = true;
    m_dialogs.answerOpen(std::nullopt);
    m_dialogs.answerSave(std::nullopt);
    m_dialogs.answerFont(std::nullopt);
    m_dialogs.answerColour(std::nullopt);
    const std::array<std::function<void()>, 4> shows{
        [&] { dialog.ShowOpen(); }, [&] { dialog.ShowSave(); }, [&] { dialog.ShowFont(); },
        [&] { dialog.ShowColor(); }};
    for (const auto& show : shows) {
        const auto failure = firstFailure(show);
        QVERIFY(failure.has_value());
        QCOMPARE(failure->number(), ErrorNumber::CancelWasSelected);
    }
}

void CommonDialogTest::theFontDialogStartsFromTheProperties() {
    CommonDialog dialog(m_dialogs);
    dialog.FontItalic = Present.italic;
    dialog.FontBold = Present.bold;
    dialog.FontName = Present.name;
    dialog.FontSize = Present.size;
    dialog.FontStrikethru = Present.strikethrough;
    dialog.FontUnderline = Present.underline;
    dialog.Color = Present.colour;
    m_dialogs.answerFont(std::nullopt);
    dialog.ShowFont();
    QCOMPARE(m_dialogs.fonts.constLast(), Present);
}

void CommonDialogTest::theFontChoiceGoesIntoTheProperties() {
    CommonDialog dialog(m_dialogs);
    m_dialogs.answerFont(Present);
    dialog.ShowFont();
    QCOMPARE(dialog.FontItalic, true);
    QCOMPARE(dialog.FontBold, false);
    QCOMPARE(dialog.FontName, u"No Such Family"_s);
    QCOMPARE(dialog.FontSize, 11.5);
    QCOMPARE(dialog.FontStrikethru, true);
    QCOMPARE(dialog.FontUnderline, false);
    QCOMPARE(dialog.Color, 0x0000FFU);
}

void CommonDialogTest::theColourChoiceGoesIntoTheColour() {
    CommonDialog dialog(m_dialogs);
    dialog.Color = 3;
    m_dialogs.answerColour(0x123456);
    dialog.ShowColor();
    QCOMPARE(m_dialogs.colours.constLast(), 3U);
    QCOMPARE(dialog.Color, 0x123456U);
}

void CommonDialogTest::aMixedSelectionHasNoValueAndFailsWith94() {
    QCOMPARE(notNull(std::optional<int>(4)), 4);
    const auto failure = firstFailure([] { notNull(std::optional<bool>()); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidUseOfNull);
}

void CommonDialogTest::filtersBecomeNameFilters_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << QString() << QStringList();
    QTest::newRow("one") << u"Orvalis (*.brf)|*.brf"_s << QStringList{u"Orvalis (*.brf)"_s};
    QTest::newRow("several patterns") << u"Images (*.bmp;*.jpg)|*.bmp;*.jpg|All Files (*.*)|*.*"_s
                                      << QStringList{u"Images (*.bmp *.jpg)"_s, u"All Files (*)"_s};
    QTest::newRow("blank at the end")
        << u"Address data (*.dat) |*.dat"_s << QStringList{u"Address data (*.dat)"_s};
}

void CommonDialogTest::filtersBecomeNameFilters() {
    QFETCH(QString, filter);
    QFETCH(QStringList, expected);
    QCOMPARE(nameFilters(filter), expected);
}

void CommonDialogTest::savingOverAFileAsksNothingAndAddsNoExtension() {
    const QTemporaryDir folder;
    QFile present(folder.filePath(u"present"_s));
    QVERIFY(present.open(QIODevice::WriteOnly));
    present.close();
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), u"Save As"_s);
        dialog.selectFile(u"present"_s);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    QtDialogs dialogs;
    const auto chosen = dialogs.saveFile({.filter = u"Text (*.txt)|*.txt"_s,
                                          .directory = folder.path(),
                                          .fileName = {},
                                          .title = {}});
    QCOMPARE(chosen.value_or(QString()), folder.filePath(u"present"_s));
}

void CommonDialogTest::aFileThatIsNotThereCanBeOpened() {
    const QTemporaryDir folder;
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), u"Insert Image"_s);
        dialog.selectFile(u"missing.rtf"_s);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    QtDialogs dialogs;
    const auto chosen = dialogs.openFile({.filter = u"Notes (*.rtf)|*.rtf"_s,
                                          .directory = folder.path(),
                                          .fileName = {},
                                          .title = u"Insert Image"_s});
    QCOMPARE(chosen.value_or(QString()), folder.filePath(u"missing.rtf"_s));
}

void CommonDialogTest::theFileDialogOpensInTheFolderOfItsKind_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("folder");
    QTest::newRow("sounds") << u"Media Files (*.wav;*.mid;*.mp3;*.m3u)|*.wav;*.mid;*.mp3;*.m3u"_s
                            << u"Music"_s;
    QTest::newRow("pictures") << u"Pictures|*.bmp;*.jpg;*.gif|All Files (*.*)|*.*"_s
                              << u"Pictures"_s;
    QTest::newRow("documents") << u"Rich Text Format (*.rtf)|*.rtf"_s << u"Documents"_s;
    QTest::newRow("anything") << u"All Files (*.*)|*.*"_s << u"Documents"_s;
    QTest::newRow("no filter") << QString() << u"Documents"_s;
}

void CommonDialogTest::theFileDialogOpensInTheFolderOfItsKind() {
    QFETCH(QString, filter);
    QFETCH(QString, folder);
    const UsersFolders folders;
    QString opened;
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        opened = dialog.directory().path();
        dialog.reject();
    });
    QtDialogs().openFile({.filter = filter, .directory = {}, .fileName = {}, .title = {}});
    QCOMPARE(opened, folders.path(folder));
}

void CommonDialogTest::theFileDialogComesBackToWhereTheLastFileWas() {
    const UsersFolders folders;
    const QTemporaryDir elsewhere;
    QtDialogs dialogs;
    const FileRequest sounds{
        .filter = u"Sounds|*.wav"_s, .directory = {}, .fileName = {}, .title = {}};
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        dialog.selectFile(elsewhere.filePath(u"bell.wav"_s));
        dialog.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(elsewhere.filePath(u"bell.wav"_s));
        static_cast<QDialog&>(dialog).accept();
    });
    QCOMPARE(dialogs.saveFile(sounds), std::optional(elsewhere.filePath(u"bell.wav"_s)));
    for (const auto& [filter, folder] : {std::pair(sounds.filter, elsewhere.path()),
                                         std::pair(QString(), folders.path(u"Documents"_s))}) {
        QString opened;
        whenOpen<QFileDialog>([&](QFileDialog& dialog) {
            opened = dialog.directory().path();
            dialog.reject();
        });
        dialogs.openFile({.filter = filter, .directory = {}, .fileName = {}, .title = {}});
        QCOMPARE(opened, folder);
    }
}

void CommonDialogTest::theFileDialogShowsWholeDates() {
    const QTemporaryDir folder;
    // The list writes its dates in the desktop's language, whatever the tests have set.
    const QLocale ofTheTests;
    QLocale::setDefault(QLocale::system());
    // File dialogs keep the widths of their columns among the user's settings.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       folder.filePath(u"settings"_s));
    QFile file(folder.filePath(QString(80, u'n') + u".wav"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    bool whole = false;
    whenOpen<QFileDialog>([&whole](QFileDialog& dialog) {
        auto* files = dialog.findChild<QTreeView*>(u"treeView"_s);
        QTRY_COMPARE(files->model()->rowCount(files->rootIndex()), 1);
        constexpr int DateColumn = 3;
        const QString date =
            QLocale::system().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
        whole =
            files->columnWidth(DateColumn) > files->fontMetrics().horizontalAdvance(date + u"0"_s);
        const int end = files->columnViewportPosition(DateColumn) + files->columnWidth(DateColumn);
        whole = whole && end <= files->viewport()->width();
        dialog.reject();
    });
    QtDialogs().openFile({.filter = {}, .directory = folder.path(), .fileName = {}, .title = {}});
    QLocale::setDefault(ofTheTests);
    QVERIFY(whole);
}

void CommonDialogTest::escapeInAFileDialogIsCancel() {
    whenOpen<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QtDialogs dialogs;
    QVERIFY(!dialogs.openFile({}).has_value());
}

void CommonDialogTest::theHourglassStandsBackWhileADialogIsOpen() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    bool stoodBack = false;
    whenOpen<QFileDialog>([&stoodBack](QFileDialog& dialog) {
        stoodBack = QGuiApplication::overrideCursor() == nullptr;
        dialog.reject();
    });
    QtDialogs().openFile({});
    QVERIFY(stoodBack);
    QVERIFY(QGuiApplication::overrideCursor() != nullptr);
    QGuiApplication::restoreOverrideCursor();
}

void CommonDialogTest::theFontDialogOffersAllSevenThings() {
    FontDialog dialog(Present, noColour);
    QCOMPARE(dialog.choice(), Present);
    dialog.findChild<QCheckBox*>(u"italic"_s)->setChecked(false);
    dialog.findChild<QCheckBox*>(u"bold"_s)->setChecked(true);
    dialog.findChild<QCheckBox*>(u"strikethrough"_s)->setChecked(false);
    dialog.findChild<QCheckBox*>(u"underline"_s)->setChecked(true);
    dialog.findChild<QComboBox*>(u"size"_s)->setCurrentText(u"20"_s);
    auto* families = dialog.findChild<QListWidget*>(u"families"_s);
    QVERIFY(families->count() > 0);
    families->setCurrentRow(0);
    const FontChoice choice = dialog.choice();
    QCOMPARE(choice.italic, false);
    QCOMPARE(choice.bold, true);
    QCOMPARE(choice.strikethrough, false);
    QCOMPARE(choice.underline, true);
    QCOMPARE(choice.size, 20.0);
    QCOMPARE(choice.name, families->item(0)->text());
    QCOMPARE(choice.colour, Present.colour);
}

void CommonDialogTest::aFamilyThatIsNotInstalledIsKept() {
    whenOpen<FontDialog>([](FontDialog& dialog) {
        QCOMPARE(dialog.findChild<QLineEdit*>(u"family"_s)->text(), u"No Such Family"_s);
        dialog.findChild<QCheckBox*>(u"bold"_s)->setChecked(true);
        dialog.accept();
    });
    QtDialogs dialogs;
    const auto chosen = dialogs.chooseFont(Present);
    QVERIFY(chosen.has_value());
    QCOMPARE(chosen->name, u"No Such Family"_s);
    QVERIFY(chosen->bold);
}

void CommonDialogTest::anUnreadableSizeIsTheOneThatWasGiven() {
    FontDialog dialog(Present, noColour);
    auto* size = dialog.findChild<QComboBox*>(u"size"_s);
    for (const QString& text : {u""_s, u"x"_s, u"0"_s, u"-3"_s, u"99999"_s}) {
        size->setCurrentText(text);
        QCOMPARE(dialog.choice().size, 11.5);
    }
}

void CommonDialogTest::thePreviewShowsTheChoice() {
    FontDialog dialog(Present, noColour);
    auto* preview = dialog.findChild<QLabel*>(u"preview"_s);
    QVERIFY(preview->font().italic());
    QVERIFY(preview->font().strikeOut());
    QVERIFY(!preview->font().underline());
    QCOMPARE(preview->font().pointSizeF(), 11.5);
    QCOMPARE(preview->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    dialog.findChild<QCheckBox*>(u"underline"_s)->setChecked(true);
    QVERIFY(preview->font().underline());
}

void CommonDialogTest::theColourOfTheFontDialogComesFromTheColourDialog() {
    quint32 asked = 0;
    FontDialog dialog(Present, [&](quint32 present) -> std::optional<quint32> {
        asked = present;
        return 0x00FF00;
    });
    dialog.findChild<QPushButton*>(u"colour"_s)->click();
    QCOMPARE(asked, Present.colour);
    QCOMPARE(dialog.choice().colour, 0x00FF00U);
}

void CommonDialogTest::cancelOfTheFontDialogGivesNothing() {
    whenOpen<FontDialog>([](FontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QtDialogs dialogs;
    QVERIFY(!dialogs.chooseFont(Present).has_value());
}

void CommonDialogTest::aDialogBehindWhichTheProgramEndedGivesNothing() {
    whenOpen<FontDialog>([](FontDialog& dialog) {
        markProgramEnded();
        dialog.accept();
    });
    QtDialogs dialogs;
    QVERIFY_THROWS_EXCEPTION(ProgramEnded, dialogs.chooseFont(Present));
}

ORVALIS_TEST_MAIN_WITH(QApplication, CommonDialogTest)
#include "common_dialog_test.moc"
