// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// start_bench [--idle]: how long the program takes to its first painted window and how much memory
// it needs for that, beside a bare window of the same library on the same display; with --idle also
// what the program asks of the processor in a minute of doing nothing, in its window and in the
// tray.
#include "support/virtual_display.h"
#include "timing.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <xcb/xcb.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using orvalis::bench::median;

namespace {

constexpr int Rounds = 21;
constexpr int ScreenWidth = 900;
constexpr int ScreenHeight = 600;
constexpr double StartLimit = 2.0;
constexpr double MemoryLimit = 1.5;
constexpr double IdleLimit = 0.3; // per cent of a core
constexpr double TrayLimit = 0.2;
constexpr double WakeUpLimit = 3; // a second
constexpr int IdleSeconds = 60;

struct Start {
    double milliseconds = 0;
    double kilobytes = 0;
};

/// Looks at the screen from outside, as a user would.
class Eye {
public:
    explicit Eye(const QByteArray& display)
        : m_connection(xcb_connect(display.constData(), nullptr)) {
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    }
    ~Eye() { xcb_disconnect(m_connection); }
    Eye(const Eye&) = delete;
    Eye& operator=(const Eye&) = delete;

    /// Whether anything but the empty screen is seen.
    bool seesAWindow() const {
        // A line through the middle crosses every window that opens, wherever it lies.
        const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> line(
            xcb_get_image_reply(m_connection,
                                xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, 0,
                                              ScreenHeight / 4, ScreenWidth, 1, ~0U),
                                nullptr),
            &std::free);
        if (!line)
            return false;
        const auto* pixels = reinterpret_cast<const quint32*>(xcb_get_image_data(line.get()));
        return std::any_of(pixels, pixels + ScreenWidth,
                           [](quint32 pixel) { return (pixel & 0xFFFFFFU) != 0; });
    }

private:
    xcb_connection_t* m_connection;
    xcb_window_t m_root;
};

pid_t launch(const QByteArray& program) {
    const pid_t child = fork();
    if (child == 0) {
        execl(program.constData(), program.constData(), static_cast<char*>(nullptr));
        _exit(127);
    }
    return child;
}

rusage stop(pid_t child) {
    rusage usage{};
    int status = 0;
    kill(child, SIGKILL);
    wait4(child, &status, 0, &usage);
    return usage;
}

Start measure(const QByteArray& program, const Eye& eye) {
    while (eye.seesAWindow())
        QThread::msleep(1);
    QElapsedTimer timer;
    timer.start();
    const pid_t child = launch(program);
    while (!eye.seesAWindow() && timer.elapsed() < 20000)
        QThread::usleep(300);
    const double elapsed = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    // What the first picture drags along belongs to its price.
    QThread::msleep(150);
    return {elapsed, static_cast<double>(stop(child).ru_maxrss)};
}

QByteArray processFile(pid_t process, const char* name) {
    QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

double processorSeconds(pid_t process) {
    const QByteArray line = processFile(process, "stat");
    const auto fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    return (fields.value(11).toDouble() + fields.value(12).toDouble()) /
           static_cast<double>(sysconf(_SC_CLK_TCK));
}

double wakeUps(pid_t process) {
    const QByteArray status = processFile(process, "status");
    constexpr QByteArrayView Name("\nvoluntary_ctxt_switches:");
    const qsizetype value = status.indexOf(Name) + Name.size();
    return status.mid(value, status.indexOf('\n', value) - value).trimmed().toDouble();
}

/// What a minute of doing nothing costs a program that is up.
bool reportIdle(const char* where, const QByteArray& program, double limit) {
    constexpr int SettlingSeconds = 5;
    const pid_t child = launch(program);
    QThread::sleep(SettlingSeconds);
    const double secondsBefore = processorSeconds(child);
    const double wakeUpsBefore = wakeUps(child);
    QThread::sleep(IdleSeconds);
    const double share = 100 * (processorSeconds(child) - secondsBefore) / IdleSeconds;
    const double perSecond = (wakeUps(child) - wakeUpsBefore) / IdleSeconds;
    const bool ran = wakeUpsBefore > 0 && stop(child).ru_maxrss > 0;
    std::printf("idle %s: %.2f %% of a core (limit %.1f %%), %.1f wake-ups a second (limit %.0f), "
                "over %d s\n",
                where, share, limit, perSecond, WakeUpLimit, IdleSeconds);
    return ran && share < limit && perSecond <= WakeUpLimit;
}

/// From now on the program starts in the tray.
bool startInTheTray(const QDir& configuration) {
    configuration.mkpath(QStringLiteral("orvalis"));
    QFile settings(configuration.filePath(QStringLiteral("orvalis/orvalis.ini")));
    const QByteArray text = "[Reg]\nStart=1\n1st=True\n";
    return settings.open(QIODevice::WriteOnly) && settings.write(text) == text.size();
}

bool report(const char* what, double ours, double bare, const char* unit, double limit) {
    const double ratio = ours / bare;
    std::printf("%s: %.1f %s, a bare window %.1f %s, ratio %.2f (limit %.1f)\n", what, ours, unit,
                bare, unit, ratio, limit);
    return ratio <= limit;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QTemporaryDir folder;
    const QString program = folder.filePath(QStringLiteral("orvalis"));
    if (!QFile::copy(QStringLiteral(ORVALIS_EXECUTABLE), program)) {
        std::fprintf(stderr, "the program is not built\n");
        return 2;
    }
    qputenv("HOME", folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const orvalis::test::VirtualDisplay display(ScreenWidth, ScreenHeight);
    if (!display.isRunning()) {
        std::fprintf(stderr, "no virtual display\n");
        return 2;
    }
    qputenv("DISPLAY", display.name());
    const Eye eye(display.name());

    const QByteArray ours = QFile::encodeName(program);
    const QByteArray bare = ORVALIS_BARE_WINDOW;
    measure(ours, eye);
    measure(bare, eye);
    std::vector<double> times[2];
    std::vector<double> sizes[2];
    for (int round = 0; round < Rounds; ++round) {
        for (int which = 0; which < 2; ++which) {
            const Start start = measure(which == 0 ? ours : bare, eye);
            times[which].push_back(start.milliseconds);
            sizes[which].push_back(start.kilobytes / 1024);
        }
    }
    bool good =
        report("first painted window", median(times[0]), median(times[1]), "ms", StartLimit);
    good &= report("peak memory", median(sizes[0]), median(sizes[1]), "MB", MemoryLimit);
    if (app.arguments().contains(QStringLiteral("--idle"))) {
        good &= reportIdle("in the window", ours, IdleLimit);
        good &= startInTheTray(QDir(folder.path()));
        good &= reportIdle("in the tray", ours, TrayLimit);
    }
    return good ? 0 : 1;
}
