// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/xdg/xdg_mail.h"

#include "runtime/failure.h"
#include "runtime/program_end.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <QWidget>

#include <memory>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;
using namespace std::chrono_literals;

namespace {

/// Notes in a file that it was painted.
class PaintedWindow final : public QWidget {
public:
    explicit PaintedWindow(const QString& sign)
        : m_sign(sign) {}

protected:
    void paintEvent(QPaintEvent*) override {
        if (m_asked)
            QFile(m_sign).open(QIODevice::WriteOnly);
    }

public:
    /// Asks for another painting, which is noted.
    void askForPainting() {
        m_asked = true;
        update();
    }

private:
    QString m_sign;
    bool m_asked = false;
};

} // namespace

class XdgMailTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void theMailProgramGetsRecipientAndAttachment();
    void aTextGoesAlong();
    void namesReachItAsOneArgumentEach_data();
    void namesReachItAsOneArgumentEach();
    void aRelativeAttachmentGoesByItsAbsolutePath();
    void withoutTheToolMailFailsInASentence();
    void aMissingAttachmentFailsBeforeAnythingStarts_data();
    void aMissingAttachmentFailsBeforeAnythingStarts();
    void anExitStatusOtherThan0Fails_data();
    void anExitStatusOtherThan0Fails();
    void aToolThatIsNoProgramFails();
    void aToolThatCrashesFails();
    void windowsArePaintedWhileItIsWaitedFor();
    void aToolThatTakesLongGoesOnByItself();
    void anEndOfTheProgramMeanwhileGoesNoFurther();

private:
    /// Puts a tool of that name into the folder that is the whole search path of the test.
    void install(const QByteArray& lines) const;
    QString attachment() const { return m_folder->file(u"notes.rtf"_s); }
    /// A tool that writes down what it was given, one argument a line.
    QByteArray recorder() const;
    QStringList arguments() const;
    std::optional<RuntimeError> failureOf(const MailMessage& message) const;

    std::unique_ptr<TemporaryFolder> m_folder;
    QByteArray m_path;
};

void XdgMailTest::init() {
    m_folder = std::make_unique<TemporaryFolder>();
    m_folder->write(u"notes.rtf"_s, "{\\rtf1 notes}");
    m_path = qgetenv("PATH");
    qputenv("PATH", m_folder->path().toLocal8Bit());
    qApp->setProperty("orvalisEnded", QVariant());
}

void XdgMailTest::cleanup() {
    qputenv("PATH", m_path);
    qApp->setProperty("orvalisEnded", QVariant());
}

void XdgMailTest::install(const QByteArray& lines) const {
    const QString path = m_folder->write(
        u"xdg-email"_s, "#!/bin/sh\ncd " + m_folder->path().toLocal8Bit() + "\n" + lines);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QByteArray XdgMailTest::recorder() const {
    return "for given in \"$@\"; do printf '%s\\n' \"$given\" >> given; done\n";
}

QStringList XdgMailTest::arguments() const {
    QStringList given = QString::fromUtf8(m_folder->read(u"given"_s)).split(u'\n');
    given.removeLast();
    return given;
}

std::optional<RuntimeError> XdgMailTest::failureOf(const MailMessage& message) const {
    return firstFailure([&] { XdgMail().compose(message); });
}

void XdgMailTest::theMailProgramGetsRecipientAndAttachment() {
    install(recorder());
    QVERIFY(!failureOf({u"your_address"_s, {}, attachment()}));
    QCOMPARE(arguments(),
             (QStringList{u"--utf8"_s, u"--attach"_s, attachment(), u"mailto:your_address"_s}));
}

void XdgMailTest::aTextGoesAlong() {
    install(recorder());
    QVERIFY(!failureOf({u"ann@example.org"_s, u"Hello Ann"_s, attachment()}));
    QCOMPARE(arguments(), (QStringList{u"--utf8"_s, u"--body"_s, u"Hello Ann"_s, u"--attach"_s,
                                       attachment(), u"mailto:ann@example.org"_s}));
}

void XdgMailTest::namesReachItAsOneArgumentEach_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("recipient");
    QTest::addColumn<QString>("address");
    QTest::newRow("blanks") << u"a b.rtf"_s << u"ann lee"_s << u"mailto:ann%20lee"_s;
    QTest::newRow("quotes") << u"\"a'b.rtf"_s << u"\"ann\"@x"_s << u"mailto:%22ann%22@x"_s;
    QTest::newRow("a command") << u"$(touch x).rtf"_s << u"`touch x`"_s
                               << u"mailto:%60touch%20x%60"_s;
    QTest::newRow("an option") << u"--help"_s << u"--help"_s << u"mailto:--help"_s;
    QTest::newRow("another header")
        << u"a&b.rtf"_s << u"a?attach=/etc/passwd"_s << u"mailto:a%3Fattach%3D%2Fetc%2Fpasswd"_s;
    QTest::newRow("letters of the world") << u"Ђ.rtf"_s << u"Ђ@x"_s << u"mailto:%D0%82@x"_s;
}

