// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT

// Tells a driver outside the program what stands where: it listens on a local socket and answers
// questions about windows, controls and menu entries by their objectName. It only looks; whatever
// is done to the program is done through the display.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGenericPlugin>
#include <QGroupBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>
#include <QSocketNotifier>
#include <QTextEdit>
#include <QTimer>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QJsonObject rectangle(const QRect& logical, const QWidget& in) {
    // What the display counts in, device pixels, from the corner of the server's window: where that
    // one stands the server knows best.
    const qreal ratio = in.devicePixelRatioF();
    const QWidget* holder = in.internalWinId() != 0 ? &in : in.nativeParentWidget();
    const QPoint origin = holder ? in.mapTo(holder, logical.topLeft()) : logical.topLeft();
    return {{u"window"_s, static_cast<qint64>(in.effectiveWinId())},
            {u"x"_s, origin.x() * ratio},
            {u"y"_s, origin.y() * ratio},
            {u"w"_s, logical.width() * ratio},
            {u"h"_s, logical.height() * ratio}};
}

QString textOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* edit = qobject_cast<const QTextEdit*>(&widget))
        return edit->toPlainText();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return combo->currentText();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
        return frame->title();
    if (const auto* box = qobject_cast<const QMessageBox*>(&widget))
        return box->text();
    return widget.windowTitle();
}

QJsonObject describe(const QWidget& widget) {
    QJsonObject answer = rectangle(widget.rect(), widget);
    answer[u"found"_s] = true;
    answer[u"name"_s] = widget.objectName();
    answer[u"class"_s] = QString::fromLatin1(widget.metaObject()->className());
    answer[u"text"_s] = textOf(widget);
    answer[u"title"_s] = widget.windowTitle();
    answer[u"visible"_s] = widget.isVisible();
    answer[u"enabled"_s] = widget.isEnabled();
    answer[u"focus"_s] = widget.hasFocus();
    answer[u"active"_s] = widget.isActiveWindow();
    answer[u"tip"_s] = widget.toolTip();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        answer[u"checked"_s] = button->isChecked();
    if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
        QJsonArray entries;
        const auto actions = menu->actions();
        for (const QAction* action : actions)
            if (action->isVisible())
                entries << action->text();
        answer[u"entries"_s] = entries;
        if (menu->activeAction())
            answer[u"marked"_s] = menu->activeAction()->text();
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
        QJsonArray rows;
        const auto* model = view->model();
        for (int row = 0; model && row < qMin(model->rowCount(), 1000); ++row)
            rows << model->index(row, 0).data().toString();
        answer[u"rows"_s] = rows;
    }
    return answer;
}

/// A name is "control" or "window/control". Of several controls of one name, one that shows wins.
QWidget* findWidget(const QString& name) {
    const QString window = name.contains(u'/') ? name.section(u'/', 0, 0) : QString();
    const QString control = name.contains(u'/') ? name.section(u'/', 1) : name;
    QWidget* hidden = nullptr;
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() != control)
            continue;
        if (!window.isEmpty() && widget->window()->objectName() != window)
            continue;
        if (widget->isVisible())
            return widget;
        hidden = widget;
    }
    return hidden;
}

QJsonObject findAction(const QString& name) {
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        auto* menu = qobject_cast<QMenu*>(widget);
        if (!menu || !menu->isVisible())
            continue;
        const auto actions = menu->actions();
        for (QAction* action : actions) {
            if (action->objectName() != name && action->text() != name)
                continue;
            QJsonObject answer = rectangle(menu->actionGeometry(action), *menu);
            answer[u"found"_s] = true;
            answer[u"text"_s] = action->text();
            answer[u"visible"_s] = action->isVisible();
            answer[u"enabled"_s] = action->isEnabled();
            return answer;
        }
    }
    return {{u"found"_s, false}};
}

QJsonObject listWindows() {
    QJsonArray windows;
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (!widget->isVisible())
            continue;
        QJsonObject window = describe(*widget);
        if (auto* box = qobject_cast<QMessageBox*>(widget)) {
            QJsonArray buttons;
            const auto list = box->buttons();
            for (QAbstractButton* button : list) {
                QJsonObject entry = rectangle(button->rect(), *button);
                entry[u"text"_s] = button->text();
                buttons << entry;
            }
            window[u"buttons"_s] = buttons;
        }
        windows << window;
    }
    return {{u"found"_s, true}, {u"windows"_s, windows}};
}

QJsonObject answerTo(const QJsonObject& question) {
    const QString what = question[u"ask"_s].toString();
    const QString name = question[u"name"_s].toString();
    if (what == u"windows")
        return listWindows();
    if (what == u"action")
        return findAction(name);
    if (what == u"focus") {
        const QWidget* focused = QApplication::focusWidget();
        return focused ? describe(*focused) : QJsonObject{{u"found"_s, false}};
    }
    if (what == u"keyboard") {
        // A box that has just come up is shown before the window manager gives it the keys.
        const QWidget* box = QApplication::activeModalWidget();
        return {{u"found"_s, box == nullptr || box->isActiveWindow()}};
    }
    if (what == u"picture") {
        QScreen* screen = QGuiApplication::primaryScreen();
        return {{u"found"_s, screen && screen->grabWindow(0).save(name)}};
    }
    if (const QWidget* widget = findWidget(name))
        return describe(*widget);
    return {{u"found"_s, false}};
}

/// One driver at a time, one question a line.
class Probe : public QObject {
public:
    explicit Probe(const QByteArray& path) {
        m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.constData(), sizeof(address.sun_path) - 1);
        ::unlink(path.constData());
        if (::bind(m_listener, reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0 ||
            ::listen(m_listener, 1) != 0)
            qFatal("the probe cannot listen on %s", path.constData());
        auto* notifier = new QSocketNotifier(m_listener, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [this] { accept(); });
    }

    ~Probe() override {
        ::close(m_listener);
        if (m_peer >= 0)
            ::close(m_peer);
    }

private:
    void accept() {
        const int peer = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (peer < 0)
            return;
        hangUp();
        m_peer = peer;
        m_notifier = new QSocketNotifier(peer, QSocketNotifier::Read, this);
        connect(m_notifier, &QSocketNotifier::activated, this, [this] { read(); });
    }

    void read() {
        char buffer[4096];
        const ssize_t length = ::read(m_peer, buffer, sizeof(buffer));
        if (length <= 0) {
            hangUp();
            return;
        }
        m_pending.append(buffer, length);
        for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
            const QByteArray line = m_pending.left(end);
            m_pending.remove(0, end + 1);
            reply(QJsonDocument(answerTo(QJsonDocument::fromJson(line).object()))
                      .toJson(QJsonDocument::Compact) +
                  '\n');
        }
    }

    void reply(const QByteArray& bytes) {
        for (qsizetype sent = 0; sent < bytes.size();) {
            const ssize_t step =
                ::send(m_peer, bytes.constData() + sent, bytes.size() - sent, MSG_NOSIGNAL);
            if (step <= 0)
                return;
            sent += step;
        }
    }

    void hangUp() {
        if (m_notifier) {
            m_notifier->setEnabled(false);
            m_notifier->deleteLater();
            m_notifier = nullptr;
        }
        if (m_peer >= 0)
            ::close(m_peer);
        m_peer = -1;
        m_pending.clear();
    }

    int m_listener = -1;
    int m_peer = -1;
    QSocketNotifier* m_notifier = nullptr;
    QByteArray m_pending;
};

} // namespace

class ProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")
public:
    QObject* create(const QString&, const QString& specification) override {
        return new Probe(QFile::encodeName(specification));
    }
};

#include "probe.moc"
