// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/print_window.h"

#include "address/address_book.h"
#include "address/address_file.h"
#include "address/contact_block.h"
#include "address/contact_panel.h"
#include "controls/progress_bar.h"
#include "controls/rich_text_box.h"
#include "core/dialog_controls.h"
#include "core/program.h"
#include "core/tool_button.h"
#include "runtime/twips.h"
#include "runtime/whole_file.h"
#include "skin/skin.h"

#include <QLayout>
#include <QResizeEvent>
#include <QToolBar>
#include <QToolButton>

// The window itself and what gathers contacts on its page. Its toolbar's commands have a file of
// their own.

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int ClientWidth = 6510; // twips
constexpr int ClientHeight = 6195;
constexpr int LeastWidth = 6630; // twips, of the window with its frame
constexpr int LeastHeight = 5340;
constexpr int BesidePage = 250; // twips that the page leaves of the window
constexpr int BelowPage = 300;
constexpr QSize ButtonSize(26, 24);
constexpr QSize PictureSize(16, 16);
constexpr qint64 GrowthIsAnswered = 500; // milliseconds

constexpr quint32 HeadingRed = 255;
constexpr quint32 BlockBlack = 0;

struct ToolbarButton {
    const char16_t* key;
    const char16_t* toolTip = nullptr; ///< none: a separator
    const char16_t* picture = nullptr;
};

constexpr std::array ToolbarButtons{
    ToolbarButton{u"print", u" Print ", u"tool_print"},
    ToolbarButton{u"cpl"},
    ToolbarButton{u"open", u"Open", u"open"},
    ToolbarButton{u"save", u" Save ", u"save_small"},
    ToolbarButton{u"cvp"},
    ToolbarButton{u"add", u" Add current item", u"tool_add"},
    ToolbarButton{u"cvo"},
    ToolbarButton{u"font", u" Change font settings ", u"tool_font"},
    ToolbarButton{u"del", u" Clear selected text ", u"tool_clear"},
    ToolbarButton{u"sen"},
    ToolbarButton{u"find", u"Find", u"tool_find"},
};

/// The snapshot's new content, complete beside the old one.
/// \throws RuntimeError PathFileAccessError, whatever is in the way.
std::unique_ptr<WholeFile> openSnapshot(const AddressBook& book) {
    std::unique_ptr<WholeFile> file;
    if (!endSilently([&] {
            file =
                std::make_unique<WholeFile>(book.snapshotPath(), addressFileBytes(book.records()));
        }))
        throw RuntimeError(ErrorNumber::PathFileAccessError);
    return file;
}

} // namespace

frmPrint::frmPrint(Program& program, AddressBook& book, std::function<ContactPanel&()> panel)
    : Form(u"frmPrint"_s)
    , m_program(program)
    , m_book(book)
    , m_panel(std::move(panel))
    , CommonDialog1(program.services.dialogs)
    , m_tb1(new QToolBar(this))
    , m_rtb(new RichTextBox(this)) {
    setWindowTitle(u"Address Print"_s);
    setFont(dialogFont());
    makeToolbar();
    m_rtb->setObjectName(u"rtb"_s);
    m_rtb->setAccessibleName(u"Page"_s);
    m_rtb->setTabChangesFocus(true);
    m_rtb->setFocus();
    resize(twipsToPixels(ClientWidth), twipsToPixels(ClientHeight));
    layOut();
}

void frmPrint::makeToolbar() {
    m_tb1->setObjectName(u"tb1"_s);
    m_tb1->setMovable(false);
    m_tb1->setContextMenuPolicy(Qt::PreventContextMenu);
    m_tb1->setIconSize(PictureSize);
    for (const ToolbarButton& button : ToolbarButtons) {
        const QString key = QString::fromUtf16(button.key);
        if (button.toolTip == nullptr) {
            m_tb1->addSeparator()->setObjectName(u"tb1(%1)"_s.arg(key));
            continue;
        }
        const QString toolTip = QString::fromUtf16(button.toolTip);
        auto* made = new ToolButton(m_tb1);
        made->setObjectName(u"tb1(%1)"_s.arg(key));
        made->setAutoRaise(true);
        made->setFixedSize(ButtonSize);
        made->setIcon(skin::icon(QString::fromUtf16(button.picture)));
        made->setToolTip(toolTip);
        made->setAccessibleName(toolTip.trimmed());
        connect(made, &ToolButton::clicked, this, [this, key] { tb1_ButtonClick(key); });
        m_tb1->addWidget(made);
    }
}

