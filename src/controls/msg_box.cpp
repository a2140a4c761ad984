// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/msg_box.h"

#include "controls/form.h"
#include "controls/ordinary_pointer.h"
#include "runtime/program_end.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>

namespace orvalis {

namespace {

constexpr int ButtonsMask = 0x0f;
constexpr int IconMask = 0x70;
constexpr int RoomForFeet = 2; // pixels

QMessageBox::StandardButtons buttonsOf(int flags) {
    switch (flags & ButtonsMask) {
    case MsgFlags::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgFlags::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(int flags) {
    switch (flags & IconMask) {
    case MsgFlags::StopIcon:
        return QMessageBox::Critical;
    case MsgFlags::QuestionIcon:
        return QMessageBox::Question;
    case MsgFlags::ExclamationIcon:
        return QMessageBox::Warning;
    case MsgFlags::InformationIcon:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

/// A Yes-No question takes no third way out: Qt would read Escape and the close button as No.
class Box final : public QMessageBox {
public:
    Box(int flags, QWidget* parent)
        : QMessageBox(parent)
        , m_mustBeAnswered((flags & ButtonsMask) == MsgFlags::YesNo) {}

protected:
    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        // Qt reckons with a size that the box had before it was laid out, and places it higher.
        if (const QWidget* owner = parentWidget()) {
            const QRect room = owner->screen()->availableGeometry();
            const QPoint frame = geometry().topLeft() - pos();
            move(inside(owner->geometry().center() - rect().center() - frame, room));
        }
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (m_mustBeAnswered && event->matches(QKeySequence::Cancel)) {
            event->accept();
            return;
        }
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (m_mustBeAnswered) {
            event->ignore();
            return;
        }
        QMessageBox::closeEvent(event);
    }

private:
    QPoint inside(QPoint place, const QRect& room) const {
        return {std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - width())),
                std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() - height()))};
    }

    bool m_mustBeAnswered;
};

/// What a title bar holds beside its title: an icon at one end, up to three buttons at the other,
/// and the room between. In logical pixels.
constexpr int TitleBarParts = 130;

/// A box is as wide as its words, which may be few; no window manager makes a window wider than its
/// program asks for, and a title without room is cut off.
void makeRoomForTitle(QMessageBox& box) {
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    font.setBold(true);
    const int width = QFontMetrics(font).horizontalAdvance(box.windowTitle()) + TitleBarParts;
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

/// A line of words stands beside the middle of the picture, or where the buttons' row begins.
void alignText(QMessageBox& box) {
    auto* words = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (words == nullptr)
        return;
    words->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // The picture reaches into the row below, so the words' own is to be as high as it.
    if (const auto* picture = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")))
        words->setMinimumHeight(picture->sizeHint().height());
    if (box.icon() == QMessageBox::NoIcon)
        words->setContentsMargins(0, 0, 0, 0);
    // At a scale between whole numbers the row is rounded down, over the feet of the letters.
    words->setMinimumHeight(
        std::max(words->minimumHeight(), words->sizeHint().height() + RoomForFeet));
}

Answer answerOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

} // namespace

Answer QtMessageBoxes::MsgBox(const QString& text, int flags, const QString& title) {
    QWidget* owner = Form::lastActive();
    Box box(flags, owner != nullptr && owner->isVisible() ? owner : nullptr);
    box.setObjectName(QStringLiteral("MsgBox"));
    box.setWindowTitle(title.isEmpty() ? QStringLiteral("Orvalis") : title);
    // Texts may quote a path or a record, which must not be read as markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setIcon(iconOf(flags));
    box.setStandardButtons(buttonsOf(flags));
    const auto buttons = box.buttons();
    const int defaultButton = (flags & MsgFlags::SecondButtonIsDefault) != 0 ? 1 : 0;
    if (buttonsOf(flags).testFlag(QMessageBox::Yes))
        box.setDefaultButton(defaultButton == 0 ? QMessageBox::Yes : QMessageBox::No);
    else
        box.setDefaultButton(defaultButton == 0 || buttons.size() == 1 ? QMessageBox::Ok
                                                                       : QMessageBox::Cancel);
    alignText(box);
    makeRoomForTitle(box);
    // Stickers may lie on top of everything, the question must not hide below them.
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    const OrdinaryPointer pointer;
    const int button = box.exec();
    throwIfEnded();
    return answerOf(button);
}

} // namespace orvalis
