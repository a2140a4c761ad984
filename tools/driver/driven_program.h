// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "driver/stage.h"

#include <QJsonObject>
#include <QPoint>
#include <QRect>
#include <QTemporaryDir>

#include <functional>

namespace orvalis::driver {

/// A control as the probe describes it. Geometry is in device pixels of the display.
struct Control {
    bool found = false;
    bool visible = false;
    bool enabled = false;
    bool checked = false;
    bool focused = false; ///< it has the keyboard
    bool active = false;  ///< its window is the one that keys go to
    quint32 window = 0;   ///< the display's number of the window that it lies in
    QRect rect;
    QString name;
    QString className;
    QString text;
    QString title;
    QString tip;
    QStringList rows;    ///< of a list
    QStringList entries; ///< of a menu
    QString marked;      ///< of a menu the entry that Enter would choose
    QStringList buttons; ///< of a message box
    QList<QRect> buttonRects;
};

/// The built program on a stage, with its own folder of data and settings, its own clock, and a
/// person in front of it who looks, points and types.
class DrivenProgram {
public:
    /// \param executable the built program; it is copied with its companions into a fresh folder.
    DrivenProgram(Stage& stage, const QString& executable);
    /// Another start of the same executable, over the same data and settings.
    DrivenProgram(const DrivenProgram& first, int number);
    ~DrivenProgram();
    DrivenProgram(const DrivenProgram&) = delete;
    DrivenProgram& operator=(const DrivenProgram&) = delete;

    /// The folder of the executable, where the data files come to lie.
    QString folder() const { return m_folder->path() + QStringLiteral("/app"); }
    QString configFolder() const { return m_folder->path() + QStringLiteral("/config"); }
    QString binFolder() const { return m_folder->path() + QStringLiteral("/bin"); }
    QByteArray fileBytes(const QString& name) const;

    /// Further variables for the program; call before start.
    void setVariable(const QString& name, const QString& value);
    /// Moves the program's clock to the moment given, from where it runs on. Before start or during
    /// the run.
    void setClock(const QDateTime& moment);

    /// Launches the program and waits until it can be asked. \returns false also where something
    /// that belongs beside it was not there to be copied.
    bool start() { return launch() && connectProbe(); }
    bool launch();
    bool connectProbe();
    bool isRunning();
    void kill();
    /// Asks it to end, as the system does at its own end.
    void terminate() { m_process.terminate(); }
    bool waitForEnd(int milliseconds = 10000);
    QByteArray output();

    // Looking.
    Control control(const QString& name);
    Control menuEntry(const QString& nameOrText);
    /// The control that has the keyboard.
    Control focus();
    QList<Control> windows();
    /// The topmost message box, if one shows.
    Control messageBox();
    bool waitVisible(const QString& name, int milliseconds = 10000);
    /// Waits until the control shows, is enabled and stays where it is: until then the window
    /// manager may still be placing its window, and nobody presses on what moves.
    Control waitAtRest(const QString& name);
    bool waitText(const QString& name, const QString& text, int milliseconds = 10000);
    bool takePicture(const QString& path);

    // Doing. Each returns false when the thing named is not there to be acted on.
    bool point(const QString& name);
    bool click(const QString& name, int button = 1);
    bool doubleClick(const QString& name);
    bool clickAt(QPoint place, int button = 1);
    bool choose(const QString& menuEntryNameOrText);
    bool answer(const QString& buttonText);
    bool drag(const QString& name, QPoint by);
    void type(const QString& text);
    void key(const QString& keys);
    /// Presses Tab until the control has the keyboard. \returns whether it came to have it.
    bool tabTo(const QString& name);
    /// Walks down an open menu by the arrow key and chooses an entry by Enter. \returns whether the
    /// entry came to be marked.
    bool chooseByKeys(const QString& menu, const QString& entryText);
    /// Asks the window manager to close the window, as a task bar does.
    bool closeThroughWindowManager(const QString& window);
    /// Takes hold of what stands at the beginning of a text and pulls it along, without letting go.
    bool beginDrag(const QString& name);
    void letGo();

private:
    void appendSanitizerOption(const QString& option);
    QJsonObject ask(const QString& what, const QString& name = {});
    Control placed(Control control) const;
    Control waitAtRest(const std::function<Control()>& look);
    /// Waits until keys go to the box that is up, if one is: a person sees where they type.
    void waitForKeyboard();
    bool xdotool(const QStringList& arguments);

    Stage& m_stage;
    std::shared_ptr<QTemporaryDir> m_folder;
    QString m_probe;
    QProcessEnvironment m_environment;
    QProcess m_process;
    int m_socket = -1;
    QByteArray m_received;
    bool m_complete = true;
    bool m_clockMoved = false;
};

} // namespace orvalis::driver
