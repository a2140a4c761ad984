// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/ms_flex_grid.h"

#include "runtime/failure.h"
#include "runtime/twips.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

namespace orvalis {

namespace {

constexpr int DefaultColWidth = 960;
constexpr int CellMargin = 3;
constexpr QColor LineColor(0xB0, 0xC8, 0xA0);
constexpr QColor CurrentCellFrame(0x1F, 0x5E, 0x6B);

QString onOneLine(QString text) {
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control ||
            character.category() == QChar::Separator_Line ||
            character.category() == QChar::Separator_Paragraph)
            character = u' ';
    return text;
}

/// Paints a cell in its own colours, its text on one line, with a frame round the current cell; a
/// text that has no room shows whole in a tool tip.
class CellPainter final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const auto* view = qobject_cast<const QTableView*>(option.widget);
        painter->save();
        painter->fillRect(option.rect, index.data(Qt::BackgroundRole).value<QColor>());
        painter->setFont(option.font);
        painter->setPen(index.data(Qt::ForegroundRole).value<QColor>());
        painter->drawText(textRect(option), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                          option.fontMetrics.elidedText(shownText(index), Qt::ElideRight,
                                                        textRect(option).width()));
        drawLines(*painter, option.rect);
        if (view && view->currentIndex() == index && view->hasFocus()) {
            painter->setPen(QPen(CurrentCellFrame, 2));
            painter->drawRect(QRectF(option.rect).adjusted(1, 1, -1, -1));
        }
        painter->restore();
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        const bool cut =
            option.fontMetrics.horizontalAdvance(shownText(index)) > textRect(option).width();
        const QString whole = index.data().toString().left(LongestToolTip).toHtmlEscaped();
        QToolTip::showText(event->globalPos(),
                           cut ? QLatin1String("<p>%1</p>").arg(whole) : QString(), view,
                           option.rect);
        return true;
    }

private:
    static constexpr int LongestShownText = 1000;
    static constexpr int LongestToolTip = 2000;

    /// The lines below and beside a cell, in whole pixels of the screen and on the cell's very
    /// edge: of a line told in the window's own units some cells would show a rest of themselves,
    /// and some lines would be thicker than others.
    static void drawLines(QPainter& painter, const QRectF& cell) {
        const QTransform toScreen = painter.deviceTransform();
        const QRect pixels = onWholePixels(toScreen.mapRect(cell));
        const int thick = std::max(1, static_cast<int>(toScreen.m11()));
        const auto fill = [&painter, back = toScreen.inverted()](const QRect& line) {
            painter.fillRect(back.mapRect(QRectF(line)), LineColor);
        };
        fill({pixels.left(), pixels.bottom() + 1 - thick, pixels.width(), thick});
        fill({pixels.right() + 1 - thick, pixels.top(), thick, pixels.height()});
    }
    /// The pixels that a filled area covers: each edge at the nearest.
    static QRect onWholePixels(const QRectF& area) {
        const QPoint topLeft(qRound(area.left()), qRound(area.top()));
        return {topLeft, QPoint(qRound(area.right()) - 1, qRound(area.bottom()) - 1)};
    }
    static QString shownText(const QModelIndex& index) {
        return onOneLine(index.data().toString().left(LongestShownText));
    }
    static QRect textRect(const QStyleOptionViewItem& option) {
        return option.rect.adjusted(CellMargin, 0, -CellMargin, 0);
    }
};

bool isPrintable(const QString& text) {
    return !text.isEmpty() && std::all_of(
                                  text.cbegin(), text.cend(),
                                  [](QChar character) {
                                      return character.isPrint() || character.isSurrogate() ||
                                             character.category() == QChar::Other_Format;
                                  });
}

/// Control alone makes a command; together with Alt it is AltGr, which writes on some platforms.
bool isCommand(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return held.testFlag(Qt::MetaModifier) ||
           (held.testFlag(Qt::ControlModifier) && !held.testFlag(Qt::AltModifier));
}

} // namespace

