// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/edit_menu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>

namespace orvalis {

using namespace Qt::StringLiterals;

void popUpEditMenu(QWidget& box, const QPoint& globalPlace, const EditCommands& commands) {
    auto* menu = new QMenu(&box);
    menu->setObjectName(u"editMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& name, const QString& text,
                         const EditCommands::Entry& entry) {
        QAction* action = menu->addAction(text, &box, entry.run);
        action->setObjectName(name);
        action->setEnabled(entry.enabled);
    };
    add(u"editUndo"_s, QMenu::tr("&Undo"), commands.undo);
    menu->addSeparator();
    add(u"editCut"_s, QMenu::tr("Cu&t"), commands.cut);
    add(u"editCopy"_s, QMenu::tr("&Copy"), commands.copy);
    add(u"editPaste"_s, QMenu::tr("&Paste"), commands.paste);
    add(u"editDelete"_s, QMenu::tr("&Delete"), commands.remove);
    menu->addSeparator();
    add(u"editSelectAll"_s, QMenu::tr("Select &All"), commands.selectAll);
    menu->popup(globalPlace);
}

void giveEditMenu(QLineEdit& line) {
    line.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&line, &QWidget::customContextMenuRequested, &line, [&line](QPoint place) {
        const bool writable = !line.isReadOnly();
        const bool selected = line.hasSelectedText();
        // What is typed unseen is not to be seen elsewhere.
        const bool readable = line.echoMode() == QLineEdit::Normal;
        const bool pasteable = !QGuiApplication::clipboard()->text().isEmpty();
        popUpEditMenu(line, line.mapToGlobal(place),
                      {.undo = {writable && line.isUndoAvailable(), [&line] { line.undo(); }},
                       .cut = {writable && selected && readable, [&line] { line.cut(); }},
                       .copy = {selected && readable, [&line] { line.copy(); }},
                       .paste = {writable && pasteable, [&line] { line.paste(); }},
                       .remove = {writable && selected, [&line] { line.del(); }},
                       .selectAll = {!line.text().isEmpty(), [&line] { line.selectAll(); }}});
    });
}

} // namespace orvalis
