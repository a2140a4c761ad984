// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

#include "skin/style.h"
#include "support/contrast.h"
#include "support/pointer_events.h"

#include <QTableView>

#include <array>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

/// The panel in the dress of the program, on screens of every width: no text of it is cut.
class ReminderLookTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { skin::dress(*qApp); }
    void theCalendarShowsItsWeeksAndNamesWhole_data();
    void theCalendarShowsItsWeeksAndNamesWhole();
    void whatIsReadAndWrittenHasOneSize_data();
    void whatIsReadAndWrittenHasOneSize();
    void theCalendarStandsFlushWithTitleAndMessage();
    void saveStandsAlikeOnAllFourSheets();
    void everyWordStandsOutFromItsGround();
    void wordsUnderThePointerStandOutFromTheirGround();
    void daysOfOtherMonthsStandOutAndAreQuieter();
    void theCalendarShowsThatItHasTheKeyboard();
    void signAndCaptionStandInTheMiddleAsOne();
    void everyCaptionHasItsRoom_data() { theCalendarShowsItsWeeksAndNamesWhole_data(); }
    void everyCaptionHasItsRoom();
    void theLongestDateAndTimeHaveTheirRoom_data() { theCalendarShowsItsWeeksAndNamesWhole_data(); }
    void theLongestDateAndTimeHaveTheirRoom();

private:
    static int wide(const QWidget& widget, const QString& text) {
        return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
    }
};

void ReminderLookTest::theCalendarShowsItsWeeksAndNamesWhole_data() {
    QTest::addColumn<int>("width");
    for (const int width : {800, 822, 864, 898, 1024})
        QTest::addRow("%d", width) << width;
}

void ReminderLookTest::theCalendarShowsItsWeeksAndNamesWhole() {
    QFETCH(int, width);
    PanelGround ground(QSize(width, width));
    ground.shown();
    QApplication::processEvents();
    // What it asks for has the longest names of days and months in it.
    const QSize asked = ground.calendar().minimumSizeHint();
    QVERIFY2(ground.calendar().size().expandedTo(asked) == ground.calendar().size(),
             qPrintable(u"it asks for %1 by %2"_s.arg(asked.width()).arg(asked.height())));
    const auto* days = ground.calendar().findChild<QTableView*>();
    const QRect room = days->viewport()->rect();
    const QFontMetrics letters(ground.calendar().font());
    for (int col = 0; col < 7; ++col) {
        const QModelIndex name = days->model()->index(0, col);
        // The delegate keeps a margin on either side, within which a name is abridged.
        const int margin = days->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
        QVERIFY2(letters.horizontalAdvance(name.data().toString()) + 2 * margin <=
                     days->columnWidth(col),
                 qPrintable(name.data().toString()));
        for (int row = 0; row < 7; ++row) {
            const QRect cell = days->visualRect(days->model()->index(row, col));
            QVERIFY2(room.contains(cell), qPrintable(u"%1 %2"_s.arg(row).arg(col)));
            QVERIFY(cell.height() >= letters.tightBoundingRect(u"0123456789"_s).height() + 4);
        }
    }
}

void ReminderLookTest::whatIsReadAndWrittenHasOneSize_data() {
    QTest::addColumn<QSize>("screen");
    QTest::newRow("800x600") << QSize(800, 600);
    QTest::newRow("1024x768 at its scale") << QSize(819, 614);
    QTest::newRow("1920x1080 at its scale") << QSize(1097, 617);
}

void ReminderLookTest::whatIsReadAndWrittenHasOneSize() {
    QFETCH(QSize, screen);
    PanelGround ground(screen);
    ground.shown();
    const frmnotes1& panel = ground.panel();
    QWidgetList controls{&ground.calendar()};
    const auto add = [&controls](const auto& found) {
        for (QWidget* widget : found)
            controls << widget;
    };
    add(panel.findChildren<QGroupBox*>());
    add(panel.findChildren<GGCommand*>());
    add(panel.findChildren<QCheckBox*>());
    add(panel.findChildren<QLineEdit*>());
    add(panel.findChildren<ComboBox*>());
    add(panel.findChildren<RichTextBox*>());
    add(panel.findChildren<MSFlexGrid*>());
    for (const QGroupBox* frame : panel.findChildren<QGroupBox*>())
        add(frame->findChildren<Label*>());
    QVERIFY(controls.size() > 40);
    // The time that a reminder is set for is what its frame is about.
    controls.removeOne(&ground.control<Label>(u"Label5"_s));
    for (const QWidget* widget : std::as_const(controls))
        QVERIFY2(widget->font().pointSizeF() == 8.0, qPrintable(widget->objectName()));
    for (RichTextBox* box : {&ground.rt1(), &ground.rtMs2(), &ground.rt1a()})
        QVERIFY2(box->SelFontSize() == 8.0, qPrintable(box->objectName()));
}

