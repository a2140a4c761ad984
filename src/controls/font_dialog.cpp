// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/font_dialog.h"

#include "runtime/colour.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace orvalis {

namespace {

constexpr qreal SmallestSize = 1;
constexpr qreal LargestSize = 1638;

QString sizeText(qreal points) {
    return QString::number(points, 'g', 5);
}

QCheckBox* check(const QString& caption, const QString& name, QWidget* parent) {
    auto* box = new QCheckBox(caption, parent);
    box->setObjectName(name);
    return box;
}

} // namespace

FontDialog::FontDialog(const FontChoice& present, ColourChooser chooseColour, QWidget* parent)
    : QDialog(parent)
    , m_given(present)
    , m_chooseColour(std::move(chooseColour)) {
    setObjectName(QStringLiteral("FontDialog"));
    setWindowTitle(tr("Font"));
    buildPages();
    show(present);
}

FontChoice FontDialog::choice() const {
    bool readable = false;
    qreal size = m_size->currentText().toDouble(&readable);
    if (!readable || size < SmallestSize || size > LargestSize)
        size = m_given.size;
    const QString family = m_family->text().trimmed();
    return {.italic = m_italic->isChecked(),
            .bold = m_bold->isChecked(),
            .name = family.isEmpty() ? m_given.name : family,
            .size = size,
            .strikethrough = m_strikethrough->isChecked(),
            .underline = m_underline->isChecked(),
            .colour = m_colour};
}

void FontDialog::buildPages() {
    m_family = new QLineEdit(this);
    m_family->setObjectName(QStringLiteral("family"));
    m_families = new QListWidget(this);
    m_families->setObjectName(QStringLiteral("families"));
    m_families->addItems(QFontDatabase::families());
    auto* familyLabel = new QLabel(tr("&Font:"), this);
    familyLabel->setBuddy(m_family);

    m_size = new QComboBox(this);
    m_size->setObjectName(QStringLiteral("size"));
    m_size->setEditable(true);
    m_size->setCompleter(nullptr);
    m_size->setInsertPolicy(QComboBox::NoInsert);
    for (const int size : {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72})
        m_size->addItem(QString::number(size));
    auto* sizeLabel = new QLabel(tr("&Size:"), this);
    sizeLabel->setBuddy(m_size);

    auto* style = new QGroupBox(tr("Style"), this);
    m_bold = check(tr("&Bold"), QStringLiteral("bold"), style);
    m_italic = check(tr("&Italic"), QStringLiteral("italic"), style);
    auto* styleLayout = new QVBoxLayout(style);
    styleLayout->addWidget(m_bold);
    styleLayout->addWidget(m_italic);

    auto* effects = new QGroupBox(tr("Effects"), this);
    m_strikethrough = check(tr("Stri&keout"), QStringLiteral("strikethrough"), effects);
    m_underline = check(tr("&Underline"), QStringLiteral("underline"), effects);
    m_colourButton = new QPushButton(tr("&Color..."), effects);
    m_colourButton->setObjectName(QStringLiteral("colour"));
    auto* effectsLayout = new QVBoxLayout(effects);
    effectsLayout->addWidget(m_strikethrough);
    effectsLayout->addWidget(m_underline);
    effectsLayout->addWidget(m_colourButton);

    m_preview = new QLabel(tr("AaBbYyZz 1234"), this);
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_preview->setBackgroundRole(QPalette::Base);
    m_preview->setAutoFillBackground(true);
    m_preview->setFixedHeight(72);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* right = new QVBoxLayout;
    right->addWidget(sizeLabel);
    right->addWidget(m_size);
    right->addWidget(style);
    right->addWidget(effects);
    right->addStretch();
    auto* layout = new QGridLayout(this);
    layout->addWidget(familyLabel, 0, 0);
    layout->addWidget(m_family, 1, 0);
    layout->addWidget(m_families, 2, 0);
    layout->addLayout(right, 0, 1, 3, 1);
    layout->addWidget(m_preview, 3, 0, 1, 2);
    layout->addWidget(buttons, 4, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    resize(sizeHint().expandedTo(QSize(420, 380)));

    connect(m_family, &QLineEdit::textEdited, this, &FontDialog::familyTyped);
    connect(m_families, &QListWidget::currentTextChanged, this, [this](const QString& family) {
        m_family->setText(family);
        updatePreview();
    });
    connect(m_size, &QComboBox::currentTextChanged, this, &FontDialog::updatePreview);
    for (QCheckBox* box : {m_bold, m_italic, m_strikethrough, m_underline})
        connect(box, &QCheckBox::toggled, this, &FontDialog::updatePreview);
    connect(m_colourButton, &QPushButton::clicked, this, &FontDialog::pickColour);
}

void FontDialog::show(const FontChoice& choice) {
    m_family->setText(choice.name);
    familyTyped(choice.name);
    m_size->setCurrentText(sizeText(choice.size));
    m_bold->setChecked(choice.bold);
    m_italic->setChecked(choice.italic);
    m_strikethrough->setChecked(choice.strikethrough);
    m_underline->setChecked(choice.underline);
    m_colour = choice.colour;
    updatePreview();
}

void FontDialog::updatePreview() {
    const FontChoice now = choice();
    QFont font(now.name);
    // A very large choice is shown as large as the line can hold.
    font.setPointSizeF(std::min(now.size, qreal(36)));
    font.setBold(now.bold);
    font.setItalic(now.italic);
    font.setStrikeOut(now.strikethrough);
    font.setUnderline(now.underline);
    m_preview->setFont(font);
    const QColor colour = toQColor(now.colour);
    QPalette shown = m_preview->palette();
    shown.setColor(QPalette::WindowText, colour);
    m_preview->setPalette(shown);
    QPixmap swatch(16, 16);
    swatch.fill(colour);
    m_colourButton->setIcon(swatch);
}

void FontDialog::pickColour() {
    if (const auto colour = m_chooseColour(m_colour)) {
        m_colour = *colour;
        updatePreview();
    }
}

void FontDialog::familyTyped(const QString& text) {
    const auto found = m_families->findItems(text, Qt::MatchFixedString);
    const QSignalBlocker quiet(m_families);
    m_families->setCurrentItem(found.isEmpty() ? nullptr : found.constFirst());
    if (!found.isEmpty())
        m_families->scrollToItem(found.constFirst());
    updatePreview();
}

} // namespace orvalis
