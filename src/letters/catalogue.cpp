// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "letters/catalogue.h"

#include <QRegularExpression>
#include <QResource>

#include <algorithm>
#include <array>

// The texts are linked in with a static library: without this call the linker would drop them. The
// macro must be used outside of every namespace.
static void registerTexts() {
    Q_INIT_RESOURCE(letter_texts);
}

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

/// Which kinds of a topic have one text among them.
enum class Sharing { None, SentencesAndPhrases, All };

struct Topic {
    QStringView caption;
    QStringView stem; ///< of the names of its files
    Sharing sharing = Sharing::None;
};

constexpr QStringView JobOffer = u"Job offer...";

constexpr std::array Topics{
    Topic{u"Outline", u"outline", Sharing::All},
    Topic{u"Example 1", u"example_1", Sharing::SentencesAndPhrases},
    Topic{u"Example 2", u"example_2", Sharing::SentencesAndPhrases},
    Topic{u"Appreciation...", u"appreciation"},
    Topic{u"Business appointment...", u"business_appointment"},
    Topic{u"Event...", u"event"},
    Topic{u"Formal invitation...", u"formal_invitation"},
    Topic{u"Gift...", u"gift"},
    Topic{u"Honorary...", u"honorary"},
    Topic{u"Honor...", u"honor"},
    Topic{u"Informal invitation...", u"informal_invitation"},
    Topic{JobOffer, u"job_offer"},
    Topic{u"Resignation...", u"resignation"},
    Topic{u"To perform...", u"to_perform"},
    Topic{u"New business...", u"new_business"},
    Topic{u"New partner...", u"new_partner"},
    Topic{u"New salesperson...", u"new_salesperson"},
    Topic{u"Winner...", u"winner"},
    Topic{u"Advice...", u"advice"},
    Topic{u"Business...", u"business"},
    Topic{u"Doctor...", u"doctor"},
    Topic{u"Job...", u"job"},
    Topic{u"Religious...", u"religious"},
    Topic{u"Someone...", u"someone"},
    Topic{u"Volunteer...", u"volunteer"},
    Topic{u"Chairperson or planner...", u"chairperson_or_planner"},
    Topic{u"Employee's family...", u"employees_family"},
    Topic{u"Product or service...", u"product_or_service"},
    Topic{u"Salesperson or staff...", u"salesperson_or_staff"},
    Topic{u"Speaker...", u"speaker"},
    Topic{u"Write a letter of encouragement", u"encouragement"},
    Topic{u"Write a letter to accompany a gift", u"accompany_a_gift"},
    Topic{u"Write a recommendatin", u"recommendation"},
    Topic{u"Enquiries-Information", u"enquiries_information", Sharing::SentencesAndPhrases},
    Topic{u"Responding to Enquiries", u"responding_to_enquiries", Sharing::SentencesAndPhrases},
    Topic{u"Orders", u"orders", Sharing::SentencesAndPhrases},
    Topic{u"Sales Letters", u"sales_letters", Sharing::SentencesAndPhrases},
    Topic{u"Account Terms and Conditions", u"account_terms", Sharing::SentencesAndPhrases},
    Topic{u"Claim Letters", u"claim_letters", Sharing::SentencesAndPhrases},
    Topic{u"Claim Adjustment Letters", u"claim_adjustment", Sharing::SentencesAndPhrases},
};

QStringView suffix(Sharing sharing, TemplateKind kind) {
    if (sharing == Sharing::All)
        return u".txt";
    if (kind == TemplateKind::Letters)
        return u".letters.txt";
    if (sharing == Sharing::SentencesAndPhrases)
        return u".key_phrases.txt";
    return kind == TemplateKind::Sentences ? QStringView(u".sentences.txt")
                                           : QStringView(u".phrases.txt");
}

void ensureTexts() {
    static const bool registered = [] {
        registerTexts();
        return true;
    }();
    Q_UNUSED(registered)
}

} // namespace

QStringList templateTopics() {
    QStringList captions;
    for (const Topic& topic : Topics)
        captions << topic.caption.toString();
    return captions;
}

QString templateFile(QStringView caption, TemplateKind kind) {
    const auto* topic = std::find_if(Topics.begin(), Topics.end(), [caption](const Topic& each) {
        return each.caption == caption;
    });
    if (topic == Topics.end())
        return {};
    return topic->stem.toString().append(suffix(topic->sharing, kind));
}

std::optional<QString> templateText(QStringView caption, TemplateKind kind) {
    const QString file = templateFile(caption, kind);
    if (file.isEmpty())
        return std::nullopt;
    ensureTexts();
    const QResource resource(u":/letters/"_s + file);
    Q_ASSERT(resource.isValid());
    QString text = QString::fromUtf8(reinterpret_cast<const char*>(resource.data()),
                                     static_cast<qsizetype>(resource.size()));
    return text.replace(u'\n', u"\r\n"_s);
}

bool isWrittenInPieces(QStringView caption, TemplateKind kind) {
    return kind == TemplateKind::Phrases && caption == JobOffer;
}

QStringList templatePieces(const QString& text) {
    static const QRegularExpression aheadOfStep(u"(?<=\\n)(?=\\d+\\. )"_s);
    return text.split(aheadOfStep);
}

} // namespace orvalis
