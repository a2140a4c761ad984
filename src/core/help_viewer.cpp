// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/help_viewer.h"

#include "core/help_finding_delegate.h"
#include "core/help_page_view.h"
#include "platform/chm_file.h"
#include "platform/shell.h"
#include "skin/skin.h"
#include "skin/type.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

constexpr QSize FirstSize(820, 560);
constexpr int SideWidth = 230;
constexpr int AddressRole = Qt::UserRole;
static_assert(AddressRole != HelpFindingDelegate::HtmlRole);

bool isPage(const QString& file) {
    return file.endsWith(u".html"_s) || file.endsWith(u".htm"_s);
}

QString titleOf(const QString& html) {
    static const QRegularExpression title(u"<title>(.*?)</title>"_s,
                                          QRegularExpression::CaseInsensitiveOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    return QTextDocumentFragment::fromHtml(title.match(html).captured(1))
        .toPlainText()
        .simplified();
}

QToolButton* toolButton(QWidget* parent, const QString& name, const QString& picture,
                        const QString& caption) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setIcon(skin::icon(picture));
    button->setText(caption);
    button->setFont(skin::font(skin::points::Body));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    return button;
}

} // namespace

HelpViewer::HelpViewer(Shell& shell)
    : m_shell(shell) {
    setObjectName(u"helpViewer"_s);
    setWindowTitle(tr("Orvalis Help"));
    setWindowIcon(skin::icon(u"orvalis"));
    // The program goes on without its help.
    setAttribute(Qt::WA_QuitOnClose, false);

    auto* splitter = new QSplitter(this);
    splitter->addWidget(makeSide());
    splitter->addWidget(makePageSide());
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({SideWidth, FirstSize.width() - SideWidth});

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(splitter);
    resize(FirstSize);

    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this,
            &QWidget::close);
}

HelpViewer::~HelpViewer() = default;

QWidget* HelpViewer::makeSide() {
    auto* side = new QWidget(this);
    side->setFont(skin::font(skin::points::Body));
    m_search = new QLineEdit(side);
    m_search->setObjectName(u"helpSearch"_s);
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search the help"));
    m_search->setClearButtonEnabled(true);

    m_contents = new QTreeWidget(side);
    m_contents->setObjectName(u"helpContents"_s);
    m_contents->setAccessibleName(tr("Contents"));
    m_contents->setHeaderHidden(true);
    m_contents->setFrameShape(QFrame::NoFrame);

    m_findings = new QListWidget(side);
    m_findings->setObjectName(u"helpFindings"_s);
    m_findings->setAccessibleName(tr("Pages found"));
    m_findings->setItemDelegate(new HelpFindingDelegate(m_findings));
    // The findings are as wide as the list, also after the list was made wider.
    m_findings->setResizeMode(QListView::Adjust);
    m_findings->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_findings->setFrameShape(QFrame::NoFrame);

    auto* none = new QLabel(tr("No page has all these words."), side);
    none->setObjectName(u"helpNothingFound"_s);
    none->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    none->setWordWrap(true);
    none->setMargin(12);

    m_side = new QStackedWidget(side);
    m_side->addWidget(m_contents);
    m_side->addWidget(m_findings);
    m_side->addWidget(none);

    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 4, 0);
    layout->addWidget(m_search);
    layout->addWidget(m_side);

    connect(m_search, &QLineEdit::textChanged, this, &HelpViewer::search);
    const auto showTopic = [this](const QTreeWidgetItem* item) {
        const QString page = item == nullptr ? QString() : item->data(0, AddressRole).toString();
        if (!page.isEmpty() && helpAddress(page) != m_page->source())
            m_page->go(page);
    };
    connect(m_contents, &QTreeWidget::currentItemChanged, this, showTopic);
    connect(m_contents, &QTreeWidget::itemClicked, this, showTopic);
    const auto showFinding = [this](const QListWidgetItem* item) {
        if (item == nullptr)
            return;
        m_page->go(item->data(AddressRole).toString());
        m_page->goToFirstMark();
    };
    connect(m_findings, &QListWidget::currentItemChanged, this, showFinding);
    connect(m_findings, &QListWidget::itemClicked, this, showFinding);
    return side;
}

