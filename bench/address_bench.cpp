// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// The Address panel over a book of as many contacts as it holds, and the order of books of several
// shapes.
#include "address/address_ground.h"
#include "address/address_sort.h"
#include "skin/style.h"
#include "timing.h"

#include <QRandomGenerator>

#include <cstdio>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int Most = 32766;
constexpr int Rounds = 5;

/// 5 MB of contacts.
std::vector<AddressRecord> bookOf(int count) {
    QRandomGenerator random(12);
    std::vector<AddressRecord> contacts(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        AddressRecord& contact = contacts[static_cast<std::size_t>(i)];
        contact.First = u"Name%1"_s.arg(random.bounded(5000), 4, 10, QChar(u'0'));
        contact.Second = u"Surname%1"_s.arg(i);
        contact.Area = u"Friends"_s;
        contact.Town = u"Town%1"_s.arg(random.bounded(300));
        contact.Email = u"name%1@example.org"_s.arg(i);
        contact.Web = u"http://"_s;
        contact.Notes = u"Met in town, rings on Mondays."_s;
    }
    return contacts;
}

void tell(const char* what, double milliseconds) {
    std::printf("%s: %.1f ms\n", what, milliseconds);
}

void measureOrder(const char* shape, const QStringList& keys) {
    const std::vector<QStringView> views(keys.begin(), keys.end());
    const double took = bench::medianMilliseconds(Rounds, [&] { exchangeOrder(views); });
    std::printf("order of %d keys, %s: %.1f ms\n", int(keys.size()), shape, took);
}

void measureOrders() {
    QRandomGenerator random(5);
    QStringList ascending;
    QStringList few;
    QStringList common;
    for (int i = 0; i < Most; ++i) {
        ascending << u"%1"_s.arg(i, 6, 10, QChar(u'0'));
        few << QString::number(random.bounded(3));
        common << QString(100, u'x') + QString::number(random.bounded(100000));
    }
    QStringList reverse = ascending;
    std::reverse(reverse.begin(), reverse.end());
    QStringList last = ascending;
    last.last() = u"000000"_s;
    measureOrder("in order", ascending);
    measureOrder("in order but for the last", last);
    measureOrder("in reverse", reverse);
    measureOrder("all the same", QStringList(Most, u"x"_s));
    measureOrder("three keys", few);
    measureOrder("a hundred signs in common", common);
}

/// What nobody waits longer for: the bytes alone, written and synced.
double bareWrite(const QString& path, const QByteArray& bytes) {
    return bench::medianMilliseconds(
        Rounds,
        [&] {
            QFile file(path);
            if (file.open(QIODevice::WriteOnly)) {
                file.write(bytes);
                file.flush();
                fsync(file.handle());
            }
        });
}

} // namespace

int main(int argc, char** argv) {
    test::fixedGround();
    Application app(argc, argv);
    skin::dress(app);
    measureOrders();

    test::AddressGround ground;
    ground.layDown(bookOf(Most));
    std::printf("book of %d contacts, %.1f MB\n", Most, double(ground.file().size()) / 1e6);
    tell("a bare file of that size, written and synced",
         bareWrite(ground.folder.file(u"bare"_s), ground.file()));
    const auto settle = [] { QApplication::processEvents(); };
    tell("load, sort and show, until painted", bench::medianMilliseconds(
                                                   Rounds,
                                                   [&] {
                                                       ground.shown();
                                                       settle();
                                                   },
                                                   [&] { ground.startAgain(); }));
    ground.shown();
    settle();
    const auto find = [&] {
        test::AddressGround::choose(ground.combo(u"Combo2"_s), u"First"_s);
        settle();
    };
    tell("the list of a search method", bench::medianMilliseconds(Rounds, find));
    tell("a search that reaches the last contact", bench::medianMilliseconds(Rounds, [&] {
             test::AddressGround::choose(ground.combo(u"Combo2"_s), u"Second"_s);
             ground.combo(u"Combo3"_s).setText(ground.book.records().back().Second);
             ground.press(u"cmdFind"_s);
             settle();
         }));
    tell("next", bench::medianMilliseconds(Rounds, [&] {
             ground.next();
             settle();
         }));
    ground.first();
    tell("save", bench::medianMilliseconds(Rounds, [&] {
             ground.save();
             settle();
         }));
    tell("delete", bench::medianMilliseconds(Rounds, [&] {
             ground.answerDelete(Answer::Yes);
             settle();
         }));
    int number = 0;
    tell("add", bench::medianMilliseconds(Rounds, [&] {
             ground.typeNames(u"New"_s, u"Contact%1"_s.arg(++number));
             ground.add();
             settle();
         }));
    return 0;
}
