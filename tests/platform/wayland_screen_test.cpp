// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/wayland/wayland_screen.h"

#include "platform/freedesktop/display_probe.h"
#include "support/environment.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>

#include <wayland-server.h>

#include <atomic>
#include <memory>
#include <thread>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

struct OutputOffer {
    uint32_t version = 4;
    int32_t width = 1920;
    int32_t height = 1080;
    int32_t scale = 1;
    int32_t transform = WL_OUTPUT_TRANSFORM_NORMAL;
};

/// A compositor that has screens and nothing else, in a thread of its own.
class Compositor {
public:
    explicit Compositor(const QList<OutputOffer>& offers)
        : m_offers(offers)
        , m_display(wl_display_create()) {
        m_socket = wl_display_add_socket_auto(m_display);
        for (OutputOffer& offer : m_offers)
            wl_global_create(m_display, &wl_output_interface, static_cast<int>(offer.version),
                             &offer, &Compositor::bind);
        m_thread = std::thread([this] {
            while (!m_ends) {
                wl_display_flush_clients(m_display);
                wl_event_loop_dispatch(wl_display_get_event_loop(m_display), 10);
            }
        });
    }
    ~Compositor() {
        m_ends = true;
        m_thread.join();
        wl_display_destroy_clients(m_display);
        wl_display_destroy(m_display);
    }

    QByteArray socket() const { return m_socket; }

private:
    static void bind(wl_client* client, void* data, uint32_t version, uint32_t id) {
        static const struct wl_output_interface requests {
            [](wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }
        };
        const auto& offer = *static_cast<OutputOffer*>(data);
        wl_resource* output =
            wl_resource_create(client, &wl_output_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(output, &requests, nullptr, nullptr);
        wl_output_send_geometry(output, 0, 0, 600, 340, 0, "maker", "model", offer.transform);
        wl_output_send_mode(output, 0, 640, 480, 60000);
        wl_output_send_mode(output, WL_OUTPUT_MODE_CURRENT, offer.width, offer.height, 60000);
        if (version >= WL_OUTPUT_SCALE_SINCE_VERSION)
            wl_output_send_scale(output, offer.scale);
        if (version >= WL_OUTPUT_NAME_SINCE_VERSION)
            wl_output_send_name(output, "eDP-1");
        if (version >= WL_OUTPUT_DONE_SINCE_VERSION)
            wl_output_send_done(output);
    }

    QList<OutputOffer> m_offers;
    wl_display* m_display;
    QByteArray m_socket;
    std::atomic<bool> m_ends = false;
    std::thread m_thread;
};

} // namespace

class WaylandScreenTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void theScreenIsMeasuredInTheCompositorsUnits_data();
    void theScreenIsMeasuredInTheCompositorsUnits();
    void theFirstScreenCounts();
    void aCompositorWithoutAScreenTellsNothing();
    void theUsersFactorCountsToo();

private:
    std::unique_ptr<TemporaryFolder> m_runtimeFolder;
    std::unique_ptr<Environment> m_environment;
};

void WaylandScreenTest::init() {
    m_runtimeFolder = std::make_unique<TemporaryFolder>();
    m_environment = std::make_unique<Environment>();
    m_environment->set("XDG_RUNTIME_DIR", m_runtimeFolder->path().toLocal8Bit());
    m_environment->set("QT_QPA_PLATFORM", "wayland");
    for (const char* name :
         {"WAYLAND_SOCKET", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "DISPLAY"})
        m_environment->unset(name);
}

void WaylandScreenTest::cleanup() {
    m_environment.reset();
}

void WaylandScreenTest::theScreenIsMeasuredInTheCompositorsUnits_data() {
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("transform");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("plain") << 4 << 1 << int(WL_OUTPUT_TRANSFORM_NORMAL) << QSizeF(1920, 1080);
    QTest::newRow("scaled") << 4 << 2 << int(WL_OUTPUT_TRANSFORM_NORMAL) << QSizeF(960, 540);
    QTest::newRow("on its side") << 4 << 1 << int(WL_OUTPUT_TRANSFORM_90) << QSizeF(1080, 1920);
    QTest::newRow("upside down") << 4 << 1 << int(WL_OUTPUT_TRANSFORM_180) << QSizeF(1920, 1080);
    QTest::newRow("on its side and scaled")
        << 4 << 2 << int(WL_OUTPUT_TRANSFORM_FLIPPED_270) << QSizeF(540, 960);
    QTest::newRow("an old compositor")
        << 1 << 1 << int(WL_OUTPUT_TRANSFORM_NORMAL) << QSizeF(1920, 1080);
    QTest::newRow("one without names")
        << 3 << 2 << int(WL_OUTPUT_TRANSFORM_NORMAL) << QSizeF(960, 540);
}

void WaylandScreenTest::theScreenIsMeasuredInTheCompositorsUnits() {
    QFETCH(int, version);
    QFETCH(int, scale);
    QFETCH(int, transform);
    QFETCH(QSizeF, size);
    const Compositor compositor({OutputOffer{
        .version = static_cast<uint32_t>(version), .scale = scale, .transform = transform}});
    m_environment->set("WAYLAND_DISPLAY", compositor.socket());
    const auto screen = waylandScreen();
    QVERIFY(screen.has_value());
    QCOMPARE(screen->size, size);
    QCOMPARE(screen->factor, 1.0);
    QCOMPARE(screen->name, version >= 4 ? QByteArray("eDP-1") : QByteArray());
}

void WaylandScreenTest::theFirstScreenCounts() {
    const Compositor compositor({OutputOffer{.width = 1280, .height = 800}, OutputOffer{}});
    m_environment->set("WAYLAND_DISPLAY", compositor.socket());
    QCOMPARE(primaryScreenSize(), std::optional(QSizeF(1280, 800)));
}

void WaylandScreenTest::aCompositorWithoutAScreenTellsNothing() {
    const Compositor compositor({});
    m_environment->set("WAYLAND_DISPLAY", compositor.socket());
    QVERIFY(!primaryScreenSize().has_value());
}

void WaylandScreenTest::theUsersFactorCountsToo() {
    const Compositor compositor({OutputOffer{.width = 3840, .height = 2160}});
    m_environment->set("WAYLAND_DISPLAY", compositor.socket());
    m_environment->set("QT_SCALE_FACTOR", "1.5");
    QCOMPARE(primaryScreenSize(), std::optional(QSizeF(2560, 1440)));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, WaylandScreenTest)
#include "wayland_screen_test.moc"