void ReminderLookTest::theCalendarStandsFlushWithTitleAndMessage() {
    PanelGround ground;
    ground.shown();
    const QRect calendar = ground.calendar().geometry();
    for (const char* name : {"txt1", "Frame2"}) {
        const QRect other = ground.control<QWidget>(QString::fromLatin1(name)).geometry();
        QCOMPARE(calendar.left(), other.left());
        QCOMPARE(calendar.right(), other.right());
    }
}

void ReminderLookTest::saveStandsAlikeOnAllFourSheets() {
    PanelGround ground;
    const GGCommand& first = ground.control<GGCommand>(u"imgso"_s);
    const auto drawn = [](const GGCommand& button) {
        return button.Picture().pixmap(button.Picture().size(), 1).toImage();
    };
    QVERIFY(!drawn(first).isNull());
    for (const char* name : {"imgsoo", "imstodo", "imgoe"}) {
        const GGCommand& save = ground.control<GGCommand>(QString::fromLatin1(name));
        QCOMPARE(save.geometry(), first.geometry());
        QCOMPARE(drawn(save), drawn(first));
        QCOMPARE(save.Caption(), first.Caption());
    }
    const std::array row{u"Button4"_s, u"imgOpen"_s, u"Button6"_s, u"Button5"_s, u"imgoe"_s};
    for (std::size_t i = 1; i < row.size(); ++i) {
        const QRect left = ground.control<QWidget>(row[i - 1]).geometry();
        const QRect right = ground.control<QWidget>(row[i]).geometry();
        QCOMPARE(right.left() - left.right() - 1, 4);
        QCOMPARE(right.top(), left.top());
        QCOMPARE(right.height(), left.height());
    }
}

void ReminderLookTest::everyWordStandsOutFromItsGround() {
    PanelGround ground;
    ground.shown();
    QWidgetList controls;
    for (const char* name :
         {"lblNot", "lblAdd", "lblPass", "lblVreme", "Command2", "chkRemind", "chkTop", "txt1",
          "cmdmenu(0)", "cmdmenu(1)", "cmdmenu(2)", "cmdmenu(3)"})
        controls << &ground.control<QWidget>(QString::fromLatin1(name));
    for (QWidget* control : std::as_const(controls))
        QVERIFY2(textContrast(drawnLarge(*control)) >= ReadableContrast,
                 qPrintable(control->objectName()));
    ground.tick(u"chkRemind"_s);
    QApplication::processEvents();
    for (const char* name : {"Label8", "Label9", "Label3", "Label5", "Label6", "chkSound"})
        QVERIFY2(textContrast(drawnLarge(ground.control<QWidget>(QString::fromLatin1(name)))) >=
                     ReadableContrast,
                 name);
}

void ReminderLookTest::wordsUnderThePointerStandOutFromTheirGround() {
    PanelGround ground;
    ground.shown();
    for (const char* name :
         {"lblNot", "lblAdd", "lblPass", "Command2", "cmdmenu(0)", "cmdmenu(2)"}) {
        auto& control = ground.control<QWidget>(QString::fromLatin1(name));
        const QImage still = drawnLarge(control);
        Pointer pointer(control);
        pointer.enter(control.rect().center());
        pointer.move(control.rect().center());
        const QImage under = drawnLarge(control);
        QVERIFY2(under != still, name);
        QVERIFY2(textContrast(under) >= ReadableContrast,
                 qPrintable(u"%1: %2"_s.arg(QLatin1String(name)).arg(textContrast(under))));
        pointer.leave();
    }
}

