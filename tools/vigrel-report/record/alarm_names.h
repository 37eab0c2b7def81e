#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vigrel::report {

// Looks texts up without making strings of them.
struct cTextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

// The first text of an alarm that a station makes itself: about a sender that was lost, or is back.
inline constexpr std::string_view kOwnAlarm = "VigrelAlarmReceiver";

// Texts and their numbers, from 0, in the order of their first meeting.
class cNumbered {
  public:
    std::uint32_t Number(std::string_view text);
    const std::string& Text(std::uint32_t number) const { return *m_Texts[number]; }
    std::size_t Count() const { return m_Texts.size(); }

  private:
    std::unordered_map<std::string, std::uint32_t, cTextHash, std::equal_to<>> m_Numbers;
    std::vector<const std::string*> m_Texts;
};

// The condition texts 0 to 4 that a log line holds.
using AlarmFields = std::array<std::string, 5>;

// Cuts "t0 (t1/t2/t3/t4)" where a sender wrote neither " (" nor "/" into its texts. Where it did, the cut is
// taken whose category is known; without one the last bracket and the first slashes count, and the result is
// not certain.
struct cCutAlarm {
    AlarmFields fields;
    bool certain = true;
};
cCutAlarm CutAlarm(std::string_view body, const std::function<bool(std::string_view category)>& isCategory);

// One alarm, which becomes active and inactive again: a sender's texts 0 to 2. What stands in the others is
// up to the sender, and often a value that differs each time.
struct cSource {
    std::uint32_t sender = 0;
    std::string alarm, place, category;
};

// The names in the records of all stations, so that an event is a few numbers.
class cAlarmNames {
  public:
    // Senders are told apart without regard to case; the first spelling stays.
    std::uint32_t Sender(std::string_view name);
    const std::string& SenderName(std::uint32_t sender) const { return m_SenderNames[sender]; }
    std::size_t SenderCount() const { return m_SenderNames.size(); }
    // "t0 (t1/t2/t3/t4)".
    std::uint32_t Body(std::string_view body) { return m_Bodies.Number(body); }
    const std::string& BodyText(std::uint32_t body) const { return m_Bodies.Text(body); }
    // The texts of a body are known from a stored alarm; they needn't be cut out of it.
    void Learn(std::uint32_t body, const AlarmFields& fields);
    void LearnCategory(std::string_view category);
    const AlarmFields& Fields(std::uint32_t body);

    std::uint32_t SourceOf(std::uint32_t sender, std::uint32_t body);
    const cSource& Source(std::uint32_t source) const { return m_Sources[source]; }
    std::size_t SourceCount() const { return m_Sources.size(); }
    // Bodies whose texts had to be guessed.
    std::size_t UncertainBodies() const { return m_Uncertain; }

  private:
    cNumbered m_Senders, m_Bodies;
    std::vector<std::string> m_SenderNames;
    std::vector<std::optional<AlarmFields>> m_Fields;  // by body
    std::set<std::string, std::less<>> m_Categories;   // in upper case
    std::size_t m_Uncertain = 0;
    std::unordered_map<std::uint64_t, std::uint32_t> m_SourceOfPair;  // sender and body
    cNumbered m_SourceKeys;
    std::vector<cSource> m_Sources;
};

}  // namespace vigrel::report
