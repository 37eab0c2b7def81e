#include "vigrel-report/figures/answers.h"

#include "common/code_page.h"
#include "vigrel-report/figures/periods.h"

namespace vigrel::report {
namespace {

// The activations of a group and how long each waited for its answer.
struct cGroup {
    std::string category;
    std::optional<ePriority> priority;
    std::size_t activations = 0;
    std::vector<Seconds> times;
    std::size_t untimed = 0, never = 0;

    void Add(const cActivation& activation, bool leftOut) {
        ++activations;
        if (leftOut) return;
        if (activation.acknowledgedAfter >= 0) {
            times.push_back(activation.acknowledgedAfter);
        } else {
            ++(activation.acknowledged ? untimed : never);
        }
    }
    cAnswerTimes Times() {
        std::sort(times.begin(), times.end());
        return {times.size(), Median(times), Percentile(times, 0.9), times.empty() ? 0 : times.back(),
                untimed,      never};
    }
    cGroupAnswers Answers() { return {category, priority, activations, Times()}; }
};

std::optional<ePriority> PriorityOf(const cSettings& settings, const std::string& category) {
    const auto found = settings.priorities.find(ToUpper(category));
    return found == settings.priorities.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

cAnswers MeasureAnswers(const cPlant& plant, const cAlarmNames& names, const cSettings& settings,
                        const cSpan& period, const cNuisance& nuisance) {
    cGroup all;
    std::map<std::string, cGroup> categories;  // by upper case
    std::array<cGroup, 4> priorities;
    const std::array<std::optional<ePriority>, 4> order = {ePriority::High, ePriority::Medium, ePriority::Low,
                                                           std::nullopt};
    for (std::size_t i = 0; i < order.size(); ++i) priorities[i].priority = order[i];
    cAnswers answers;
    for (const cActivation* activation : Activations(plant, period)) {
        const bool leftOut = nuisance.excluded.contains(activation);
        answers.leftOut += leftOut ? 1 : 0;
        const std::string& category = names.Source(activation->source).category;
        const auto priority = PriorityOf(settings, category);
        cGroup& group = categories[ToUpper(category)];
        if (group.activations == 0) group.category = category;
        group.priority = priority;
        all.Add(*activation, leftOut);
        group.Add(*activation, leftOut);
        for (cGroup& byPriority : priorities) {
            if (byPriority.priority == priority) byPriority.Add(*activation, leftOut);
        }
    }
    answers.all = all.Times();
    for (auto& [name, group] : categories) answers.categories.push_back(group.Answers());
    std::stable_sort(
        answers.categories.begin(), answers.categories.end(),
        [](const cGroupAnswers& a, const cGroupAnswers& b) { return a.activations > b.activations; });
    if (!settings.priorities.empty()) {
        for (cGroup& group : priorities) answers.priorities.push_back(group.Answers());
    }
    return answers;
}

}  // namespace vigrel::report
