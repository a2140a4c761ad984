// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

namespace orvalis::test {

/// A sound server of its own whose one device is nowhere to be heard, and an ear at that device.
class NullSink {
public:
    NullSink() {
        m_environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
        for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"})
            m_environment.insert(QString::fromLatin1(name), m_folder.path());
        m_environment.insert(QStringLiteral("PULSE_SERVER"), server());
        start(m_server, QStringLiteral("pulseaudio"),
              {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
               QStringLiteral("--use-pid-file=no"), QStringLiteral("--exit-idle-time=-1"),
               QStringLiteral("--load=module-null-sink sink_name=nowhere"),
               QStringLiteral("--load=module-native-protocol-unix auth-anonymous=1 socket=%1")
                   .arg(socket())});
        while (!QFileInfo::exists(socket()) && !m_server.waitForFinished(20)) {
        }
        start(m_ear, QStringLiteral("parec"),
              {QStringLiteral("--device=nowhere.monitor"), QStringLiteral("--raw"),
               QStringLiteral("--latency-msec=20")});
        // What a silent device has to tell is noughts, so the ear is open once they come.
        m_ear.waitForReadyRead(20000);
    }
    ~NullSink() {
        for (QProcess* process : {&m_ear, &m_server}) {
            process->terminate();
            process->waitForFinished();
        }
    }
    NullSink(const NullSink&) = delete;
    NullSink& operator=(const NullSink&) = delete;

    /// What PULSE_SERVER has to say.
    QString server() const { return QStringLiteral("unix:") + socket(); }
    bool isListening() const {
        return m_server.state() == QProcess::Running && m_ear.bytesAvailable() > 0;
    }
    /// How many bytes of sound, silence apart, the device was given since the last question.
    qsizetype heard() {
        m_ear.waitForReadyRead(0);
        const QByteArray bytes = m_ear.readAllStandardOutput();
        return std::count_if(bytes.begin(), bytes.end(), [](char byte) { return byte != 0; });
    }

private:
    QString socket() const { return m_folder.filePath(QStringLiteral("native")); }
    void start(QProcess& process, const QString& program, const QStringList& arguments) {
        process.setProcessEnvironment(m_environment);
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, arguments);
        process.waitForStarted();
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QProcess m_server;
    QProcess m_ear;
};

} // namespace orvalis::test
