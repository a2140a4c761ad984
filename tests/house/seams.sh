#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# What the program asks of the world outside passes through one home each; anywhere else a test could
# not answer it.
set -euo pipefail
cd "$1/src"

failed=0
only_in() { # pattern, homes as an extended regular expression of paths
  local hits
  hits=$(grep -rnE --include='*.h' --include='*.cpp' "$1" -- . | grep -vE "^\./($2)" || true)
  if [ -n "$hits" ]; then
    printf 'only in %s:\n%s\n' "$2" "$hits"
    failed=1
  fi
}

only_in '::currentDateTime|::currentMSecs|QDate::currentDate|QTime::currentTime|system_clock::now' 'runtime/clock\.cpp'
only_in '#include <QMessageBox>|QMessageBox::' 'controls/msg_box'
only_in '#include <Q(File|Font|Color|Print)Dialog>|Q(File|Font|Color|Print)Dialog::' 'controls/(font_dialog|qt_dialogs)'
only_in '#include <Q(DesktopServices|Process)>' 'platform/'
only_in '#include <QSystemTrayIcon>' 'platform/freedesktop/'
only_in '#include <Q(SoundEffect|MediaPlayer|AudioOutput|AudioSink)>' 'platform/'
only_in '#include <QPrinter>' 'platform/printer\.'
only_in '#include <QSettings>' 'nowhere'
only_in '\bsystem\(|\bpopen\(' 'nowhere'

# What is kept and written of a file does not depend on how one is read.
only_in '#include "rtf/reading/' 'rtf/(reading/|reader\.)'
only_in '#include "rtf/writing/' 'rtf/(reading/|writing/|writer\.)'

# One system's windows, bus and tools stand in that part of src/platform which CMake takes for it, and are
# reached through platform.h alone.
only_in '\bxcb_|\bXCB_|<(xcb|X11)/|[nN]ativeInterface|"_NET_' 'platform/x11/'
only_in '\bwl_|\bWL_|<wayland|WAYLAND_DISPLAY' 'platform/(wayland|freedesktop)/'
only_in '\bQDBus|\bDBUS_|<dbus/' 'platform/dbus/'
only_in 'u?"(xdg-|XDG_|autostart|DISPLAY"|xcb"|wayland)' 'platform/(xdg|dbus|x11|wayland|freedesktop)/'
only_in '\bXEmbed|\bStatusNotifier|QSystemTrayIconSys' 'platform/(x11|dbus|freedesktop)/'
only_in '#include "platform/(x11|wayland|dbus|xdg|freedesktop)/' 'platform/(x11|wayland|dbus|xdg|freedesktop)/'
for part in x11 wayland dbus xdg; do
  if grep -rnE '#include "platform/(x11|wayland|dbus|xdg|freedesktop)/' "platform/$part" | grep -v "\"platform/$part/"; then
    echo "platform/$part knows no other part"
    failed=1
  fi
done
exit $failed