void XdgMailTest::namesReachItAsOneArgumentEach() {
    QFETCH(QString, name);
    QFETCH(QString, recipient);
    QFETCH(QString, address);
    install(recorder());
    const QString path = m_folder->write(name, "text");
    QVERIFY(!failureOf({recipient, {}, path}));
    QCOMPARE(arguments(), (QStringList{u"--utf8"_s, u"--attach"_s, path, address}));
    QVERIFY(!QFile::exists(m_folder->file(u"x"_s)));
}

void XdgMailTest::aRelativeAttachmentGoesByItsAbsolutePath() {
    install(recorder());
    const QString before = QDir::currentPath();
    QDir::setCurrent(m_folder->path());
    const auto failure = failureOf({u"your_address"_s, {}, u"notes.rtf"_s});
    QDir::setCurrent(before);
    QVERIFY(!failure);
    QVERIFY(arguments().contains(attachment()));
}

void XdgMailTest::withoutTheToolMailFailsInASentence() {
    const auto failure = failureOf({u"your_address"_s, {}, attachment()});
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::FileNotFound);
    QCOMPARE(failure->description(), u"There is no mail program to send the document with."_s);
}

void XdgMailTest::aMissingAttachmentFailsBeforeAnythingStarts_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("no file") << u"gone.rtf"_s;
    QTest::newRow("a folder") << u"."_s;
    QTest::newRow("no name") << QString();
}

void XdgMailTest::aMissingAttachmentFailsBeforeAnythingStarts() {
    QFETCH(QString, name);
    install(recorder());
    const QString path = name.isEmpty() ? QString() : m_folder->file(name);
    const auto failure = failureOf({u"your_address"_s, {}, path});
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::FileNotFound);
    QCOMPARE(failure->description(), u"The document to send is not there any more: "_s + path);
    QVERIFY(!QFile::exists(m_folder->file(u"given"_s)));
}

void XdgMailTest::anExitStatusOtherThan0Fails_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("words");
    const QString refused = u"The mail program did not take the document."_s;
    QTest::newRow("syntax") << 1 << 5 << refused;
    QTest::newRow("file missing") << 2 << 5 << refused;
    QTest::newRow("no mail program")
        << 3 << 53 << u"There is no mail program to send the document with."_s;
    QTest::newRow("action failed") << 4 << 5 << refused;
    QTest::newRow("anything else") << 127 << 5 << refused;
}

void XdgMailTest::anExitStatusOtherThan0Fails() {
    QFETCH(int, status);
    QFETCH(int, number);
    QFETCH(QString, words);
    install("exit " + QByteArray::number(status) + "\n");
    const auto failure = failureOf({u"your_address"_s, {}, attachment()});
    QVERIFY(failure.has_value());
    QCOMPARE(static_cast<int>(failure->number()), number);
    QCOMPARE(failure->description(), words);
}

void XdgMailTest::aToolThatIsNoProgramFails() {
    const QString path = m_folder->write(u"xdg-email"_s, "#!/nowhere/at/all\n");
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const auto failure = failureOf({u"your_address"_s, {}, attachment()});
    QVERIFY(failure.has_value());
    QCOMPARE(failure->description(), u"The mail program did not take the document."_s);
}

void XdgMailTest::aToolThatCrashesFails() {
    install("kill -9 $$\n");
    const auto failure = failureOf({u"your_address"_s, {}, attachment()});
    QVERIFY(failure.has_value());
    QCOMPARE(failure->description(), u"The mail program did not take the document."_s);
}

void XdgMailTest::windowsArePaintedWhileItIsWaitedFor() {
    // It ends well only once the window was painted behind its start.
    install("> started\nfor i in 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0; do\n"
            "  [ -e painted ] && exit 0\n  /bin/sleep 0.2\ndone\nexit 4\n");
    PaintedWindow window(m_folder->file(u"painted"_s));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTimer watch;
    connect(&watch, &QTimer::timeout, &window, [&] {
        if (QFile::exists(m_folder->file(u"started"_s)))
            window.askForPainting();
    });
    watch.start(10);
    QVERIFY(!failureOf({u"your_address"_s, {}, attachment()}));
    QVERIFY(QFile::exists(m_folder->file(u"painted"_s)));
}

void XdgMailTest::aToolThatTakesLongGoesOnByItself() {
    install("> started\nwhile [ ! -e go ]; do /bin/sleep 0.05; done\n> finished\n");
    {
        XdgMail mail(1ms);
        mail.compose({u"your_address"_s, {}, attachment()}); // returns while the tool still waits
    }
    QVERIFY(!QFile::exists(m_folder->file(u"finished"_s)));
    m_folder->write(u"go"_s, {});
    QTRY_VERIFY(QFile::exists(m_folder->file(u"finished"_s)));
}

void XdgMailTest::anEndOfTheProgramMeanwhileGoesNoFurther() {
    install("while [ ! -e go ]; do /bin/sleep 0.05; done\n> finished\n");
    QTimer::singleShot(0, qApp, [] {
        markProgramEnded();
        QApplication::exit(0);
    });
    bool ended = false;
    try {
        XdgMail().compose({u"your_address"_s, {}, attachment()});
    } catch (const ProgramEnded&) {
        ended = true;
    }
    QVERIFY(ended);
    m_folder->write(u"go"_s, {});
    QTRY_VERIFY(QFile::exists(m_folder->file(u"finished"_s)));
}

ORVALIS_TEST_MAIN_WITH(QApplication, XdgMailTest)
#include "xdg_mail_test.moc"
