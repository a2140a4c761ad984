// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_book.h"
#include "address/address_file.h"
#include "address/address_panel.h"
#include "controls/combo_box.h"
#include "controls/progress_bar.h"
#include "controls/rich_text_box.h"
#include "support/plain_windows.h"
#include "support/test_main.h"
#include "support/window_ground.h"

#include <QAbstractItemView>
#include <QGroupBox>
#include <QLineEdit>

namespace orvalis::test {

/// The options as far as the address book reads them.
class SortOptions final : public PlainWindow<OptionsWindow> {
public:
    explicit SortOptions(const bool& byFirst)
        : PlainWindow(QStringLiteral("frmOptions"))
        , m_byFirst(byFirst) {}
    bool builtInPlayer() const override { return false; }
    bool sortByFirst() const override { return m_byFirst; }

private:
    const bool& m_byFirst;
};

/// A contact of whom the first and the second name are known.
inline AddressRecord named(const QString& first, const QString& second) {
    AddressRecord contact;
    contact.First = first;
    contact.Second = second;
    return contact;
}

/// An Address panel in a program over doubles. It is made by the first panel().
class AddressGround : public WindowGround<AddressPanel, frmnotes3> {
public:
    AddressGround() {
        screen.screenSize = QSize(800, 600);
        program.windows.registerMaker<AddressPanel>(
            [this] { return std::make_unique<frmnotes3>(program, book); });
        program.windows.registerMaker<OptionsWindow>(
            [this] { return std::make_unique<SortOptions>(byFirst); });
    }

    /// Lays a book of these contacts down where the panel finds it.
    void layDown(const std::vector<AddressRecord>& contacts) const {
        folder.write(QStringLiteral("address1.dat"), addressFileBytes(contacts));
    }
    /// Lays a book down and opens the panel on it.
    frmnotes3& open(const std::vector<AddressRecord>& contacts) {
        layDown(contacts);
        return panel();
    }
    /// The run ends and another one begins: the array is gone, the files stay.
    void startAgain() {
        program.windows.unload<AddressPanel>();
        book.AddressRecords.clear();
        book.AddressCount = 0;
    }

    QLineEdit& line(const QString& name) { return control<QLineEdit>(name); }
    ComboBox& combo(const QString& name) { return control<ComboBox>(name); }
    Image& image(const QString& name) { return control<Image>(name); }
    QString lineText(const QString& name) { return line(name).text(); }
    QString names() {
        return lineText(QStringLiteral("Text1")) + u' ' + lineText(QStringLiteral("Text2"));
    }
    void typeNames(const QString& first, const QString& second) {
        line(QStringLiteral("Text1")).setText(first);
        line(QStringLiteral("Text2")).setText(second);
    }

    void first() { press(QStringLiteral("Command2")); }
    void previous() { press(QStringLiteral("Command3")); }
    void next() { press(QStringLiteral("Command4")); }
    void last() { press(QStringLiteral("Command5")); }
    /// Chooses an entry from a list.
    static void choose(ComboBox& box, const QString& entry) {
        const int row = box.findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (row < 0)
            qFatal("no entry %s", qPrintable(entry));
        box.setCurrentIndex(row);
        emit box.activated(row);
    }
    /// Presses a button that answers with a box of one button.
    void pressAndRead(const QString& name, const QString& words, int flags,
                      const QString& title = {}) {
        boxes.expect(words, flags, Answer::Ok, title);
        press(name);
    }
    void add() { pressAndRead(QStringLiteral("imgAdd"), QStringLiteral("Item added."), 64); }
    void save() { pressAndRead(QStringLiteral("imgSave"), QStringLiteral("Changes saved."), 64); }
    void answerDelete(Answer answer) {
        boxes.expect(QStringLiteral("Do you want to continue?"), 20, answer,
                     QStringLiteral("Remove Entry"));
        press(QStringLiteral("imgDel"));
    }
    void choosePicture(const std::optional<QString>& path) {
        dialogs.answerOpen(path);
        press(QStringLiteral("imgAdresa1"));
    }
    void find(const QString& method, const QString& value) {
        choose(combo(QStringLiteral("Combo2")), method);
        combo(QStringLiteral("Combo3")).setText(value);
        press(QStringLiteral("cmdFind"));
    }
    bool searchIsIdle() {
        return !combo(QStringLiteral("Combo3")).isEnabled() &&
               !control<GGCommand>(QStringLiteral("cmdFind")).Enabled() &&
               combo(QStringLiteral("Combo2")).Text() == QStringLiteral("Select method");
    }
    bool showsDefaultPicture() {
        return image(QStringLiteral("imgAdresa1")).Picture() ==
               image(QStringLiteral("imgAdresa2")).Picture();
    }
    /// A picture file that can be read.
    QString picture(const QString& name) const {
        QImage green(8, 6, QImage::Format_RGB32);
        green.fill(Qt::green);
        if (!green.save(folder.file(name), "PNG"))
            qFatal("the test's picture could not be written");
        return folder.file(name);
    }

    QByteArray file() const { return folder.read(QStringLiteral("address1.dat")); }
    /// The names of the book in memory, in its order.
    QStringList inMemory() const { return namesOf(book.records()); }
    /// The names in the file.
    QStringList inFile() const {
        const QByteArray bytes = file();
        AddressFileReader reader(bytes);
        std::vector<AddressRecord> records;
        while (!reader.atEnd())
            reader.read(records.emplace_back());
        return namesOf(records);
    }
    static QStringList namesOf(std::span<const AddressRecord> records) {
        QStringList names;
        for (const AddressRecord& record : records)
            names << record.First + u' ' + record.Second;
        return names;
    }

    AddressBook book{app};
    bool byFirst = true;
};

} // namespace orvalis::test
