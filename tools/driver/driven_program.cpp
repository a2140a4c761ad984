// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace orvalis::driver {

namespace {

constexpr int AnswerWithinMilliseconds = 8000;

QRect rectOf(const QJsonObject& object) {
    return {qRound(object[u"x"_s].toDouble()), qRound(object[u"y"_s].toDouble()),
            qRound(object[u"w"_s].toDouble()), qRound(object[u"h"_s].toDouble())};
}

Control controlOf(const QJsonObject& object) {
    Control control;
    control.found = object[u"found"_s].toBool();
    control.visible = object[u"visible"_s].toBool();
    control.enabled = object[u"enabled"_s].toBool();
    control.checked = object[u"checked"_s].toBool();
    control.focused = object[u"focus"_s].toBool();
    control.active = object[u"active"_s].toBool();
    control.window = static_cast<quint32>(object[u"window"_s].toInteger());
    control.rect = rectOf(object);
    control.name = object[u"name"_s].toString();
    control.className = object[u"class"_s].toString();
    control.text = object[u"text"_s].toString();
    control.title = object[u"title"_s].toString();
    control.tip = object[u"tip"_s].toString();
    control.marked = object[u"marked"_s].toString();
    const auto rows = object[u"rows"_s].toArray();
    for (const auto& row : rows)
        control.rows << row.toString();
    const auto entries = object[u"entries"_s].toArray();
    for (const auto& entry : entries)
        control.entries << entry.toString();
    const auto buttons = object[u"buttons"_s].toArray();
    for (const auto& button : buttons) {
        control.buttons << button.toObject()[u"text"_s].toString();
        control.buttonRects << rectOf(button.toObject());
    }
    return control;
}

QString fakeTimeLibrary() {
    const QStringList places{u"/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1"_s,
                             u"/usr/lib/aarch64-linux-gnu/faketime/libfaketime.so.1"_s,
                             u"/usr/lib/faketime/libfaketime.so.1"_s};
    for (const QString& place : places)
        if (QFile::exists(place))
            return place;
    return {};
}

} // namespace

DrivenProgram::DrivenProgram(Stage& stage, const QString& executable)
    : m_stage(stage)
    , m_folder(std::make_shared<QTemporaryDir>())
    , m_probe(m_folder->filePath(u"probe"_s))
    , m_environment(stage.environment()) {
    QDir(m_folder->path()).mkpath(u"app"_s);
    for (const char* part : {"config", "data", "runtime", "home", "bin"})
        QDir(m_folder->path()).mkpath(QString::fromLatin1(part));
    QFile::setPermissions(m_folder->filePath(u"runtime"_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QDir built = QFileInfo(executable).dir();
    const QStringList files = QStringLiteral(ORVALIS_COMPANIONS).split(u'|') +
                              QStringList(QFileInfo(executable).fileName());
    for (const QString& file : files)
        m_complete &= QFile::copy(built.filePath(file), folder() + u'/' + file);

    m_environment.insert(u"HOME"_s, m_folder->filePath(u"home"_s));
    m_environment.insert(u"XDG_CONFIG_HOME"_s, configFolder());
    m_environment.insert(u"XDG_DATA_HOME"_s, m_folder->filePath(u"data"_s));
    m_environment.insert(u"XDG_RUNTIME_DIR"_s, m_folder->filePath(u"runtime"_s));
    m_environment.insert(u"PATH"_s, binFolder() + u':' + m_environment.value(u"PATH"_s));
    m_environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    m_environment.insert(u"TZ"_s, u"UTC"_s);
    // The bus library and the toolkit's display part keep memory to the end of a process.
    appendSanitizerOption(u"detect_leaks=0"_s);
    const QString plugins = QStringLiteral(ORVALIS_PROBE_PATH);
    m_environment.insert(u"QT_PLUGIN_PATH"_s, plugins);
    m_environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"orvalis_probe:"_s + m_probe);
}

DrivenProgram::DrivenProgram(const DrivenProgram& first, int number)
    : m_stage(first.m_stage)
    , m_folder(first.m_folder)
    , m_probe(first.m_probe + QString::number(number))
    , m_environment(first.m_environment)
    , m_clockMoved(first.m_clockMoved) {
    m_environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"orvalis_probe:"_s + m_probe);
}

DrivenProgram::~DrivenProgram() {
    kill();
}

