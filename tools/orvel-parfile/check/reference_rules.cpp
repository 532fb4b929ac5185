#include "rules.h"

#include "name_offers.h"
#include "reference_graph.h"
#include "support/nearest_name.h"
#include "support/plain_text.h"

#include <algorithm>
#include <map>

namespace schema = orvel::schema;

namespace
{

// The ids of a kind, collected once: a job may have thousands of references to nothing.
class KnownIds
{
public:
  explicit KnownIds(const JobIndex& index) : m_index(index) {}

  const std::vector<std::string>& Of(const std::string& kind)
  {
    const auto [ids, is_new] = m_ids.try_emplace(kind);
    if (is_new)
    {
      ids->second = m_index.Ids(kind);
    }
    return ids->second;
  }

private:
  const JobIndex& m_index;
  std::map<std::string, std::vector<std::string>> m_ids;
};

class ReferenceCheck
{
public:
  ReferenceCheck(const CheckSubject& subject, std::vector<Finding>& findings)
    : m_subject(subject), m_findings(findings), m_known(subject.index)
  {
  }

  void CheckAll()
  {
    ForEachKnownKey(m_subject.job, [&](const JobCommand& command, const JobKey& key, const schema::Field& field) {
      for (std::size_t place = 0; key.type == &ReferenceType() && place < key.items.size(); ++place)
      {
        Check(command, key, place, std::string(field.target));
      }
    });
  }

private:
  void Check(const JobCommand& command, const JobKey& key, std::size_t place, const std::string& kind)
  {
    const JobReference& target = std::get<JobReference>(key.items[place].value);
    if (target.IsNull())
    {
      const std::string remedy =
        m_known.Of(kind).empty() ? "there is no " + kind + " at all" : NamesText(m_known.Of(kind));
      Add(rules::unresolved_reference, command, key, place, "refers to nothing",
          Joined(remedy, m_subject.remedies.Replace(command, key, place, "ID")));
    }
    else if (m_subject.index.Find(target.kind, target.id) == nullptr)
    {
      if (!m_subject.refused.Has(target.kind, target.id))
      {
        Add(rules::unresolved_reference, command, key, place, "refers to " + Name(target) + ", which is not there",
            Nearest(command, key, place, kind));
      }
    }
    else if (target.kind != kind)
    {
      const bool is_there = m_subject.index.Find(kind, target.id) != nullptr;
      Add(rules::wrong_target, command, key, place,
          "refers to " + Name(target) + ", where it must be a " + kind + "; the library takes the id alone and " +
            (is_there ? "links " : "finds no ") + kind + " " + PlainText(target.id),
          Nearest(command, key, place, kind));
    }
  }

  static std::string Name(const JobReference& target) { return PlainText(target.kind) + " " + PlainText(target.id); }

  void Add(const Rule& rule, const JobCommand& command, const JobKey& key, std::size_t place, const std::string& text,
           std::string remedy)
  {
    m_findings.push_back(About(rule, command, key, key.items[place], text, std::move(remedy)));
    const JobReference& target = std::get<JobReference>(key.items[place].value);
    m_findings.back().value = target.IsNull() ? std::string() : target.kind + "/" + target.id;
  }

  std::string Nearest(const JobCommand& command, const JobKey& key, std::size_t place, const std::string& kind)
  {
    const std::string& id = std::get<JobReference>(key.items[place].value).id;
    if (m_known.Of(kind).empty())
    {
      return "there is no " + kind + " at all";
    }
    const NameOffers::Offer offer = m_offers.For(id, m_known.Of(kind));
    return offer.nearest == nullptr
             ? offer.text
             : Joined(offer.text, m_subject.remedies.Replace(command, key, place, *offer.nearest));
  }

