// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "letters/template_tree.h"

namespace orvalis {

namespace {

constexpr TemplateNode Nodes[] = {
    {u"cvor0", u"Cover Letter", {}},
    {{}, u"Outline", u"cvor0"},
    {{}, u"Example 1", u"cvor0"},
    {{}, u"Example 2", u"cvor0"},
    {u"cvor1", u"Accept", u"cvor0"},
    {{}, u"Appreciation...", u"cvor1"},
    {{}, u"Business appointment...", u"cvor1"},
    {{}, u"Event...", u"cvor1"},
    {{}, u"Formal invitation...", u"cvor1"},
    {{}, u"Gift...", u"cvor1"},
    {{}, u"Honorary...", u"cvor1"},
    {{}, u"Honor...", u"cvor1"},
    {{}, u"Informal invitation...", u"cvor1"},
    {{}, u"Job offer...", u"cvor1"},
    {{}, u"Resignation...", u"cvor1"},
    {{}, u"To perform...", u"cvor1"},
    {u"cvor2", u"Announce", u"cvor1"},
    {{}, u"New business...", u"cvor2"},
    {{}, u"New partner...", u"cvor2"},
    {{}, u"New salesperson...", u"cvor2"},
    {{}, u"Winner...", u"cvor2"},
    {u"cvor3", u"Thank", u"cvor2"},
    {{}, u"Advice...", u"cvor3"},
    {{}, u"Business...", u"cvor3"},
    {{}, u"Doctor...", u"cvor3"},
    {{}, u"Job...", u"cvor3"},
    {{}, u"Religious...", u"cvor3"},
    {{}, u"Someone...", u"cvor3"},
    {{}, u"Volunteer...", u"cvor3"},
    {u"cvor4", u"Compliment", u"cvor3"},
    {{}, u"Chairperson or planner...", u"cvor4"},
    {{}, u"Employee's family...", u"cvor4"},
    {{}, u"Product or service...", u"cvor4"},
    {{}, u"Salesperson or staff...", u"cvor4"},
    {{}, u"Speaker...", u"cvor4"},
    {{}, u"Employee's family...", u"cvor4"},
    {u"cvor5", u"Misc", u"cvor4"},
    {{}, u"Write a letter of encouragement", u"cvor5"},
    {{}, u"Write a letter to accompany a gift", u"cvor5"},
    {{}, u"Write a recommendatin", u"cvor5"},
    {{}, u"Enquiries-Information", u"cvor5"},
    {{}, u"Responding to Enquiries", u"cvor5"},
    {{}, u"Orders", u"cvor5"},
    {{}, u"Sales Letters", u"cvor5"},
    {{}, u"Account Terms and Conditions", u"cvor5"},
    {{}, u"Claim Letters", u"cvor5"},
    {{}, u"Claim Adjustment Letters", u"cvor5"},
};

} // namespace

std::span<const TemplateNode> templateTree() {
    return Nodes;
}

} // namespace orvalis
