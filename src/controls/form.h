// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace orvalis {

/// A window of the program with the life of a form: load when it comes into being, activate when it
/// is shown or the user comes back to it from another form, query-unload and unload when it goes.
/// The registry of windows drives load and unload; nobody deletes a form directly.
class Form : public QWidget {
    Q_OBJECT
public:
    /// \param name the window's name, also its objectName.
    explicit Form(const QString& name, Qt::WindowFlags flags = Qt::Window);
    ~Form() override;

    /// Runs the load handler, once.
    void load();
    /// Runs query-unload and unload, once, and leaves the window hidden and deaf. A form that was
    /// never loaded has nothing to give up.
    void unload();
    bool isLoaded() const { return m_life == Life::Loaded; }

    /// Shows the window, on top of the program's others and with the focus, wholly on the screen.
    /// The first place is the middle of the screen, unless takePlaceOf() said another; later the
    /// window comes up where it was. Does nothing once the form is unloaded.
    void Show();
    /// The same, but above all windows and without taking the focus or counting as an activation.
    void showWithoutFocus();
    /// The same as Show(), as a window of another one: it stays above that one alone.
    void ShowOver(Form& owner);
    void Hide();

    /// Moves the first place away from the middle of the screen. Once the window has been shown or
    /// was given another's place it changes nothing.
    void setFirstPlaceOff(const QPoint& middle) { m_offMiddle = middle; }

    /// Puts the window where another stands: both have the same centre.
    void takePlaceOf(const Form& other);

    /// Puts the window's upper left corner at a place of the desktop, in place of the middle of the
    /// screen.
    void standAt(const QPoint& corner);

    /// Of the forms on the screen the one that the user was in last, or none.
    static Form* lastActive();

signals:
    /// The window asks to be unloaded (its close command, the window manager's close).
    void unloadRequested();

protected:
    virtual void onLoad() {}
    virtual void onActivate() {}
    virtual void onQueryUnload() {}
    virtual void onUnload() {}
    /// The window manager, or Alt+F4, wants the window closed. The default asks to be unloaded.
    virtual void onCloseRequested() { emit unloadRequested(); }

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    enum class Life { New, Loaded, Unloaded };

    void becomeActive();
    void moveOntoScreen();

    Life m_life = Life::New;
    bool m_placed = false;
    QPoint m_offMiddle;
    bool m_quietShow = false;
};

} // namespace orvalis
