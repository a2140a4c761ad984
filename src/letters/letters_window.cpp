// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "letters/letters_window.h"

#include "controls/label.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "controls/tree_view.h"
#include "core/dialog_controls.h"
#include "core/program.h"
#include "core/top_most.h"
#include "core/window_keys.h"
#include "letters/template_tree.h"
#include "runtime/failure.h"
#include "skin/skin.h"
#include "widgets/gg_command.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QRadioButton>
#include <QScrollBar>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

constexpr QSize ClientSize(290, 399);
constexpr int LeafImage = 4;
constexpr int GroupImage = 9;
constexpr quint32 Black = 0;

} // namespace

frmpisma::frmpisma(Program& program)
    : Form(u"frmpisma"_s, Qt::Dialog)
    , m_program(program) {
    setWindowTitle(u"Letters Templates"_s);
    setFixedSize(ClientSize);
    setFont(dialogFont());
    makeTree();
    makeOptions();
    makePreview();
    makeButtons();
}

void frmpisma::makeTree() {
    m_TV1 = new TreeView(u"TV1"_s, this);
    m_TV1->setGeometry(8, 8, 274, 144);
    m_TV1->setAccessibleName(u"Topics"_s);
    m_TV1->setImage(LeafImage, skin::icon(u"letter"));
    m_TV1->setImage(GroupImage, skin::icon(u"letter_group"));
    connect(m_TV1, &TreeView::NodeClick, this, &frmpisma::nodeClick);
}

void frmpisma::makeOptions() {
    QGroupBox* frame = dialogFrame(*this, u"frmLet"_s, u"Templates "_s, {8, 156, 274, 42});
    auto* box = new QWidget(frame);
    box->setObjectName(u"Picture1"_s);
    box->setGeometry(8, 16, 258, 21);
    m_optLet = {dialogOption(*box, u"optLet(0)"_s, u"&Letters"_s, {6, 2, 76, 17}),
                dialogOption(*box, u"optLet(1)"_s, u"&Sentences"_s, {88, 2, 86, 17}),
                dialogOption(*box, u"optLet(2)"_s, u"&Phrases"_s, {180, 2, 76, 17})};
    m_optLet[0]->setChecked(true);
    constexpr std::array Kinds{TemplateKind::Letters, TemplateKind::Sentences,
                               TemplateKind::Phrases};
    for (std::size_t index = 0; index < Kinds.size(); ++index)
        connect(m_optLet[index], &QRadioButton::clicked, this,
                [this, kind = Kinds[index]] { optLetClick(kind); });
}

void frmpisma::makePreview() {
    m_rtp = new RichTextBox(this);
    m_rtp->setObjectName(u"rtp"_s);
    m_rtp->setGeometry(8, 206, 274, 152);
    m_rtp->setAccessibleName(u"Preview"_s);
    m_rtp->setTabChangesFocus(true);
}

void frmpisma::makeButtons() {
    GGCommand* insert =
        dialogButton(*this, u"Command1"_s, u"Insert"_s, u"insert"_s, {120, 365, 76, 26});
    GGCommand* cancel =
        dialogButton(*this, u"Command2"_s, u"Cancel"_s, u"cancel"_s, {206, 365, 76, 26});
    connect(insert, &GGCommand::Click, this, &frmpisma::insertClick);
    pressOnKey(*this, Qt::CTRL | Qt::Key_Return, *insert);
    connect(cancel, &GGCommand::Click, this, &Form::unloadRequested);
}

NotesPanel& frmpisma::notes() const {
    return m_program.windows.get<NotesPanel>();
}

void frmpisma::onLoad() {
    resumeNext([this] { SetTopMost(*this); }, [this] { standBesidePanel(); },
               [this] { takeFontNameOfNotes(); }, [this] { takeFontSizeOfNotes(); });
    for (const TemplateNode& node : templateTree())
        resumeNext([&] {
            m_TV1->AddNode(node.parent.toString(), TreeView::tvwChild, node.key.toString(),
                           node.caption.toString(), node.key.isEmpty() ? LeafImage : GroupImage);
        });
    m_TV1->expand(m_TV1->model()->index(0, 0));
}

void frmpisma::standBesidePanel() {
    NotesPanel& panel = notes();
    const QRect label = panel.lblNot().geometry();
    const QPoint corner = panel.form().pos();
    standAt({corner.x() + panel.form().width() - width(), corner.y() + label.y() + label.height()});
}

void frmpisma::takeFontNameOfNotes() {
    if (const auto name = notes().rt1().SelFontName())
        m_rtp->SetSelFontName(*name);
}

void frmpisma::takeFontSizeOfNotes() {
    if (const auto size = notes().rt1().SelFontSize())
        m_rtp->SetSelFontSize(*size);
}

void frmpisma::beginPreview() {
    takeFontNameOfNotes();
    takeFontSizeOfNotes();
    m_rtp->SetText({});
}

void frmpisma::nodeClick() {
    beginPreview();
    m_optLet[0]->setChecked(true);
    ShowLetter();
}

void frmpisma::optLetClick(TemplateKind kind) {
    beginPreview();
    switch (kind) {
    case TemplateKind::Letters:
        ShowLetter();
        break;
    case TemplateKind::Sentences:
        ShowSentences();
        break;
    case TemplateKind::Phrases:
        ShowPhrases();
        break;
    }
}

void frmpisma::ShowLetter() {
    showText(TemplateKind::Letters);
}

void frmpisma::ShowSentences() {
    showText(TemplateKind::Sentences);
}

void frmpisma::ShowPhrases() {
    showText(TemplateKind::Phrases);
}

void frmpisma::showText(TemplateKind kind) {
    const auto caption = m_TV1->selectedCaption();
    if (!caption)
        return;
    if (const auto text = templateText(*caption, kind)) {
        if (isWrittenInPieces(*caption, kind))
            writeInPieces(*text);
        else
            m_rtp->SetText(*text);
    }
    setWindowTitle(*caption);
}

void frmpisma::writeInPieces(const QString& text) {
    m_rtp->SetText({});
    m_rtp->SetSelAlignment(RichTextBox::rtfLeft);
    const QStringList pieces = templatePieces(text);
    for (const QString& piece : pieces) {
        m_rtp->SetSelColor(Black);
        m_rtp->SetSelText(piece);
    }
    m_rtp->verticalScrollBar()->setValue(0);
}

void frmpisma::insertClick() {
    if (m_rtp->SelText().isEmpty())
        m_program.boxes().MsgBox(u"Select text you want to insert."_s, MsgFlags::InformationIcon);
    else
        notes().rt1().SetSelRTF(m_rtp->SelRTF());
}

void frmpisma::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        emit unloadRequested();
    else
        Form::keyPressEvent(event);
}

} // namespace orvalis