void frmPrint::onLoad() {
    loadFont();
}

void frmPrint::onUnload() {
    m_program.windows.unload<FindWindow>();
}

void frmPrint::stampa() {
    insertContact(*m_rtb, m_panel().shownContact(), BoldLines::Values);
    Show();
}

void frmPrint::stampaAll() {
    ProgressBar& progress = m_panel().PB1();
    m_book.UpisiTmp();
    progress.show();
    const std::unique_ptr<WholeFile> snapshot = openSnapshot(m_book);
    {
        const RichTextBox::Batch batch(*m_rtb);
        int number = 0;
        for (const AddressRecord& contact : m_book.records()) {
            m_book.PicPath = contact.Picture;
            insertNumbered(++number, contact);
            // The product is the counters' own, and no more than 327 records fit into it.
            const Integer16 product = Integer16(number) * 100;
            progress.SetValue(static_cast<float>(product) /
                              static_cast<float>(m_book.AddressCount));
        }
    }
    if (!snapshot->replace())
        throw RuntimeError(ErrorNumber::PathFileAccessError);
    progress.hide();
    setWindowTitle(u"Print Address : Total No %1"_s.arg(int(m_book.AddressCount)));
    Show();
}

void frmPrint::insertNumbered(int number, const AddressRecord& contact) {
    m_rtb->SetSelText(u"\r\n"_s);
    m_rtb->SetSelColor(HeadingRed);
    m_rtb->SetSelText(u"---------- Item No %1 ---------\r\n"_s.arg(number));
    m_rtb->SetSelColor(BlockBlack);
    insertContact(*m_rtb, contact, BoldLines::Values);
    m_rtb->SetSelBold(false);
}

void frmPrint::resizeEvent(QResizeEvent* event) {
    Form::resizeEvent(event);
    // The window has its first size before it is shown.
    if (isVisible() && !isMinimized() && isTooSmall())
        growBack(event->spontaneous());
    layOut();
}

/// The frame is known only once the window manager has placed the window.
void frmPrint::moveEvent(QMoveEvent* event) {
    Form::moveEvent(event);
    layOut();
}

bool frmPrint::isTooSmall() const {
    const QSize whole = frameGeometry().size();
    return whole.width() < twipsToPixels(LeastWidth) || whole.height() < twipsToPixels(LeastHeight);
}

/// Where the system insists on the size that it gave, it has its way.
void frmPrint::growBack(bool byTheSystem) {
    const bool insists = byTheSystem && size() == m_grownFrom && m_sinceGrowth.isValid() &&
                         m_sinceGrowth.elapsed() < GrowthIsAnswered;
    m_grownFrom = size();
    m_sinceGrowth.start();
    const QSize frame = frameGeometry().size() - size();
    if (!insists)
        resize(QSize(twipsToPixels(LeastWidth), twipsToPixels(LeastHeight)) - frame);
}

void frmPrint::layOut() {
    if (isMinimized())
        return;
    const int toolbarHeight = m_tb1->sizeHint().height();
    m_tb1->setGeometry(0, 0, width(), toolbarHeight);
    const QSize whole = frameGeometry().size();
    const QSize page(whole.width() - twipsToPixels(BesidePage),
                     whole.height() - 2 * toolbarHeight - twipsToPixels(BelowPage));
    // What is left of the window lies on all sides alike.
    const QRect below(0, toolbarHeight, width(), height() - toolbarHeight);
    m_rtb->setGeometry(QRect(below.center() - QRect(QPoint(), page).center(), page));
}

} // namespace orvalis