void ReminderLookTest::daysOfOtherMonthsStandOutAndAreQuieter() {
    PanelGround ground;
    ground.shown();
    QApplication::processEvents();
    auto* days = ground.calendar().findChild<QTableView*>();
    const auto contrastOf = [&](int row, int column) {
        const QRect cell = days->visualRect(days->model()->index(row, column));
        const QPoint at = days->viewport()->mapTo(&ground.panel(), cell.topLeft());
        return textContrast(drawnLarge(ground.panel(), QRect(at, cell.size())));
    };
    // March 2026 begins on a Sunday: the first row is of February, the second the month's own.
    const double other = contrastOf(1, 3);
    const double own = contrastOf(2, 3);
    QVERIFY2(other >= ReadableContrast, qPrintable(QString::number(other)));
    QVERIFY2(own > 2 * other, qPrintable(QString::number(own)));
    QVERIFY(contrastOf(2, 0) >= ReadableContrast);
    QVERIFY(contrastOf(0, 0) >= ReadableContrast);
    QVERIFY(contrastOf(0, 3) >= ReadableContrast);
}

void ReminderLookTest::theCalendarShowsThatItHasTheKeyboard() {
    PanelGround ground;
    ground.shown();
    QApplication::processEvents();
    auto* days = ground.calendar().findChild<QTableView*>();
    const auto edge = [&] {
        QApplication::processEvents();
        return ground.calendar().grab(QRect(0, 60, 2, 20)).toImage();
    };
    ground.rt1().setFocus();
    const QImage without = edge();
    days->setFocus(Qt::TabFocusReason);
    const QImage with = edge();
    QVERIFY(with != without);
    ground.rt1().setFocus();
    QCOMPARE(edge(), without);
}

void ReminderLookTest::signAndCaptionStandInTheMiddleAsOne() {
    PanelGround ground;
    ground.shown();
    ground.tick(u"chkRemind"_s);
    for (const char* name : {"imstodo", "Button1", "Button2"}) {
        auto& button = ground.control<GGCommand>(QString::fromLatin1(name));
        const QImage drawn = drawnLarge(button);
        constexpr int Edge = 8;
        int first = drawn.width();
        int last = 0;
        for (int y = Edge; y < drawn.height() - Edge; ++y)
            for (int x = Edge; x < drawn.width() - Edge; ++x)
                // The face is of one colour along each line.
                if (std::abs(qGray(drawn.pixel(x, y)) - qGray(drawn.pixel(Edge, y))) > 40) {
                    first = std::min(first, x);
                    last = std::max(last, x);
                }
        const int left = first;
        const int right = drawn.width() - 1 - last;
        QVERIFY2(std::abs(left - right) <= 3 * 4,
                 qPrintable(u"%1: %2 and %3"_s.arg(QLatin1String(name)).arg(left).arg(right)));
    }
}

void ReminderLookTest::everyCaptionHasItsRoom() {
    QFETCH(int, width);
    PanelGround ground(QSize(width, width));
    ground.shown();
    for (const Label* label : ground.panel().findChildren<Label*>())
        QVERIFY2(wide(*label, label->Caption()) <= label->width(), qPrintable(label->objectName()));
    for (const QCheckBox* check : ground.panel().findChildren<QCheckBox*>())
        QVERIFY2(check->sizeHint().width() <= check->width(), qPrintable(check->objectName()));
    for (const GGCommand* button : ground.panel().findChildren<GGCommand*>()) {
        // A picture stands left of the caption, in the middle of what is left.
        const int picture = button->Picture().isNull() ? 0 : 24;
        QVERIFY2(wide(*button, button->Caption()) + 4 + picture <= button->width(),
                 qPrintable(button->objectName()));
    }
    for (const QGroupBox* frame : ground.panel().findChildren<QGroupBox*>())
        QVERIFY2(wide(*frame, frame->title()) + 24 <= frame->width(),
                 qPrintable(frame->objectName()));
}

void ReminderLookTest::theLongestDateAndTimeHaveTheirRoom() {
    QFETCH(int, width);
    PanelGround ground(QSize(width, width));
    ground.shown();
    for (const auto& [name, text] :
         {std::pair(u"Label9"_s, u"30/12/2026"_s), std::pair(u"Label9"_s, u"28 Nov 2026"_s),
          std::pair(u"Label5"_s, u"00 : 00 : 00"_s)}) {
        const Label& label = ground.control<Label>(name);
        QVERIFY2(wide(label, text) <= label.width(), qPrintable(text));
    }
    for (const int number : {1, 2}) {
        const QLineEdit* field = ground.combo(number).lineEdit();
        QVERIFY(wide(*field, u"00"_s) + 4 <= field->width());
    }
}

ORVALIS_TEST_MAIN_WITH(QApplication, ReminderLookTest)
#include "reminder_look_test.moc"
