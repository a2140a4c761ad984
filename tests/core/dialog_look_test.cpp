// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/label.h"
#include "core/about_box.h"
#include "core/help_page_view.h"
#include "core/help_viewer.h"
#include "core/options_dialog.h"
#include "platform/shell.h"
#include "skin/palette.h"
#include "skin/style.h"
#include "support/contrast.h"
#include "support/test_main.h"
#include "support/test_program.h"
#include "widgets/gg_command.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTextBlock>
#include <QTextTable>
#include <QToolButton>
#include <QTreeWidget>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

class SilentShell final : public Shell {
public:
    bool open(const QString&) override { return true; }
    void start(const QString&) override {}
};

/// The contrast of the title of a frame, which breaks the frame's upper edge.
double titleContrast(QGroupBox& frame) {
    const QSize words = frame.fontMetrics().size(Qt::TextShowMnemonic, frame.title().trimmed());
    const QPoint corner = frame.mapTo(frame.window(), QPoint(10, 0));
    return textContrast(drawnLarge(*frame.window(), QRect(corner, words)));
}

QString told(const QWidget& widget, double contrast) {
    return u"%1: %2"_s.arg(widget.objectName()).arg(contrast);
}

} // namespace

/// The dialogs, menus and the help in the dress of the program: every word is read well.
class DialogLookTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { skin::dress(*qApp); }

    void theAboutBoxIsReadWell() {
        TestProgram outside;
        frmAbout about(outside.program);
        about.load();
        about.show();
        const auto labels = about.findChildren<Label*>();
        QVERIFY(labels.size() >= 2);
        for (Label* label : labels) {
            const double contrast = textContrast(drawnLarge(*label));
            QVERIFY2(contrast >= ReadableContrast, qPrintable(told(*label, contrast)));
        }
        about.unload();
    }

    void theOptionsAreReadWell() {
        TestProgram outside;
        frmOptions options(outside.program);
        options.load();
        options.show();
        const auto frames = options.findChildren<QGroupBox*>();
        QVERIFY(frames.size() >= 4);
        for (QGroupBox* frame : frames) {
            const double contrast = titleContrast(*frame);
            QVERIFY2(contrast >= ReadableContrast, qPrintable(told(*frame, contrast)));
        }
        QWidgetList controls;
        for (QWidget* one : options.findChildren<QRadioButton*>())
            controls << one;
        for (QWidget* one : options.findChildren<QCheckBox*>())
            controls << one;
        for (QWidget* one : options.findChildren<GGCommand*>())
            controls << one;
        QVERIFY(controls.size() >= 7);
        for (QWidget* control : std::as_const(controls)) {
            const double contrast = textContrast(drawnLarge(*control));
            QVERIFY2(contrast >= ReadableContrast, qPrintable(told(*control, contrast)));
        }
        options.unload();
    }

    void messageBoxesAreReadWell() {
        QMessageBox box(QMessageBox::Information, u"Orvalis"_s, u"String not found."_s,
                        QMessageBox::Ok);
        box.show();
        for (QWidget* widget : {static_cast<QWidget*>(box.findChild<QLabel*>(u"qt_msgbox_label"_s)),
                                static_cast<QWidget*>(box.button(QMessageBox::Ok))}) {
            const double contrast = textContrast(drawnLarge(*widget));
            QVERIFY2(contrast >= ReadableContrast, qPrintable(told(*widget, contrast)));
        }
    }

    void theEntriesOfMenusAreReadWellAlsoTheChosenOne() {
        QMenu menu;
        QAction* heading = menu.addSection(u"Insert"_s);
        QAction* first = menu.addAction(u"Date and Time"_s);
        QAction* second = menu.addAction(u"Date and Time"_s);
        menu.popup(QPoint());
        menu.setActiveAction(second);
        QApplication::processEvents();
        for (QAction* entry : {heading, first, second}) {
            QRect place = menu.actionGeometry(entry);
            if (entry == heading)
                place.setWidth(menu.fontMetrics().horizontalAdvance(heading->text()) + 6);
            const double contrast = textContrast(drawnLarge(menu, place.adjusted(2, 0, -2, 0)));
            QVERIFY2(contrast >= ReadableContrast,
                     qPrintable(entry->text() + u' ' + QString::number(contrast)));
        }
        menu.close();
    }

    void theHelpIsReadWell() {
        SilentShell shell;
        HelpViewer viewer(shell);
        viewer.open(QStringLiteral(ORVALIS_HELP_FILE));
        viewer.show();
        QApplication::processEvents();
        auto* page = viewer.findChild<HelpPageView*>();
        page->go(u"notes.html"_s);
        // Each colour of words on the ground that they stand on.
        for (QTextBlock block = page->document()->begin(); block.isValid(); block = block.next()) {
            const QTextTable* table = QTextCursor(block).currentTable();
            const QBrush note = table != nullptr ? table->format().background() : QBrush();
            const QColor ground = note.style() == Qt::NoBrush ? QColor(Qt::white) : note.color();
            for (auto piece = block.begin(); piece != block.end(); ++piece) {
                const QBrush ink = piece.fragment().charFormat().foreground();
                const QColor colour = ink.style() == Qt::NoBrush
                                          ? page->palette().color(QPalette::Text)
                                          : ink.color();
                const double measured = contrast(luminance(colour.rgb()), luminance(ground.rgb()));
                QVERIFY2(measured >= ReadableContrast, qPrintable(block.text()));
                QVERIFY(contrast(luminance(colour.rgb()), luminance(skin::colour::Found)) >=
                        ReadableContrast);
            }
        }
        auto* search = viewer.findChild<QLineEdit*>(u"helpSearch"_s);
        search->setText(u"sticker"_s);
        auto* findings = viewer.findChild<QListWidget*>(u"helpFindings"_s);
        findings->setCurrentRow(1);
        QApplication::processEvents();
        for (const int row : {0, 1}) {
            const QRect place = findings->visualItemRect(findings->item(row));
            const QPoint corner = findings->viewport()->mapTo(&viewer, place.topLeft());
            const double measured = textContrast(drawnLarge(viewer, QRect(corner, place.size())));
            QVERIFY2(measured >= ReadableContrast, qPrintable(QString::number(measured)));
        }
        const double button =
            textContrast(drawnLarge(*viewer.findChild<QToolButton*>(u"helpHome"_s)));
        QVERIFY2(button >= ReadableContrast, qPrintable(QString::number(button)));
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, DialogLookTest)
#include "dialog_look_test.moc"