MSFlexGrid::MSFlexGrid(QWidget* parent)
    : QTableView(parent) {
    // First of all: a header that shows is measured, in a font that nothing else asks for.
    horizontalHeader()->hide();
    verticalHeader()->hide();
    setModel(&m_grid);
    setItemDelegate(new CellPainter(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    for (QScrollBar* bar : {verticalScrollBar(), horizontalScrollBar()})
        bar->setContextMenuPolicy(Qt::PreventContextMenu);
    setHorizontalScrollMode(ScrollPerPixel);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setMinimumSectionSize(1);
        header->setSectionResizeMode(QHeaderView::Fixed);
    }
    QPalette colours = palette();
    colours.setColor(QPalette::Base, Qt::white);
    colours.setColor(QPalette::Highlight, LineColor);
    setPalette(colours);
    followFont();
    m_grid.whenCurrentMoves([this] { showCurrentCell(); });
    applyColumnWidths();
}

int MSFlexGrid::ColWidth(int col) const {
    if (col < 0 || col >= Cols())
        throw RuntimeError(ErrorNumber::InvalidRowValue);
    return col < static_cast<int>(m_colWidths.size()) ? m_colWidths[static_cast<std::size_t>(col)]
                                                      : DefaultColWidth;
}

void MSFlexGrid::setColWidth(int col, int twips) {
    if (col < 0 || col >= Cols())
        throw RuntimeError(ErrorNumber::InvalidRowValue);
    if (col >= static_cast<int>(m_colWidths.size()))
        m_colWidths.resize(static_cast<std::size_t>(col) + 1, DefaultColWidth);
    m_colWidths[static_cast<std::size_t>(col)] = std::max(twips, 0);
    applyColumnWidths();
}

void MSFlexGrid::keyboardSearch(const QString&) {}

void MSFlexGrid::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit KeyPress(QStringLiteral("\r"));
        return;
    case Qt::Key_Backspace:
        emit KeyPress(QStringLiteral("\b"));
        return;
    default:
        break;
    }
    if (isPrintable(event->text())) {
        if (isCommand(*event))
            event->ignore();
        else
            emit KeyPress(event->text());
        return;
    }
    QTableView::keyPressEvent(event);
}

void MSFlexGrid::inputMethodEvent(QInputMethodEvent* event) {
    if (isPrintable(event->commitString()))
        emit KeyPress(event->commitString());
    event->accept();
}

QVariant MSFlexGrid::inputMethodQuery(Qt::InputMethodQuery query) const {
    switch (query) {
    case Qt::ImEnabled:
        return true;
    case Qt::ImCursorRectangle:
        return visualRect(currentIndex());
    default:
        return QTableView::inputMethodQuery(query);
    }
}

void MSFlexGrid::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled);
}

void MSFlexGrid::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    showCurrentCell();
}

void MSFlexGrid::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        followFont();
}

void MSFlexGrid::updateGeometries() {
    QTableView::updateGeometries();
    applyColumnWidths();
}

void MSFlexGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    setAttribute(Qt::WA_InputMethodEnabled);
    // A removal moves the view's own current cell before the grid's rule has its say, and a reset
    // takes it away: the grid's current cell is followed then and not the other way round.
    if (m_following || !current.isValid() || m_grid.isChanging())
        return;
    const QScopedValueRollback following(m_following, true);
    m_grid.setRow(current.row());
    m_grid.setCol(current.column());
}

void MSFlexGrid::showCurrentCell() {
    // A hidden grid catches up when it is shown, so that moving over its rows costs nothing.
    if (m_following || !isVisible() || m_grid.isChanging())
        return;
    const QScopedValueRollback following(m_following, true);
    setCurrentIndex(m_grid.index(m_grid.Row(), m_grid.Col()));
}

void MSFlexGrid::applyColumnWidths() {
    const int room = viewport()->width();
    for (int col = 0; col < Cols(); ++col) {
        int width = twipsToPixels(ColWidth(col));
        if (Cols() == 1 && isVisible())
            width = std::min(width, room);
        if (columnWidth(col) != width)
            setColumnWidth(col, width);
    }
}

void MSFlexGrid::followFont() {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 2 * CellMargin);
}

} // namespace orvalis
