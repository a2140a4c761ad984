// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/display_probe.h"

#include "platform/interface_scale.h"
#include "platform/x11/xsettings.h"
#include "support/environment.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QtEndian>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

/// The settings of a desktop in the binary form in which they are published.
class PublishedSettings {
public:
    explicit PublishedSettings(bool bigEndian)
        : m_bigEndian(bigEndian) {}

    PublishedSettings& integer(const QByteArray& name, qint32 value) {
        begin(0, name);
        put(value);
        return *this;
    }
    PublishedSettings& text(const QByteArray& name, const QByteArray& value) {
        begin(1, name);
        put(quint32(value.size()));
        m_settings += padded(value);
        return *this;
    }
    PublishedSettings& colour(const QByteArray& name) {
        begin(2, name);
        m_settings += QByteArray(8, '\1');
        return *this;
    }
    QByteArray bytes() {
        const QByteArray settings = std::exchange(m_settings, QByteArray());
        m_settings += char(m_bigEndian);
        m_settings += QByteArray(3, '\0');
        put(quint32(77));
        put(m_count);
        return m_settings + settings;
    }

private:
    template <class Number>
    void put(Number number) {
        QByteArray bytes(sizeof(Number), Qt::Uninitialized);
        if (m_bigEndian)
            qToBigEndian(number, bytes.data());
        else
            qToLittleEndian(number, bytes.data());
        m_settings += bytes;
    }
    static QByteArray padded(const QByteArray& text) {
        return text + QByteArray((4 - text.size() % 4) % 4, '\0');
    }
    void begin(char type, const QByteArray& name) {
        m_settings += type;
        m_settings += '\0';
        put(quint16(name.size()));
        m_settings += padded(name);
        put(quint32(1));
        ++m_count;
    }

    bool m_bigEndian;
    quint32 m_count = 0;
    QByteArray m_settings;
};

} // namespace

class DisplayProbeTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void theServerIsTheOneThatQtWillUse_data();
    void theServerIsTheOneThatQtWillUse();
    void theResourcesTellTheResolution_data();
    void theResourcesTellTheResolution();
    void theSettingsTellTheResolutionInEitherByteOrder();
    void settingsWithoutAResolutionTellNone();
    void cutSettingsTellNone();
    void aListGivesAScreenItsFactor_data();
    void aListGivesAScreenItsFactor();
    void theUsersFactorIsOneUnlessItIsANumber_data();
    void theUsersFactorIsOneUnlessItIsANumber();
    void whereThereIsNoDesktopThereIsNoSize();

private:
    std::unique_ptr<Environment> m_environment;
};

void DisplayProbeTest::init() {
    m_environment = std::make_unique<Environment>();
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE",
                             "XDG_CURRENT_DESKTOP", "QT_SCALE_FACTOR"})
        m_environment->unset(name);
}

void DisplayProbeTest::cleanup() {
    m_environment.reset();
}

void DisplayProbeTest::theServerIsTheOneThatQtWillUse_data() {
    QTest::addColumn<QByteArrayList>("variables");
    QTest::addColumn<int>("server");
    const auto row = [](const char* name, const QByteArrayList& variables, DisplayServer server) {
        QTest::newRow(name) << variables << int(server);
    };
    row("nothing", {}, DisplayServer::None);
    row("X11", {"DISPLAY=:0"}, DisplayServer::X11);
    row("Wayland", {"WAYLAND_DISPLAY=wayland-0"}, DisplayServer::Wayland);
    row("both", {"DISPLAY=:0", "WAYLAND_DISPLAY=wayland-0"}, DisplayServer::Wayland);
    row("session", {"DISPLAY=:0", "XDG_SESSION_TYPE=wayland"}, DisplayServer::Wayland);
    row("GNOME", {"DISPLAY=:0", "WAYLAND_DISPLAY=wayland-0", "XDG_CURRENT_DESKTOP=ubuntu:GNOME"},
        DisplayServer::X11);
    row("GNOME without X11", {"WAYLAND_DISPLAY=wayland-0", "XDG_CURRENT_DESKTOP=GNOME"},
        DisplayServer::Wayland);
    row("asked for xcb", {"QT_QPA_PLATFORM=xcb", "WAYLAND_DISPLAY=x"}, DisplayServer::X11);
    row("asked for wayland", {"QT_QPA_PLATFORM=wayland;xcb", "DISPLAY=:0"}, DisplayServer::Wayland);
    row("asked for offscreen", {"QT_QPA_PLATFORM=offscreen", "DISPLAY=:0"}, DisplayServer::None);
}

void DisplayProbeTest::theServerIsTheOneThatQtWillUse() {
    QFETCH(QByteArrayList, variables);
    QFETCH(int, server);
    for (const QByteArray& variable : variables) {
        const qsizetype equals = variable.indexOf('=');
        m_environment->set(variable.first(equals), variable.sliced(equals + 1));
    }
    QCOMPARE(int(displayServer()), server);
}

