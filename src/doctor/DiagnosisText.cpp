#include "doctor/DiagnosisText.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "doctor/Diagnosis.h"

namespace quorvel {

namespace {

using Json = nlohmann::ordered_json;

std::string_view mark(Verdict verdict)
{
    switch (verdict) {
    case Verdict::good:
        return "ok     ";
    case Verdict::notice:
        return "note   ";
    case Verdict::problem:
        return "PROBLEM";
    }
    return {};
}

std::string_view name(Verdict verdict)
{
    switch (verdict) {
    case Verdict::good:
        return "good";
    case Verdict::notice:
        return "notice";
    case Verdict::problem:
        return "problem";
    }
    return {};
}

std::ptrdiff_t count(const Diagnosis& diagnosis, Verdict verdict)
{
    std::ptrdiff_t result = 0;
    for (const auto& section : diagnosis.sections) {
        result += std::ranges::count(section.findings, verdict, &Finding::verdict);
    }
    return result;
}

std::string summary(const Diagnosis& diagnosis)
{
    const auto problems = count(diagnosis, Verdict::problem);
    if (problems == 0) {
        return "Quorvel has everything that it needs here.";
    }
    return fmt::format("{} {} in Quorvel's way.", problems, problems == 1 ? "problem stands" : "problems stand");
}

Json json(const PropertyValue& value);

struct JsonOf {
    template <class Plain>
    Json operator()(const Plain& plain) const
    {
        return plain;
    }
    Json operator()(const PropertyData& data) const { return data.size(); }
    Json operator()(const PropertyArray& array) const
    {
        auto result = Json::array();
        for (const auto& element : array) {
            result.push_back(json(element));
        }
        return result;
    }
    Json operator()(const PropertyDictionary& dictionary) const
    {
        auto result = Json::object();
        for (const auto& [key, element] : dictionary) {
            result[key] = json(element);
        }
        return result;
    }
};

Json json(const PropertyValue& value)
{
    return std::visit(JsonOf{}, value.value);
}

Json json(const Finding& finding)
{
    Json result{{"id", finding.id}, {"verdict", name(finding.verdict)}, {"text", finding.text}};
    if (!finding.advice.empty()) {
        result["advice"] = finding.advice;
    }
    if (!finding.details.empty()) {
        result["details"] = JsonOf{}(finding.details);
    }
    return result;
}

} // namespace

std::string diagnosisText(const Diagnosis& diagnosis)
{
    std::string text = fmt::format("Quorvel {}\n", diagnosis.version);
    for (const auto& section : diagnosis.sections) {
        text += fmt::format("\n{}\n", section.title);
        for (const auto& finding : section.findings) {
            text += fmt::format("  {}  {}\n", mark(finding.verdict), finding.text);
            if (!finding.advice.empty()) {
                text += fmt::format("           {}\n", finding.advice);
            }
        }
    }
    return text + fmt::format("\n{}\n", summary(diagnosis));
}

std::string diagnosisJson(const Diagnosis& diagnosis)
{
    Json result{{"version", diagnosis.version}, {"fit", diagnosis.isFit()}, {"sections", Json::array()}};
    for (const auto& section : diagnosis.sections) {
        Json entry{{"id", section.id}, {"title", section.title}, {"findings", Json::array()}};
        for (const auto& finding : section.findings) {
            entry["findings"].push_back(json(finding));
        }
        result["sections"].push_back(std::move(entry));
    }
    return result.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace quorvel
