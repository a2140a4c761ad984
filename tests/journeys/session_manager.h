// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <vector>

#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>
#include <poll.h>

// The library's words for plain numbers are names elsewhere.
#undef Bool
#undef False
#undef Status
#undef True

namespace orvalis::test {

/// A desktop's session manager, as far as a log-out needs one: programs sign on with it, and at the
/// log-out it asks each to keep what it has and then lets it go, or calls the log-out off. It works
/// on a thread of its own, so that no program waits for the test.
class SessionManager {
public:
    SessionManager() {
        char words[256] = {};
        // Sockets and keys of a user's real session are none of ours.
        qputenv("ICEAUTHORITY", QFile::encodeName(m_folder.filePath(QStringLiteral("keys"))));
        // The library's own answer to a program that was killed is to end this one.
        IceSetIOErrorHandler([](IceConn) {});
        m_up = SmsInitialize("Orvalis tests", "1", &SessionManager::signOn, this, &anyHost,
                             sizeof(words), words) != 0 &&
               IceListenForConnections(&m_listenerCount, &m_listeners, sizeof(words), words) != 0;
        for (int i = 0; i < m_listenerCount; ++i)
            IceSetHostBasedAuthProc(m_listeners[i], &anyHost);
        m_thread.reset(QThread::create([this] { serve(); }));
        m_thread->start();
    }
    ~SessionManager() {
        m_ends = true;
        m_thread->wait();
        while (!m_signedOn.empty())
            forget(m_signedOn.back());
        while (!m_connections.empty())
            drop(m_connections.back());
        IceFreeListenObjs(m_listenerCount, m_listeners);
    }
    SessionManager(const SessionManager&) = delete;
    SessionManager& operator=(const SessionManager&) = delete;

    bool isUp() const { return m_up; }
    /// What SESSION_MANAGER has to say to a program.
    QString address() const {
        char* list = IceComposeNetworkIdList(m_listenerCount, m_listeners);
        QString text = QString::fromLocal8Bit(list);
        std::free(list);
        return text;
    }

    bool hasProgram() const { return m_programs > 0; }
    /// Whether the program has answered that all is kept, since the last log-out began.
    bool hasKept() const { return m_kept; }

    void beginLogOut() {
        m_kept = false;
        tell([](SmsConn program) {
            SmsSaveYourself(program, SmSaveBoth, 1, SmInteractStyleAny, 0);
        });
    }
    void callOff() { tell(SmsShutdownCancelled); }
    void finishLogOut() { tell(SmsDie); }

private:
    using Word = void (*)(SmsConn);

    static int anyHost(char*) { return 1; }

    static int signOn(SmsConn program, SmPointer manager, unsigned long* mask,
                      SmsCallbacks* callbacks, char**) {
        *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
                SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
                SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask |
                SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
        callbacks->register_client = {&SessionManager::name, manager};
        callbacks->interact_request = {[](SmsConn who, SmPointer, int) { SmsInteract(who); },
                                       manager};
        callbacks->interact_done = {[](SmsConn, SmPointer, int) {}, manager};
        callbacks->save_yourself_request = {[](SmsConn, SmPointer, int, int, int, int, int) {},
                                            manager};
        callbacks->save_yourself_phase2_request = {
            [](SmsConn who, SmPointer) { SmsSaveYourselfPhase2(who); }, manager};
        callbacks->save_yourself_done = {&SessionManager::keeps, manager};
        callbacks->close_connection = {&SessionManager::signOff, manager};
        callbacks->set_properties = {[](SmsConn, SmPointer, int count, SmProp** properties) {
                                         for (int i = 0; i < count; ++i)
                                             SmFreeProperty(properties[i]);
                                         std::free(properties);
                                     },
                                     manager};
        callbacks->delete_properties = {[](SmsConn, SmPointer, int count, char** names) {
                                            for (int i = 0; i < count; ++i)
                                                std::free(names[i]);
                                            std::free(names);
                                        },
                                        manager};
        callbacks->get_properties = {
            [](SmsConn who, SmPointer) { SmsReturnProperties(who, 0, nullptr); }, manager};
        static_cast<SessionManager*>(manager)->m_signedOn.push_back(program);
        return 1;
    }

