// SPDX-License-Identifier: MIT
#include "Freeing/AskDisk.h"

#include "DeadMounts/AnswerSoFar.h"
#include "DeadMounts/DeadMountLimits.h"
#include "DeadMounts/QuestionThreads.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tessera {

namespace {

using Facts = AnswerSoFar<FreeingFacts>;

/// Those who are asked end soon after a stop, one after the other.
constexpr std::chrono::milliseconds kPatienceWithThoseAsked = 3 * kPatienceAfterAStop;

/// Regular files with their places in the question, since others have no extents.
struct RegularFiles {
    std::vector<NamedFile> files;
    std::vector<std::size_t> places;
};

RegularFiles regularFilesOf(const FreeingQuestion& question, const std::vector<ItemAnswer>& states)
{
    RegularFiles regular;
    for (std::size_t i = 0; i < states.size(); ++i) {
        if (states[i].outcome == ItemAnswer::Outcome::Known
            && states[i].state.kind == ItemState::Kind::File) {
            regular.files.push_back({question.files[i].path, states[i].state.identity});
            regular.places.push_back(i);
        }
    }
    return regular;
}

std::vector<ItemAnswer> askForStates(
    const FreeingQuestion& question, const ItemStates& itemStates, const std::stop_token& stop)
{
    std::vector<std::string> paths;
    for (const FileToLookAt& file : question.files) {
        paths.push_back(file.path);
    }
    return itemStates.statesOf(paths, stop);
}

void askForExtents(
    const RegularFiles& regular,
    const SharedExtents& sharedExtents,
    Facts& facts,
    const std::stop_token& stop)
{
    const SharedExtentsAnswer answer = sharedExtents.extentsOf(regular.files, stop);
    facts.change([&](FreeingFacts& found) {
        found.extents.resize(found.states.size());
        for (std::size_t i = 0; i < regular.places.size(); ++i) {
            found.extents[regular.places[i]] = answer.files[i];
        }
    });
}

void leaveOut(std::int64_t process, std::vector<HeldFile>& files)
{
    for (HeldFile& file : files) {
        std::erase_if(file.holders, [process](const FileHolder& holder) {
            return holder.process == process;
        });
    }
    std::erase_if(files, [](const HeldFile& file) { return file.holders.empty(); });
}

void askForHolders(
    const RegularFiles& regular,
    const FreeingServices& services,
    Facts& facts,
    const std::stop_token& stop)
{
    OpenFilesAnswer answer;
    answer.isCutShort = false;
    if (!regular.files.empty()) {
        std::vector<FileIdentity> identities;
        for (const NamedFile& file : regular.files) {
            identities.push_back(file.identity);
        }
        answer = services.openFiles->among(identities, stop);
        leaveOut(services.thisProcess, answer.files);
    }
    facts.change([&answer](FreeingFacts& found) { found.open = answer; });
}

/// One question: who is asked for holders, and who for extents, side by side.
struct Inquiry {
    FreeingQuestion question;
    FreeingServices services;
    std::shared_ptr<QuestionThreads> threads;
    std::stop_token stop;

    void run(const std::shared_ptr<Facts>& facts) const
    {
        auto states = askForStates(question, *services.itemStates, stop);
        const auto regular = std::make_shared<const RegularFiles>(regularFilesOf(question, states));
        facts->change([&states](FreeingFacts& found) { found.states = std::move(states); });
        const auto [thread, error]
            = threads->start([facts, regular, asked = services, token = stop] {
                  askForHolders(*regular, asked, *facts, token);
              });
        askForExtents(*regular, *services.sharedExtents, *facts, stop);
        if (!error) {
            // They end by themselves, in their time or after the stop.
            (void)threads->waitFor(*thread, QuestionThreads::Clock::time_point::max(), stop);
        }
    }
};

} // namespace

FreeingFacts askDisk(
    const FreeingQuestion& question,
    const FreeingServices& services,
    std::chrono::milliseconds patience,
    const std::stop_token& stop)
{
    const auto until = QuestionThreads::Clock::now() + patience;
    const auto threads = QuestionThreads::make();
    const auto facts = std::make_shared<Facts>();
    std::stop_source limit;
    const std::stop_callback stopEarlier(stop, [&limit] { limit.request_stop(); });
    const auto [thread, error]
        = threads->start([inquiry = Inquiry{question, services, threads, limit.get_token()},
                          facts] { inquiry.run(facts); });
    if (!error && !threads->waitFor(*thread, until, stop)) {
        limit.request_stop();
        const auto end = QuestionThreads::Clock::now() + kPatienceWithThoseAsked;
        (void)threads->waitFor(*thread, end);
    }
    return facts->copy();
}

} // namespace tessera
