// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/qt_dialogs.h"
#include "skin/style.h"
#include "support/contrast.h"
#include "support/environment.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTimer>

#include <functional>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// Where words stand in a control, and what they say.
struct Words {
    QString text;
    QWidget* widget;
    QRect place; ///< in the widget
};

QRect placeOfButtonText(const QAbstractButton& button, QStyle::SubElement element) {
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    return button.style()->subElementRect(element, &option, &button);
}

QRect placeOfTitle(const QGroupBox& frame) {
    QStyleOptionGroupBox option;
    option.initFrom(&frame);
    option.text = frame.title();
    option.subControls = QStyle::SC_GroupBoxLabel;
    return frame.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                         &frame);
}

QRect placeOfChoice(const QComboBox& box) {
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
        .adjusted(3, 3, -3, -3);
}

QList<Words> wordsOfView(QAbstractItemView& view) {
    QList<Words> found;
    for (int row = 0; row < std::min(view.model()->rowCount(view.rootIndex()), 3); ++row) {
        const QModelIndex index = view.model()->index(row, 0, view.rootIndex());
        const QRect place = view.visualRect(index).adjusted(3, 1, -3, -1);
        if (view.viewport()->rect().contains(place.center()))
            found << Words{index.data().toString(), view.viewport(),
                           place & view.viewport()->rect()};
    }
    return found;
}

/// What a person can read in a control of a toolkit's dialog, save what is disabled.
QList<Words> wordsOf(QWidget& widget) {
    if (!widget.isVisible() || !widget.isEnabled() || widget.visibleRegion().isEmpty())
        return {};
    const QRect whole = widget.rect();
    if (auto* label = qobject_cast<QLabel*>(&widget); label && !label->text().trimmed().isEmpty())
        return {{label->text(), label, whole}};
    if (auto* button = qobject_cast<QPushButton*>(&widget); button && !button->text().isEmpty())
        return {{button->text(), button, whole.adjusted(6, 5, -6, -5)}};
    if (auto* box = qobject_cast<QCheckBox*>(&widget))
        return {{box->text(), box, placeOfButtonText(*box, QStyle::SE_CheckBoxContents)}};
    if (auto* option = qobject_cast<QRadioButton*>(&widget))
        return {
            {option->text(), option, placeOfButtonText(*option, QStyle::SE_RadioButtonContents)}};
    if (auto* frame = qobject_cast<QGroupBox*>(&widget); frame && !frame->title().isEmpty())
        return {{frame->title(), frame, placeOfTitle(*frame)}};
    if (auto* box = qobject_cast<QComboBox*>(&widget); box && !box->currentText().isEmpty())
        return {{box->currentText(), box, placeOfChoice(*box)}};
    if (auto* line = qobject_cast<QLineEdit*>(&widget); line && !line->text().isEmpty())
        return {{line->text(), line, whole.adjusted(3, 3, -3, -3)}};
    if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
        QList<Words> found;
        for (int i = 0; i < tabs->count(); ++i)
            found << Words{tabs->tabText(i), tabs, tabs->tabRect(i).adjusted(6, 5, -6, -4)};
        return found;
    }
    if (auto* header = qobject_cast<QHeaderView*>(&widget))
        return {{u"header"_s,
                 header->viewport(),
                 {2, 2, header->sectionSize(0) - 24, header->height() - 5}}};
    if (auto* view = qobject_cast<QAbstractItemView*>(&widget); view && view->model())
        return wordsOfView(*view);
    return {};
}

/// Measures every word of a window. \returns how many there were.
int read(QWidget& window) {
    int count = 0;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        for (const Words& words : wordsOf(*widget)) {
            const QRect place =
                QRect(words.widget->mapTo(&window, words.place.topLeft()), words.place.size()) &
                window.rect();
            if (place.isEmpty())
                continue;
            const double measured = textContrast(drawnLarge(window, place));
            if (measured < ReadableContrast)
                QTest::qFail(
                    qPrintable(
                        u"\"%1\" in %2: %3"_s.arg(words.text, window.objectName()).arg(measured)),
                    __FILE__, __LINE__);
            ++count;
        }
    }
    return count;
}

/// Reads the dialog that a command brings up, and closes it.
int readWhileOpen(
    const std::function<void()>& command,
    const std::function<void(QWidget&)>& prepare = [](QWidget&) {}) {
    int count = 0;
    QTimer::singleShot(0, qApp, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        QVERIFY(dialog != nullptr);
        prepare(*dialog);
        QApplication::processEvents();
        count = read(*dialog);
        static_cast<QDialog*>(dialog)->reject();
    });
    command();
    return count;
}

} // namespace

/// The dialogs that come from the toolkit, in the dress of the program: every word is read well.
class SharedDialogsLookTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        skin::dress(*qApp);
    }

    void theFileDialogIsReadWell_data() {
        QTest::addColumn<bool>("saves");
        QTest::newRow("open") << false;
        QTest::newRow("save") << true;
    }
    void theFileDialogIsReadWell() {
        QFETCH(bool, saves);
        const TemporaryFolder folder;
        for (const QString& name : {u"anna.rtf"_s, u"garden.rtf"_s, u"harbour.rtf"_s})
            folder.write(name, "{\\rtf1 }");
        const FileRequest request{.filter = u"RTF (*.rtf)|*.rtf"_s,
                                  .directory = folder.path(),
                                  .fileName = u"anna.rtf"_s,
                                  .title = {},
                                  .defaultExtension = {}};
        const auto choose = [&] {
            saves ? m_dialogs.saveFile(request) : m_dialogs.openFile(request);
        };
        const int words = readWhileOpen(choose, [](QWidget& dialog) {
            auto* files = dialog.findChild<QAbstractItemView*>(u"treeView"_s);
            QTRY_COMPARE(files->model()->rowCount(files->rootIndex()), 3);
            files->setCurrentIndex(files->model()->index(1, 0, files->rootIndex()));
        });
        QVERIFY2(words >= 12, qPrintable(QString::number(words)));
    }

    void theFontDialogIsReadWell() {
        const int words =
            readWhileOpen([this] { m_dialogs.chooseFont({.name = u"DejaVu Sans"_s, .size = 10}); });
        QVERIFY2(words >= 14, qPrintable(QString::number(words)));
    }

    void theColourDialogIsReadWell() {
        const int words = readWhileOpen([this] { m_dialogs.chooseColour(0x0000FF); });
        QVERIFY2(words >= 20, qPrintable(QString::number(words)));
    }

    void thePrintDialogIsReadWell() {
        QPrinter printer;
        QtDialogs dialogs([&]() -> QPrinter& { return printer; });
        const int words = readWhileOpen([&] { dialogs.choosePrinter(); },
                                        [](QWidget& dialog) {
                                            for (auto* button : dialog.findChildren<QPushButton*>())
                                                if (button->text().contains(u"Options"))
                                                    button->click();
                                        });
        QVERIFY2(words >= 20, qPrintable(QString::number(words)));
    }

private:
    QtDialogs m_dialogs;
};

ORVALIS_TEST_MAIN_WITH(QApplication, SharedDialogsLookTest)
#include "shared_dialogs_look_test.moc"