    static int name(SmsConn program, SmPointer manager, char* former) {
        if (former != nullptr) {
            std::free(former);
            return 0; // nobody is known from an earlier session
        }
        char* id = SmsGenerateClientID(program);
        SmsRegisterClientReply(program, id);
        std::free(id);
        ++static_cast<SessionManager*>(manager)->m_programs;
        return 1;
    }

    static void keeps(SmsConn program, SmPointer manager, int) {
        static_cast<SessionManager*>(manager)->m_kept = true;
        SmsSaveComplete(program);
    }

    static void signOff(SmsConn program, SmPointer manager, int count, char** reasons) {
        SmFreeReasons(count, reasons);
        auto& self = *static_cast<SessionManager*>(manager);
        IceConn connection = SmsGetIceConnection(program);
        self.forget(program);
        self.drop(connection);
    }

    void tell(Word word) {
        const std::scoped_lock lock(m_mutex);
        m_words.push_back(word);
    }

    /// The thread's own life: it alone uses the connections.
    void serve() {
        while (!m_ends) {
            say();
            std::vector<pollfd> waiting;
            for (int i = 0; i < m_listenerCount; ++i)
                waiting.push_back({IceGetListenConnectionNumber(m_listeners[i]), POLLIN, 0});
            const std::vector<IceConn> connections = m_connections;
            for (IceConn connection : connections)
                waiting.push_back({IceConnectionNumber(connection), POLLIN, 0});
            constexpr int Glance = 20; // milliseconds
            if (poll(waiting.data(), waiting.size(), Glance) <= 0)
                continue;
            for (int i = 0; i < m_listenerCount; ++i)
                if (waiting[static_cast<std::size_t>(i)].revents != 0)
                    accept(m_listeners[i]);
            for (std::size_t i = 0; i < connections.size(); ++i)
                if (waiting[static_cast<std::size_t>(m_listenerCount) + i].revents != 0)
                    hear(connections[i]);
        }
    }

    void say() {
        std::deque<Word> words;
        {
            const std::scoped_lock lock(m_mutex);
            words.swap(m_words);
        }
        for (const Word word : words)
            for (SmsConn program : m_signedOn)
                word(program);
    }

    void accept(IceListenObj listener) {
        IceAcceptStatus status = IceAcceptFailure;
        if (IceConn connection = IceAcceptConnection(listener, &status))
            m_connections.push_back(connection);
    }

    void hear(IceConn connection) {
        if (IceProcessMessages(connection, nullptr, nullptr) != IceProcessMessagesIOError)
            return;
        const std::vector<SmsConn> signedOn = m_signedOn;
        for (SmsConn program : signedOn)
            if (SmsGetIceConnection(program) == connection)
                forget(program);
        drop(connection);
    }

    void forget(SmsConn program) {
        std::erase(m_signedOn, program);
        SmsCleanUp(program);
        --m_programs;
    }

    void drop(IceConn connection) {
        std::erase(m_connections, connection);
        IceSetShutdownNegotiation(connection, 0);
        IceCloseConnection(connection);
    }

    QTemporaryDir m_folder;
    bool m_up = false;
    int m_listenerCount = 0;
    IceListenObj* m_listeners = nullptr;
    std::vector<IceConn> m_connections;
    std::vector<SmsConn> m_signedOn;
    std::atomic<int> m_programs = 0;
    std::atomic<bool> m_kept = false;
    std::atomic<bool> m_ends = false;
    std::mutex m_mutex;
    std::deque<Word> m_words;
    std::unique_ptr<QThread> m_thread;
};

} // namespace orvalis::test