QWidget* HelpViewer::makePageSide() {
    auto* side = new QWidget(this);
    m_page = new HelpPageView(side);
    auto* back = toolButton(side, u"helpBack"_s, u"back"_s, tr("Back"));
    auto* forward = toolButton(side, u"helpForward"_s, u"next"_s, tr("Forward"));
    auto* home = toolButton(side, u"helpHome"_s, u"orvalis"_s, tr("First page"));
    back->setShortcut(QKeySequence::Back);
    forward->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);

    auto* buttons = new QHBoxLayout;
    for (QToolButton* button : {back, forward, home})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->addLayout(buttons);
    layout->addWidget(m_page);

    connect(back, &QToolButton::clicked, m_page, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, m_page, &QTextBrowser::forward);
    connect(home, &QToolButton::clicked, this, [this] {
        if (m_file)
            m_page->go(m_file->defaultTopic());
    });
    connect(m_page, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(m_page, &QTextBrowser::anchorClicked, this, &HelpViewer::follow);
    connect(m_page, &QTextBrowser::sourceChanged, this, &HelpViewer::markPageInContents);
    return side;
}

void HelpViewer::open(const QString& path) {
    m_page->setFile(nullptr);
    m_file = ChmFile::open(path);
    m_page->setFile(m_file.get());
    m_search->clear();
    m_pages.clear();
    fillContents();
    m_search->setEnabled(m_file != nullptr);
    m_page->clearHistory();
    m_page->go(m_file ? m_file->defaultTopic() : QString());
    m_page->reload();
}

void HelpViewer::fillContents() {
    m_contents->clear();
    QList<QTreeWidgetItem*> above;
    const QList<ChmTopic> topics = m_file ? m_file->contents() : QList<ChmTopic>();
    for (const ChmTopic& topic : topics) {
        above.resize(std::min<qsizetype>(above.size(), topic.depth));
        auto* item = above.isEmpty() ? new QTreeWidgetItem(m_contents)
                                     : new QTreeWidgetItem(above.constLast());
        item->setText(0, topic.name);
        item->setData(0, AddressRole, topic.page);
        above.append(item);
    }
    m_contents->expandAll();
}

void HelpViewer::readPages() {
    const QStringList& files = m_file->files();
    for (const QString& file : files) {
        if (!isPage(file))
            continue;
        const QString html = QString::fromUtf8(m_file->read(file));
        const QString title = titleOf(html);
        // A picture counts as a character that nobody reads.
        m_pages.append({file, title.isEmpty() ? file : title,
                        QTextDocumentFragment::fromHtml(html).toPlainText().remove(
                            QChar::ObjectReplacementCharacter)});
    }
}

void HelpViewer::search(const QString& query) {
    const auto words = m_file ? helpWords(query) : QList<QRegularExpression>();
    m_page->setMarkedWords(words);
    if (words.isEmpty()) {
        m_side->setCurrentIndex(0);
        return;
    }
    if (m_pages.isEmpty())
        readPages();
    const QSignalBlocker quiet(m_findings);
    m_findings->clear();
    const QList<HelpFinding> findings = searchHelp(m_pages, query);
    for (const HelpFinding& finding : findings) {
        auto* item = new QListWidgetItem(finding.title + u'\n' + finding.excerpt, m_findings);
        item->setData(AddressRole, finding.address);
        item->setData(HelpFindingDelegate::HtmlRole,
                      u"<b>%1</b><br>%2"_s.arg(markedHtml(finding.title, words),
                                               markedHtml(finding.excerpt, words)));
    }
    m_side->setCurrentIndex(findings.isEmpty() ? 2 : 1);
}

void HelpViewer::follow(const QUrl& link) {
    const QUrl address = m_page->source().resolved(link);
    if (isHelpAddress(address))
        m_page->setSource(address, QTextDocument::HtmlResource);
    else
        m_shell.open(address.toString());
}

void HelpViewer::markPageInContents(const QUrl& page) {
    const QSignalBlocker quiet(m_contents);
    QTreeWidgetItem* samePage = nullptr;
    for (QTreeWidgetItemIterator place(m_contents); *place != nullptr; ++place) {
        const QUrl address = helpAddress((*place)->data(0, AddressRole).toString());
        if (address == page) {
            m_contents->setCurrentItem(*place);
            return;
        }
        if (samePage == nullptr && address.path() == page.path())
            samePage = *place;
    }
    m_contents->setCurrentItem(samePage);
}

HelpWindow::HelpWindow(Shell& shell)
    : m_shell(shell) {}

HelpWindow::~HelpWindow() = default;

WId HelpWindow::HtmlHelpA(WId /*owner*/, const QString& path, int /*command*/, quint32 /*data*/) {
    if (!m_viewer) {
        m_viewer = std::make_unique<HelpViewer>(m_shell);
        const QRect room = m_viewer->screen()->availableGeometry();
        m_viewer->resize(m_viewer->size().boundedTo(room.size()));
        m_viewer->move(room.center() - m_viewer->rect().center());
    }
    m_viewer->open(path);
    m_viewer->show();
    m_viewer->raise();
    m_viewer->activateWindow();
    return m_viewer->winId();
}

} // namespace orvalis