  const CheckSubject& m_subject;
  std::vector<Finding>& m_findings;
  KnownIds m_known;
  NameOffers m_offers;
};

// The last of them that nothing refers to, or the last.
const JobCommand& OneToRemove(const CheckSubject& subject, const std::string& kind, const std::vector<std::string>& ids)
{
  const auto is_free = [&](const std::string& id) {
    const JobReference target{kind, id};
    return std::none_of(subject.job.commands.begin(), subject.job.commands.end(), [&](const JobCommand& command) {
      return std::any_of(command.keys.begin(), command.keys.end(),
                         [&](const JobKey& key) { return RefersTo(key, target); });
    });
  };
  const auto free = std::find_if(ids.rbegin(), ids.rend(), is_free);
  return *subject.index.Find(kind, free != ids.rend() ? *free : ids.back());
}

void CheckCounts(const CheckSubject& subject, std::vector<Finding>& findings)
{
  for (const schema::Command& kind : schema::Commands())
  {
    const std::string name(kind.kind);
    const std::vector<std::string> ids =
      kind.count == schema::Count::One ? subject.index.Ids(name) : std::vector<std::string>(1);
    if (ids.empty() && subject.refused.kinds.count(name) == 0)
    {
      findings.push_back({&rules::command_count,
                          name,
                          {},
                          {},
                          "0",
                          {},
                          "there is no " + name + ", where a job has one",
                          "add one: " + std::string(kind.documentation)});
    }
    else if (ids.size() > 1)
    {
      std::string text = "there are " + std::to_string(ids.size());
      text += " " + name + ", where a job has one: ";
      for (const std::string& id : ids)
      {
        text += (&id == &ids.front() ? "" : ", ") + PlainText(id);
      }
      const JobCommand& last = OneToRemove(subject, name, ids);
      findings.push_back({&rules::command_count,
                          name,
                          {},
                          {},
                          std::to_string(ids.size()),
                          last.place,
                          text,
                          "leave one; of another, " + subject.remedies.Remove(last)});
    }
  }
}

bool IsTarget(std::string_view kind)
{
  return std::any_of(schema::Commands().begin(), schema::Commands().end(), [kind](const schema::Command& command) {
    return std::any_of(command.fields.begin(), command.fields.end(),
                       [kind](const schema::Field& field) { return field.target == kind; });
  });
}

void FindUnreachable(const CheckSubject& subject, const ReferenceGraph& graph, std::vector<Finding>& findings)
{
  if (subject.index.Ids(kAlgorithm).empty())
  {
    return;  // nothing is reached, and the cause is told
  }
  std::map<std::string, bool> is_target;
  for (const schema::Command& kind : schema::Commands())
  {
    is_target[std::string(kind.kind)] = IsTarget(kind.kind);
  }
  const std::vector<bool> reached = ReachedFromAlgorithm(graph);
  for (std::size_t place = 0; place < reached.size(); ++place)
  {
    const JobCommand& command = *graph.Commands()[place];
    if (!reached[place] && is_target[command.kind])
    {
      findings.push_back(About(rules::unreachable_command, command, std::string("is not reached from ") + kAlgorithm,
                               "refer to it where it belongs, or " + subject.remedies.Remove(command)));
    }
  }
}

// The key without one of its references.
std::string WithoutReference(const CheckSubject& subject, const JobCommand& command, const JobKey& key,
                             const JobItem& unwanted)
{
  std::vector<std::string> ids;
  for (const JobItem& item : key.items)
  {
    if (&item != &unwanted)
    {
      ids.push_back(Remedies::WordFor(std::get<JobReference>(item.value)));
    }
  }
  return ids.empty() ? subject.remedies.Remove(command, key.name)
                     : subject.remedies.Set(command, *FieldOf(command, key.name), ids);
}

// Of circles beyond so many steps in all, only the two ends are told, or a job of some thousand commands that all refer
// back to the first would be told in gigabytes.
constexpr std::size_t kMostSteps = 10000;
constexpr std::size_t kStepsAtAnEnd = 10;

std::string PathOf(const ReferenceCycle& cycle, const ReferenceGraph& graph, bool is_whole)
{
  const std::size_t size = cycle.commands.size();
  const std::size_t left_out = is_whole ? 0 : size - std::min(size, 2 * kStepsAtAnEnd);
  std::string path;
  for (std::size_t step = 0; step < size; ++step)
  {
    if (left_out > 0 && step == kStepsAtAnEnd)
    {
      path += std::to_string(left_out) + " more -> ";
      step += left_out;
    }
    path += NameOf(*graph.Commands()[cycle.commands[step]]) + " -> ";
  }
  return path + NameOf(*graph.Commands()[cycle.commands.front()]);
}

void NoteCycles(const CheckSubject& subject, const ReferenceGraph& graph, std::vector<Finding>& findings)
{
  std::size_t steps = 0;
  for (const ReferenceCycle& cycle : FindCycles(graph))
  {
    steps += cycle.commands.size();
    const JobCommand& last = *graph.Commands()[cycle.commands.back()];
    findings.push_back(About(rules::reference_cycle, last, *cycle.closing.key, *cycle.closing.item,
                             "closes a circle: " + PathOf(cycle, graph, steps <= kMostSteps),
                             "one of these references is too much; for this one: " +
                               WithoutReference(subject, last, *cycle.closing.key, *cycle.closing.item)));
  }
}

}  // namespace

void CheckReferences(const CheckSubject& subject, std::vector<Finding>& findings)
{
  CheckCounts(subject, findings);
  ReferenceCheck(subject, findings).CheckAll();
  const ReferenceGraph graph(subject.job, subject.index);
  FindUnreachable(subject, graph, findings);
  NoteCycles(subject, graph, findings);
}
