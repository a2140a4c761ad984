// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/words/group_head.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis::rtf;

/// Where a word may still say what its group is for.
class GroupHeadTest : public QObject {
    Q_OBJECT
private slots:
    void theLastWordStandsInAHead_data();
    void theLastWordStandsInAHead();
    void whatComesFirstStandsInTheHeadThatIsOpen();
    void aGroupThatWasPassedOverEndsTheHeadAroundIt();
};

namespace {

/// \returns the follower as it is behind the last token.
GroupHead behind(QByteArrayView rtf, bool isOpen = false) {
    GroupHead head(isOpen);
    Tokenizer tokenizer(rtf);
    Token token;
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token))
        head.take(token);
    return head;
}

} // namespace

void GroupHeadTest::theLastWordStandsInAHead_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<bool>("isHead");
    QTest::addColumn<bool>("isStarred");
    const auto row = [](const char* name, const char* rtf, bool isHead, bool isStarred = false) {
        QTest::addRow("%s", name) << QByteArray(rtf) << isHead << isStarred;
    };
    row("first", "{\\pict", true);
    row("behind a star", "{\\*\\pict", true, true);
    row("behind a star and blanks", "{\\* \r\n \\pict", true, true);
    row("behind two stars", "{\\*\\*\\pict", true, true);
    row("behind a star and a mark that is no character", "{\\*\\|\\pict", true);
    row("behind blanks", "{ \r\n\t\\pict", true);
    row("behind blanks by their codes", "{\\'20\\'0a\\pict", true);
    row("behind a star that lost its backslash", "{* \\pict", true);
    row("behind two of these", "{**\\pict", false);
    row("behind two of these in two lines", "{*\r\n*\\pict", false);
    row("behind words that say nothing of the group", "{\\b\\par\\pict", true);
    row("behind a word that nobody knows", "{\\*\\unknown\\pict", true);
    row("behind text", "{a\\pict", false);
    row("behind a character by its code", "{\\'e4\\pict", false);
    row("behind a blank by its number", "{\\u32?\\pict", false);
    row("behind a word that is a character", "{\\tab\\pict", false);
    row("behind a symbol that is a character", "{\\~\\pict", false);
    row("behind the word that said it", "{\\fonttbl\\pict", false);
    row("behind the word of a list", "{\\list\\pict", false);
    row("behind a group", "{{\\b}\\pict", false);
    row("outside of all groups", "\\pict", false);
    row("behind text and a star", "{a\\*\\pict", false);
    row("behind a star and text", "{\\*a\\pict", false);
}

void GroupHeadTest::theLastWordStandsInAHead() {
    QFETCH(QByteArray, rtf);
    const GroupHead head = behind(rtf);
    QTEST(head.isHead(), "isHead");
    QTEST(head.isStarred(), "isStarred");
}

void GroupHeadTest::whatComesFirstStandsInTheHeadThatIsOpen() {
    QVERIFY(behind("\\pict", true).isHead());
    QVERIFY(!behind("a\\pict", true).isHead());
    QVERIFY(!behind("\\*\\pict", true).isStarred());
}

void GroupHeadTest::aGroupThatWasPassedOverEndsTheHeadAroundIt() {
    GroupHead head = behind("{{\\*");
    QVERIFY(head.hasStar());
    head.leave();
    QVERIFY(!head.hasStar());
    Tokenizer tokenizer("\\pict");
    Token token;
    tokenizer.next(token);
    head.take(token);
    QVERIFY(!head.isHead());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, GroupHeadTest)
#include "group_head_test.moc"
