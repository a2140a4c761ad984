// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/dialogs.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace orvalis {

/// The font dialog of the whole program: family, style, size, strikethrough, underline and colour
/// on one page, with a line of text that shows the choice. A family that is not installed stays
/// chosen until another is picked, so that looking at a font does not change it.
class FontDialog final : public QDialog {
    Q_OBJECT
public:
    using ColourChooser = std::function<std::optional<quint32>(quint32 present)>;

    FontDialog(const FontChoice& present, ColourChooser chooseColour, QWidget* parent = nullptr);

    /// What the dialog shows now. An unreadable size counts as the one that was given.
    FontChoice choice() const;

private:
    void buildPages();
    void show(const FontChoice& choice);
    void updatePreview();
    void pickColour();
    void familyTyped(const QString& text);

    FontChoice m_given;
    ColourChooser m_chooseColour;
    quint32 m_colour = 0;
    QLineEdit* m_family = nullptr;
    QListWidget* m_families = nullptr;
    QComboBox* m_size = nullptr;
    QCheckBox* m_bold = nullptr;
    QCheckBox* m_italic = nullptr;
    QCheckBox* m_strikethrough = nullptr;
    QCheckBox* m_underline = nullptr;
    QPushButton* m_colourButton = nullptr;
    QLabel* m_preview = nullptr;
};

} // namespace orvalis
