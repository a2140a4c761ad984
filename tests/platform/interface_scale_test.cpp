// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/interface_scale.h"

#include "platform/child_environment.h"
#include "platform/freedesktop/display_probe.h"
#include "platform/screen.h"
#include "platform/x11/x11_screen.h"
#include "support/environment.h"
#include "support/test_main.h"
#include "support/virtual_display.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

/// Writes the resource database of the display that the environment names.
void setResources(const QByteArray& resources) {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, root, XCB_ATOM_RESOURCE_MANAGER,
                        XCB_ATOM_STRING, 8, quint32(resources.size()), resources.constData());
    // With its last client gone the server would start anew and forget.
    xcb_set_close_down_mode(connection, XCB_CLOSE_DOWN_RETAIN_PERMANENT);
    xcb_create_pixmap(connection, 1, xcb_generate_id(connection), root, 1, 1);
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    xcb_disconnect(connection);
}

/// What the program does at its start, in a process of its own: tells the scale, the width of the
/// screen in its units, and what its children inherit.
int runAsProgram(int argc, char** argv) {
    const double scale = applyInterfaceScale(primaryScreenSize());
    const QGuiApplication app(argc, argv);
    releaseX11Screen();
    const QByteArray meanwhile = childEnvironment().value(u"QT_SCALE_FACTOR"_s).toLatin1();
    withdrawInterfaceScale();
    std::printf("%g %d [%s] [%s]\n", scale, DesktopScreen().GetSystemMetrics(0),
                meanwhile.constData(), qgetenv("QT_SCALE_FACTOR").constData());
    return 0;
}

} // namespace

class InterfaceScaleTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void theScaleIsAnEighthThatFits_data();
    void theScaleIsAnEighthThatFits();
    void theScreenIsMeasuredInTheDesktopsUnits_data();
    void theScreenIsMeasuredInTheDesktopsUnits();
    void windowsAreScaledAndChildrenAreNot_data();
    void windowsAreScaledAndChildrenAreNot();
    void withoutADesktopNothingIsScaled();

private:
    std::unique_ptr<Environment> m_environment;
};

void InterfaceScaleTest::init() {
    m_environment = std::make_unique<Environment>();
    for (const char* name : {"WAYLAND_DISPLAY", "XDG_SESSION_TYPE", "QT_SCALE_FACTOR",
                             "QT_SCREEN_SCALE_FACTORS", "QT_ENABLE_HIGHDPI_SCALING"})
        m_environment->unset(name);
    m_environment->set("QT_QPA_PLATFORM", "xcb");
}

void InterfaceScaleTest::cleanup() {
    m_environment.reset();
}

void InterfaceScaleTest::theScaleIsAnEighthThatFits_data() {
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("scale");
    const auto row = [](double width, double height, double scale) {
        QTest::addRow("%gx%g", width, height) << width << height << scale;
    };
    row(640, 480, 1);
    row(800, 600, 1);
    row(900, 600, 1);
    row(1024, 600, 1);
    row(1024, 768, 1.25);
    row(1366, 768, 1.25);
    row(1280, 1024, 1.5);
    row(1920, 1080, 1.75);
    row(1920, 1200, 2);
    row(1080, 1920, 1.25);
    row(2560, 1440, 2.375);
    row(3840, 2160, 3.5);
    row(900, 675, 1.125);
    row(899.9, 675, 1);
    row(3440, 1440, 2.375);
    row(2700 / 1.5, 1800 / 1.5, 2);
    row(0, 0, 1);
}

void InterfaceScaleTest::theScaleIsAnEighthThatFits() {
    QFETCH(double, width);
    QFETCH(double, height);
    QFETCH(double, scale);
    QCOMPARE(interfaceScale(width, height), scale);
}

void InterfaceScaleTest::theScreenIsMeasuredInTheDesktopsUnits_data() {
    QTest::addColumn<QByteArray>("resources");
    QTest::addColumn<QByteArray>("usersFactor");
    QTest::addColumn<QByteArray>("listed");
    QTest::addColumn<QSizeF>("size");
    const QByteArray none;
    QTest::newRow("plain") << none << none << none << QSizeF(1920, 1080);
    QTest::newRow("resolution") << QByteArray("Xft.dpi: 192") << none << none << QSizeF(960, 540);
    QTest::newRow("user") << none << QByteArray("1.5") << none << QSizeF(1280, 720);
    QTest::newRow("both") << QByteArray("Xft.dpi: 144") << QByteArray("2") << none
                          << QSizeF(640, 360);
    QTest::newRow("list before resolution")
        << QByteArray("Xft.dpi: 192") << none << QByteArray("1.5") << QSizeF(1280, 720);
}

void InterfaceScaleTest::theScreenIsMeasuredInTheDesktopsUnits() {
    QFETCH(QByteArray, resources);
    QFETCH(QByteArray, usersFactor);
    QFETCH(QByteArray, listed);
    QFETCH(QSizeF, size);
    const VirtualDisplay display(1920, 1080);
    QVERIFY(display.isRunning());
    m_environment->set("DISPLAY", display.name());
    m_environment->set("QT_SCALE_FACTOR", usersFactor);
    m_environment->set("QT_SCREEN_SCALE_FACTORS", listed);
    setResources(resources);
    QCOMPARE(primaryScreenSize(), std::optional(size));
    releaseX11Screen();
}

void InterfaceScaleTest::windowsAreScaledAndChildrenAreNot_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QByteArray>("usersFactor");
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("small") << QSize(1024, 600) << QByteArray() << QByteArray("1 800 [] []");
    // Qt tells 819 by 614, and four thirds of that are less.
    QTest::newRow("a part of a unit")
        << QSize(1024, 768) << QByteArray() << QByteArray("1.25 819 [] []");
    QTest::newRow("usual") << QSize(1920, 1080) << QByteArray() << QByteArray("1.75 822 [] []");
    QTest::newRow("large") << QSize(3840, 2160) << QByteArray() << QByteArray("3.5 822 [] []");
    QTest::newRow("with a factor of the user's")
        << QSize(3840, 2160) << QByteArray("2") << QByteArray("1.75 822 [2] [2]");
}

void InterfaceScaleTest::windowsAreScaledAndChildrenAreNot() {
    QFETCH(QSize, screen);
    QFETCH(QByteArray, usersFactor);
    QFETCH(QByteArray, told);
    const VirtualDisplay display(screen.width(), screen.height());
    QVERIFY(display.isRunning());
    m_environment->set("DISPLAY", display.name());
    m_environment->set("QT_SCALE_FACTOR", usersFactor);
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QCoreApplication::applicationFilePath(),
                  {u"interface_scale_test"_s, u"--program"_s});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.readAllStandardOutput().trimmed(), told);
}

void InterfaceScaleTest::withoutADesktopNothingIsScaled() {
    m_environment->set("QT_QPA_PLATFORM", "offscreen");
    QCOMPARE(applyInterfaceScale(primaryScreenSize()), 1.0);
    QVERIFY(!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
    withdrawInterfaceScale();
    QVERIFY(!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
}

ORVALIS_TEST_MAIN(int argc, char** argv) {
    if (argc == 2 && QByteArray(argv[1]) == "--program")
        return runAsProgram(argc, argv);
    fixedGround();
    const QGuiApplication app(argc, argv);
    InterfaceScaleTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "interface_scale_test.moc"
