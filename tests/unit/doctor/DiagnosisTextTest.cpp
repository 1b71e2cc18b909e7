#include "doctor/DiagnosisText.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "doctor/Diagnosis.h"

namespace quorvel {
namespace {

using testing::EndsWith;

Diagnosis twoSections()
{
    return {"1.2.3",
            {{"one", "First", {{.id = "one.a", .text = "All is well.", .details = {{"count", {std::int64_t{2}}}}}}},
             {"two",
              "Second",
              {{.id = "two.a", .verdict = Verdict::notice, .text = "It could be better."},
               {.id = "two.b", .verdict = Verdict::problem, .text = "It is missing.", .advice = "Get it."}}}}};
}

TEST(DiagnosisText, APersonReadsSectionsWithMarksAndASummary)
{
    EXPECT_EQ(diagnosisText(twoSections()), R"(Quorvel 1.2.3

First
  ok       All is well.

Second
  note     It could be better.
  PROBLEM  It is missing.
           Get it.

1 problem stands in Quorvel's way.
)");
}

TEST(DiagnosisText, TheSummaryCountsProblemsOnly)
{
    auto diagnosis = twoSections();
    diagnosis.sections[0].findings[0].verdict = Verdict::problem;
    EXPECT_THAT(diagnosisText(diagnosis), EndsWith("\n2 problems stand in Quorvel's way.\n"));
    diagnosis.sections[0].findings[0].verdict = Verdict::good;
    diagnosis.sections[1].findings[1].verdict = Verdict::notice;
    EXPECT_THAT(diagnosisText(diagnosis), EndsWith("\nQuorvel has everything that it needs here.\n"));
}

TEST(DiagnosisText, ItIsFitWithoutProblemsOnly)
{
    auto diagnosis = twoSections();
    EXPECT_FALSE(diagnosis.isFit());
    diagnosis.sections[1].findings.pop_back();
    EXPECT_TRUE(diagnosis.isFit());
}

TEST(DiagnosisText, ScriptsReadTheSameAsJson)
{
    const auto expected = nlohmann::json::parse(R"({
        "version": "1.2.3", "fit": false,
        "sections": [
            {"id": "one", "title": "First", "findings": [
                {"id": "one.a", "verdict": "good", "text": "All is well.", "details": {"count": 2}}]},
            {"id": "two", "title": "Second", "findings": [
                {"id": "two.a", "verdict": "notice", "text": "It could be better."},
                {"id": "two.b", "verdict": "problem", "text": "It is missing.", "advice": "Get it."}]}]})");
    EXPECT_EQ(nlohmann::json::parse(diagnosisJson(twoSections())), expected);
}

TEST(DiagnosisText, DetailsKeepTheirTypesAsJson)
{
    const PropertyDictionary details{{"list", {PropertyArray{{true}, {1.5}, {std::string("x")}}}},
                                     {"map", {PropertyDictionary{{"k", {std::int64_t{-1}}}}}}};
    const Diagnosis diagnosis{"1", {{"s", "S", {{.id = "f", .text = "T.", .details = details}}}}};
    const auto json = nlohmann::json::parse(diagnosisJson(diagnosis));
    EXPECT_EQ(json["sections"][0]["findings"][0]["details"],
              nlohmann::json::parse(R"({"list": [true, 1.5, "x"], "map": {"k": -1}})"));
}

TEST(DiagnosisText, TextThatIsNoUtf8BecomesJsonAllTheSame)
{
    const Diagnosis diagnosis{"1", {{"s", "S", {{.id = "f", .text = "a\xff"}}}}};
    EXPECT_EQ(nlohmann::json::parse(diagnosisJson(diagnosis))["sections"][0]["findings"][0]["text"], "a\xEF\xBF\xBD");
}

} // namespace
} // namespace quorvel
