// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/edit_menu.h"

#include "support/test_main.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>

using namespace orvalis;
using namespace Qt::StringLiterals;

class EditMenuTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aRightClickOpensItWithoutHoldingTheCaller();
    void itOffersWhatCanBeDone();
    void eachEntryDoesItsWork();
    void whatIsTypedUnseenIsNotCopied();
    void itGoesWithItsLine();
    void itGoesWhenItIsClosed();

private:
    QMenu* open() const;
    QStringList enabled() const;
    void choose(const QString& name) const;

    std::unique_ptr<QLineEdit> m_line;
};

void EditMenuTest::init() {
    QApplication::clipboard()->clear();
    m_line = std::make_unique<QLineEdit>();
    giveEditMenu(*m_line);
    m_line->show();
}

void EditMenuTest::cleanup() {
    m_line.reset();
}

QMenu* EditMenuTest::open() const {
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                            m_line->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(m_line.get(), &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QStringList EditMenuTest::enabled() const {
    QMenu* menu = open();
    QStringList names;
    const auto actions = menu->actions();
    for (const QAction* action : actions)
        if (action->isEnabled() && !action->isSeparator())
            names << action->objectName();
    menu->close();
    return names;
}

void EditMenuTest::choose(const QString& name) const {
    QMenu* menu = open();
    auto* action = menu->findChild<QAction*>(name);
    QVERIFY(action->isEnabled());
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
}

void EditMenuTest::aRightClickOpensItWithoutHoldingTheCaller() {
    QMenu* menu = open();
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->objectName(), u"editMenu"_s);
    QStringList captions;
    const auto actions = menu->actions();
    for (const QAction* action : actions)
        captions << (action->isSeparator() ? u"-"_s : action->text());
    QCOMPARE(captions, (QStringList{u"&Undo"_s, u"-"_s, u"Cu&t"_s, u"&Copy"_s, u"&Paste"_s,
                                    u"&Delete"_s, u"-"_s, u"Select &All"_s}));
    menu->close();
}

void EditMenuTest::itOffersWhatCanBeDone() {
    QCOMPARE(enabled(), QStringList());
    QTest::keyClicks(m_line.get(), u"ab"_s);
    QCOMPARE(enabled(), (QStringList{u"editUndo"_s, u"editSelectAll"_s}));
    m_line->selectAll();
    m_line->copy();
    QCOMPARE(enabled(), (QStringList{u"editUndo"_s, u"editCut"_s, u"editCopy"_s, u"editPaste"_s,
                                     u"editDelete"_s, u"editSelectAll"_s}));
    m_line->setReadOnly(true);
    QCOMPARE(enabled(), (QStringList{u"editCopy"_s, u"editSelectAll"_s}));
}

void EditMenuTest::eachEntryDoesItsWork() {
    QTest::keyClicks(m_line.get(), u"word"_s);
    choose(u"editSelectAll"_s);
    QCOMPARE(m_line->selectedText(), u"word"_s);
    choose(u"editCopy"_s);
    QCOMPARE(QApplication::clipboard()->text(), u"word"_s);
    choose(u"editDelete"_s);
    QCOMPARE(m_line->text(), QString());
    choose(u"editPaste"_s);
    QCOMPARE(m_line->text(), u"word"_s);
    QApplication::clipboard()->clear();
    choose(u"editSelectAll"_s);
    choose(u"editCut"_s);
    QCOMPARE(m_line->text(), QString());
    QCOMPARE(QApplication::clipboard()->text(), u"word"_s);
    choose(u"editUndo"_s);
    QCOMPARE(m_line->text(), u"word"_s);
}

void EditMenuTest::whatIsTypedUnseenIsNotCopied() {
    m_line->setEchoMode(QLineEdit::Password);
    QTest::keyClicks(m_line.get(), u"secret"_s);
    m_line->selectAll();
    const QStringList names = enabled();
    QVERIFY(!names.contains(u"editCut"_s) && !names.contains(u"editCopy"_s));
    QVERIFY(names.contains(u"editDelete"_s));
}

void EditMenuTest::itGoesWithItsLine() {
    const QPointer<QMenu> menu = open();
    m_line.reset();
    QVERIFY(menu.isNull());
}

void EditMenuTest::itGoesWhenItIsClosed() {
    const QPointer<QMenu> menu = open();
    menu->close();
    QTRY_VERIFY(menu.isNull());
}

ORVALIS_TEST_MAIN_WITH(QApplication, EditMenuTest)
#include "edit_menu_test.moc"
