// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "password/save_menu.h"

#include "controls/common_dialog.h"
#include "controls/rich_text_box.h"

#include <QMenu>

#include <memory>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

void saveText(CommonDialog& dialog, const QString& filter, RichTextBox& text) {
    endSilently([&] {
        dialog.Filter = filter;
        dialog.CancelError = true;
        dialog.FileName.clear();
        dialog.ShowSave();
        text.files().SaveFile(dialog.FileName, RichTextBox::rtfText);
    });
}

} // namespace

QMenu* makeSaveMenu(QWidget* parent, Dialogs& dialogs,
                    const std::function<PasswordTexts&()>& texts) {
    auto* menu = new QMenu(parent);
    menu->setObjectName(u"mnusave"_s);
    // One dialog serves both entries.
    const auto dialog = std::make_shared<CommonDialog>(dialogs);
    const auto entry = [&](const QString& name, const QString& caption, const QString& filter,
                           RichTextBox& (PasswordTexts::*text)()) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        QObject::connect(action, &QAction::triggered, menu, [dialog, filter, texts, text] {
            saveText(*dialog, filter, (texts().*text)());
        });
    };
    entry(u"mninormal"_s, u"Save Text on the &Left"_s, u"Text (*.txt)|*.txt|"_s,
          &PasswordTexts::txtrt1);
    entry(u"mnuencrypted"_s, u"Save Text on the &Right"_s, u"Text (*.txt)|*.txt"_s,
          &PasswordTexts::txtText);
    return menu;
}

} // namespace orvalis