void DisplayProbeTest::theResourcesTellTheResolution_data() {
    QTest::addColumn<QByteArray>("resources");
    QTest::addColumn<double>("resolution");
    QTest::newRow("none") << QByteArray() << 0.0;
    QTest::newRow("plain") << QByteArray("Xft.dpi:\t192\n") << 192.0;
    QTest::newRow("among others") << QByteArray(
                                         "*background: white\nXft.antialias:\t1\nXft.dpi: 144\nx:1")
                                  << 144.0;
    QTest::newRow("another name") << QByteArray("Xft.dpis: 192\nmyXft.dpi: 192\n") << 0.0;
    QTest::newRow("rubbish") << QByteArray("Xft.dpi: many\n") << 0.0;
    QTest::newRow("nought") << QByteArray("Xft.dpi: 0\n") << 0.0;
    QTest::newRow("negative") << QByteArray("Xft.dpi: -96\n") << 0.0;
}

void DisplayProbeTest::theResourcesTellTheResolution() {
    QFETCH(QByteArray, resources);
    QFETCH(double, resolution);
    QCOMPARE(resolutionOfResources(resources).value_or(0), resolution);
}

void DisplayProbeTest::theSettingsTellTheResolutionInEitherByteOrder() {
    for (const bool bigEndian : {false, true}) {
        const QByteArray bytes = PublishedSettings(bigEndian)
                                     .text("Net/ThemeName", "Ice")
                                     .colour("Some/Colour")
                                     .integer("Xft/Antialias", 1)
                                     .integer("Xft/DPI", 144 * 1024)
                                     .text("Behind", "it")
                                     .bytes();
        QCOMPARE(resolutionOfSettings(bytes), std::optional(144.0));
    }
}

void DisplayProbeTest::settingsWithoutAResolutionTellNone() {
    QVERIFY(!resolutionOfSettings(QByteArray()).has_value());
    QVERIFY(!resolutionOfSettings(PublishedSettings(false).bytes()).has_value());
    QVERIFY(!resolutionOfSettings(PublishedSettings(false).integer("Xft/DPI", -1).bytes()));
    QVERIFY(!resolutionOfSettings(PublishedSettings(false).text("Xft/DPI", "96").bytes()));
    QVERIFY(!resolutionOfSettings(QByteArray(4096, '\xFF')).has_value());
}

void DisplayProbeTest::cutSettingsTellNone() {
    const QByteArray whole =
        PublishedSettings(false).text("Net/ThemeName", "Ice").integer("Xft/DPI", 98304).bytes();
    QVERIFY(resolutionOfSettings(whole).has_value());
    for (qsizetype length = 0; length < whole.size(); ++length)
        QVERIFY(!resolutionOfSettings(QByteArrayView(whole).first(length)).has_value());
}

void DisplayProbeTest::aListGivesAScreenItsFactor_data() {
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<double>("factor");
    QTest::newRow("empty") << QByteArray() << 0.0;
    QTest::newRow("by name") << QByteArray("HDMI-1=1;eDP-1=1.5;") << 1.5;
    QTest::newRow("another name") << QByteArray("HDMI-1=2") << 0.0;
    QTest::newRow("without names") << QByteArray("2;1") << 2.0;
    QTest::newRow("rubbish") << QByteArray("eDP-1=big") << 0.0;
}

void DisplayProbeTest::aListGivesAScreenItsFactor() {
    QFETCH(QByteArray, list);
    QFETCH(double, factor);
    QCOMPARE(listedFactor(list, "eDP-1").value_or(0), factor);
}

void DisplayProbeTest::theUsersFactorIsOneUnlessItIsANumber_data() {
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<double>("factor");
    QTest::newRow("unset") << QByteArray() << 1.0;
    QTest::newRow("two") << QByteArray("2") << 2.0;
    QTest::newRow("fraction") << QByteArray("1.25") << 1.25;
    QTest::newRow("nought") << QByteArray("0") << 1.0;
    QTest::newRow("rubbish") << QByteArray("x") << 1.0;
}

void DisplayProbeTest::theUsersFactorIsOneUnlessItIsANumber() {
    QFETCH(QByteArray, variable);
    QFETCH(double, factor);
    m_environment->set("QT_SCALE_FACTOR", variable);
    QCOMPARE(userFactor(), factor);
}

void DisplayProbeTest::whereThereIsNoDesktopThereIsNoSize() {
    QVERIFY(!primaryScreenSize().has_value());
    m_environment->set("QT_QPA_PLATFORM", "offscreen");
    QVERIFY(!primaryScreenSize().has_value());
    m_environment->set("QT_QPA_PLATFORM", "xcb");
    m_environment->set("DISPLAY", ":987654");
    QVERIFY(!primaryScreenSize().has_value());
    m_environment->set("QT_QPA_PLATFORM", "wayland");
    m_environment->set("WAYLAND_DISPLAY", "no-such-socket");
    QVERIFY(!primaryScreenSize().has_value());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, DisplayProbeTest)
#include "display_probe_test.moc"
