// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "password/password_ground.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

/// What the keyboard does on the Password panel beside what its controls do.
class PasswordKeysTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        m_ground = std::make_unique<PasswordGround>();
        m_ground->shown();
    }
    void cleanup() { m_ground.reset(); }

    void theKeyboardReachesAllButTheButtonsThatHaveKeys() {
        focus(u"txtrt1"_s);
        QStringList reached;
        do {
            key(Qt::Key_Tab);
            reached << focused();
        } while (reached.constLast() != u"txtrt1"_s && reached.size() < 40);
        QCOMPARE(reached,
                 (QStringList{u"txtText"_s, u"txtPW"_s, u"imgNew"_s, u"imgOpen"_s, u"imgSave"_s,
                              u"imgMail"_s, u"imgBack"_s, u"lblNot"_s, u"lblAdd"_s, u"lblPass"_s,
                              u"imgSet"_s, u"imgMini"_s, u"imgHelp"_s, u"imgExit"_s, u"txtrt1"_s}));
    }

    void tabLeavesBothTextsAndControlAndTabWritesOne() {
        for (const QString& name : {u"txtrt1"_s, u"txtText"_s}) {
            focus(name);
            key(Qt::Key_Tab, Qt::ControlModifier);
            QCOMPARE(m_ground->control<RichTextBox>(name).Text(), u"\t"_s);
            QCOMPARE(focused(), name);
            key(Qt::Key_Tab);
            QCOMPARE(m_ground->control<RichTextBox>(name).Text(), u"\t"_s);
            QVERIFY(focused() != name);
        }
    }

    void encryptAndDecryptHaveTheirKeysWhereverTheFocusIs_data() {
        QTest::addColumn<QString>("from");
        for (const char* name : {"txtrt1", "txtText", "txtPW", "imgBack"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void encryptAndDecryptHaveTheirKeysWhereverTheFocusIs() {
        QFETCH(QString, from);
        m_ground->right().SetText(u"the harbour"_s);
        m_ground->password().setText(u"rose"_s);
        focus(from);
        key(Qt::Key_E, Qt::ControlModifier);
        QVERIFY(m_ground->right().Text() != u"the harbour"_s);
        QCOMPARE(m_ground->right().Text().size(), 22);
        QCOMPARE(focused(), from);
        key(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(m_ground->right().Text(), u"the harbour"_s);
        QCOMPARE(m_ground->password().text(), u"rose"_s);
    }

    void spaceAndEnterPressAPicture() {
        m_ground->left().SetText(u"the harbour"_s);
        for (const int pressed : {Qt::Key_Space, Qt::Key_Return}) {
            m_ground->right().SetText({});
            focus(u"imgBack"_s);
            key(pressed);
            QCOMPARE(m_ground->right().Text(), u"the harbour"_s);
            QCOMPARE(focused(), u"txtPW"_s);
        }
    }

private:
    void key(int key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(m_ground->panel().focusWidget(), static_cast<Qt::Key>(key), held);
    }
    void focus(const QString& name) {
        m_ground->control<QWidget>(name).setFocus(Qt::TabFocusReason);
    }
    QString focused() { return m_ground->panel().focusWidget()->objectName(); }

    std::unique_ptr<PasswordGround> m_ground;
};

ORVALIS_TEST_MAIN_WITH(QApplication, PasswordKeysTest)
#include "password_keys_test.moc"