QByteArray DrivenProgram::fileBytes(const QString& name) const {
    QFile file(folder() + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void DrivenProgram::setVariable(const QString& name, const QString& value) {
    m_environment.insert(name, value);
}

void DrivenProgram::appendSanitizerOption(const QString& option) {
    const QString name = u"ASAN_OPTIONS"_s;
    const QString before = m_environment.value(name);
    m_environment.insert(name, before.isEmpty() ? option : before + u':' + option);
}

void DrivenProgram::setClock(const QDateTime& moment) {
    // The library reads the offset from this file again at every question, so the clock can be
    // moved under the running program.
    const qint64 offset = QDateTime::currentDateTimeUtc().msecsTo(moment.toUTC());
    const QString path = m_folder->filePath(u"faketime"_s);
    QFile file(path + u".new"_s);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(QByteArray(offset < 0 ? "-" : "+") +
               QByteArray::number(qAbs(offset) / 1000.0, 'f', 3));
    file.close();
    std::rename(QFile::encodeName(file.fileName()).constData(),
                QFile::encodeName(path).constData());
    if (m_clockMoved)
        return;
    m_clockMoved = true;
    const QString library = fakeTimeLibrary();
    const QString before = m_environment.value(u"LD_PRELOAD"_s);
    m_environment.insert(u"LD_PRELOAD"_s, before.isEmpty() ? library : before + u':' + library);
    m_environment.insert(u"FAKETIME_TIMESTAMP_FILE"_s, path);
    m_environment.insert(u"FAKETIME_NO_CACHE"_s, u"1"_s);
    m_environment.insert(u"FAKETIME_DONT_FAKE_MONOTONIC"_s, u"1"_s);
    m_environment.insert(u"DONT_FAKE_MONOTONIC"_s, u"1"_s);
    appendSanitizerOption(u"verify_asan_link_order=0"_s);
}

bool DrivenProgram::launch() {
    if (!m_complete)
        return false;
    m_process.setProcessEnvironment(m_environment);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setWorkingDirectory(m_folder->path());
    m_process.start(folder() + u"/orvalis"_s, QStringList());
    return m_process.waitForStarted(5000);
}

bool DrivenProgram::connectProbe() {
    const QByteArray path = QFile::encodeName(m_probe);
    return waitUntil(
               [&] {
                   sockaddr_un address{};
                   address.sun_family = AF_UNIX;
                   std::strncpy(address.sun_path, path.constData(), sizeof(address.sun_path) - 1);
                   const int peer = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
                   if (::connect(peer, reinterpret_cast<sockaddr*>(&address), sizeof(address)) ==
                       0) {
                       m_socket = peer;
                       return true;
                   }
                   ::close(peer);
                   return !isRunning();
               },
               15000) &&
           m_socket >= 0;
}

bool DrivenProgram::isRunning() {
    m_process.waitForFinished(0);
    return m_process.state() == QProcess::Running;
}

void DrivenProgram::kill() {
    if (m_socket >= 0)
        ::close(m_socket);
    m_socket = -1;
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished(5000);
}

bool DrivenProgram::waitForEnd(int milliseconds) {
    return m_process.state() == QProcess::NotRunning || m_process.waitForFinished(milliseconds);
}

QByteArray DrivenProgram::output() {
    return m_process.readAll();
}

QJsonObject DrivenProgram::ask(const QString& what, const QString& name) {
    if (m_socket < 0)
        return {};
    const QByteArray line = QJsonDocument(QJsonObject{{u"ask"_s, what}, {u"name"_s, name}})
                                .toJson(QJsonDocument::Compact) +
                            '\n';
    if (::send(m_socket, line.constData(), line.size(), MSG_NOSIGNAL) != line.size())
        return {};
    m_received.clear();
    while (!m_received.endsWith('\n')) {
        pollfd readable{m_socket, POLLIN, 0};
        if (::poll(&readable, 1, AnswerWithinMilliseconds) <= 0)
            return {};
        char buffer[65536];
        const ssize_t length = ::read(m_socket, buffer, sizeof(buffer));
        if (length <= 0)
            return {};
        m_received.append(buffer, length);
    }
    return QJsonDocument::fromJson(m_received).object();
}

/// What the probe tells is measured from the corner of the control's window.
Control DrivenProgram::placed(Control control) const {
    const auto origin = m_stage.display().originOf(control.window);
    control.visible = control.visible && origin.has_value();
    if (!origin)
        return control;
    control.rect.translate(*origin);
    for (QRect& button : control.buttonRects)
        button.translate(*origin);
    return control;
}

Control DrivenProgram::control(const QString& name) {
    return placed(controlOf(ask(u"control"_s, name)));
}

Control DrivenProgram::menuEntry(const QString& nameOrText) {
    return placed(controlOf(ask(u"action"_s, nameOrText)));
}

Control DrivenProgram::focus() {
    return placed(controlOf(ask(u"focus"_s)));
}

QList<Control> DrivenProgram::windows() {
    QList<Control> list;
    const auto windows = ask(u"windows"_s)[u"windows"_s].toArray();
    for (const auto& window : windows)
        list << placed(controlOf(window.toObject()));
    return list;
}

Control DrivenProgram::messageBox() {
    const auto list = windows();
    for (const Control& window : list)
        if (!window.buttons.isEmpty())
            return window;
    return {};
}

bool DrivenProgram::waitVisible(const QString& name, int milliseconds) {
    return waitUntil([&] { return control(name).visible; }, milliseconds);
}

bool DrivenProgram::waitText(const QString& name, const QString& text, int milliseconds) {
    return waitUntil([&] { return control(name).text == text; }, milliseconds);
}

bool DrivenProgram::takePicture(const QString& path) {
    return ask(u"picture"_s, path)[u"found"_s].toBool();
}

} // namespace orvalis::driver
