// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/qt_dialogs.h"

#include "controls/font_dialog.h"
#include "runtime/failure.h"
#include "runtime/program_end.h"
#include "support/environment.h"
#include "support/test_main.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
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

} // namespace

class QtDialogsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
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
    void aFamilyThatIsNotInstalledIsKept();
    void cancelOfTheFontDialogGivesNothing();
    void aDialogBehindWhichTheProgramEndedGivesNothing();
    void thePrintDialogOffersNoPartOfADocument();
    void thePrintDialogSetsUpThePrinterItWasGiven();
    void escapeInThePrintDialogIsCancel();
    void withoutAPrinterThePrintDialogFails();
};

void QtDialogsTest::initTestCase() {
    // The desktop's own file dialog would not be Qt's.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void QtDialogsTest::init() {
    qApp->setProperty("orvalisEnded", QVariant());
}

void QtDialogsTest::filtersBecomeNameFilters_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << QString() << QStringList();
    QTest::newRow("one") << u"Orvalis (*.brf)|*.brf"_s << QStringList{u"Orvalis (*.brf)"_s};
    QTest::newRow("several patterns") << u"Images (*.bmp;*.jpg)|*.bmp;*.jpg|All Files (*.*)|*.*"_s
                                      << QStringList{u"Images (*.bmp *.jpg)"_s, u"All Files (*)"_s};
    QTest::newRow("blank at the end")
        << u"Address data (*.dat) |*.dat"_s << QStringList{u"Address data (*.dat)"_s};
}

void QtDialogsTest::filtersBecomeNameFilters() {
    QFETCH(QString, filter);
    QFETCH(QStringList, expected);
    QCOMPARE(nameFilters(filter), expected);
}

void QtDialogsTest::savingOverAFileAsksNothingAndAddsNoExtension() {
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
                                          .title = {},
                                          .defaultExtension = {}});
    QCOMPARE(chosen.value_or(QString()), folder.filePath(u"present"_s));
}

void QtDialogsTest::aFileThatIsNotThereCanBeOpened() {
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
                                          .title = u"Insert Image"_s,
                                          .defaultExtension = u"*.bmp"_s});
    QCOMPARE(chosen.value_or(QString()), folder.filePath(u"missing.rtf"_s));
}

void QtDialogsTest::theFileDialogOpensInTheFolderOfItsKind_data() {
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

void QtDialogsTest::theFileDialogOpensInTheFolderOfItsKind() {
    QFETCH(QString, filter);
    QFETCH(QString, folder);
    const UsersFolders folders;
    QString opened;
    whenOpen<QFileDialog>([&](QFileDialog& dialog) {
        opened = dialog.directory().path();
        dialog.reject();
    });
    QtDialogs().openFile(
        {.filter = filter, .directory = {}, .fileName = {}, .title = {}, .defaultExtension = {}});
    QCOMPARE(opened, folders.path(folder));
}

void QtDialogsTest::theFileDialogComesBackToWhereTheLastFileWas() {
    const UsersFolders folders;
    const QTemporaryDir elsewhere;
    QtDialogs dialogs;
    const FileRequest sounds{.filter = u"Sounds|*.wav"_s,
                             .directory = {},
                             .fileName = {},
                             .title = {},
                             .defaultExtension = {}};
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
        dialogs.openFile({.filter = filter,
                          .directory = {},
                          .fileName = {},
                          .title = {},
                          .defaultExtension = {}});
        QCOMPARE(opened, folder);
    }
}

void QtDialogsTest::theFileDialogShowsWholeDates() {
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
    QtDialogs().openFile({.filter = {},
                          .directory = folder.path(),
                          .fileName = {},
                          .title = {},
                          .defaultExtension = {}});
    QLocale::setDefault(ofTheTests);
    QVERIFY(whole);
}

void QtDialogsTest::escapeInAFileDialogIsCancel() {
    whenOpen<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QtDialogs dialogs;
    QVERIFY(!dialogs.openFile({}).has_value());
}

void QtDialogsTest::theHourglassStandsBackWhileADialogIsOpen() {
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

void QtDialogsTest::aFamilyThatIsNotInstalledIsKept() {
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

void QtDialogsTest::cancelOfTheFontDialogGivesNothing() {
    whenOpen<FontDialog>([](FontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QtDialogs dialogs;
    QVERIFY(!dialogs.chooseFont(Present).has_value());
}

void QtDialogsTest::aDialogBehindWhichTheProgramEndedGivesNothing() {
    whenOpen<FontDialog>([](FontDialog& dialog) {
        markProgramEnded();
        dialog.accept();
    });
    QtDialogs dialogs;
    QVERIFY_THROWS_EXCEPTION(ProgramEnded, dialogs.chooseFont(Present));
}

void QtDialogsTest::thePrintDialogOffersNoPartOfADocument() {
    QPrinter printer;
    QtDialogs dialogs([&]() -> QPrinter& { return printer; });
    bool offered = true;
    whenOpen<QPrintDialog>([&](QPrintDialog& dialog) {
        offered = dialog.testOption(QAbstractPrintDialog::PrintSelection) ||
                  dialog.testOption(QAbstractPrintDialog::PrintPageRange) ||
                  dialog.testOption(QAbstractPrintDialog::PrintCurrentPage);
        QCOMPARE(dialog.printRange(), QAbstractPrintDialog::AllPages);
        dialog.reject();
    });
    dialogs.choosePrinter();
    QVERIFY(!offered);
}

void QtDialogsTest::thePrintDialogSetsUpThePrinterItWasGiven() {
    const QTemporaryDir folder;
    QPrinter printer;
    printer.setOutputFileName(folder.filePath(u"x.pdf"_s));
    int asked = 0;
    QtDialogs dialogs([&]() -> QPrinter& {
        ++asked;
        return printer;
    });
    whenOpen<QPrintDialog>([&](QPrintDialog& dialog) {
        QCOMPARE(dialog.printer(), &printer);
        dialog.accept();
    });
    QVERIFY(dialogs.choosePrinter());
    QCOMPARE(asked, 1);
}

void QtDialogsTest::escapeInThePrintDialogIsCancel() {
    QPrinter printer;
    QtDialogs dialogs([&]() -> QPrinter& { return printer; });
    whenOpen<QPrintDialog>([](QPrintDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QVERIFY(!dialogs.choosePrinter());
}

void QtDialogsTest::withoutAPrinterThePrintDialogFails() {
    const auto failure = firstFailure([] { QtDialogs().choosePrinter(); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::PrinterError);
}

ORVALIS_TEST_MAIN_WITH(QApplication, QtDialogsTest)
#include "qt_dialogs_test.moc"
