#pragma once

#include <map>
#include <string>

#include "platform/HttpClient.h"

namespace quorvel {

class Journal;
class SimulatedMainQueue;

// A web of a few documents. Answers come in a later turn, and an address without a document is a missing one.
class SimulatedHttpClient final : public HttpClient {
public:
    SimulatedHttpClient(Journal& journal, SimulatedMainQueue& mainQueue) : journal(journal), mainQueue(mainQueue) {}

    Subscription get(const std::string& address, std::function<void(Answer)> completion) override;

    void serve(std::string address, Answer answer) { answers.insert_or_assign(std::move(address), std::move(answer)); }

private:
    Journal& journal;
    SimulatedMainQueue& mainQueue;
    std::map<std::string, Answer> answers;
};

} // namespace quorvel
