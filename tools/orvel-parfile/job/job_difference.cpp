#include "job_difference.h"

#include "support/plain_text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <set>
#include <type_traits>

namespace
{

std::uint64_t BitsOf(double value)
{
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

bool AreSame(double one, double other)
{
  return BitsOf(one) == BitsOf(other);
}

bool AreSame(const std::vector<double>& one, const std::vector<double>& other)
{
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](double a, double b) { return AreSame(a, b); });
}

template <class Value>
bool AreSame(const Value& one, const Value& other)
{
  return one == other;
}

bool AreSameItems(const JobItem& one, const JobItem& other)
{
  return std::visit(
    [](const auto& a, const auto& b) {
      if constexpr (std::is_same_v<decltype(a), decltype(b)>)
      {
        return AreSame(a, b);
      }
      return false;
    },
    one.value, other.value);
}

bool AreSameKeys(const JobKey& one, const JobKey& other)
{
  return one.type == other.type && one.unreadable == other.unreadable &&
         std::equal(one.items.begin(), one.items.end(), other.items.begin(), other.items.end(), AreSameItems);
}

std::set<std::string> EmptyKindsOf(const Job& job)
{
  return {job.empty_kinds.begin(), job.empty_kinds.end()};
}

// The commands of both jobs with the names of their keys, in stable order.
Job CommandsOf(const Job& one, const Job& other)
{
  Job all;
  std::map<std::string, std::map<std::string, std::set<std::string>>> keys;
  for (const Job* job : {&one, &other})
  {
    for (const JobCommand& command : job->commands)
    {
      std::set<std::string>& names = keys[command.kind][command.id];
      for (const JobKey& key : command.keys)
      {
        names.insert(key.name);
      }
    }
  }
  for (const auto& [kind, commands] : keys)
  {
    for (const auto& [id, names] : commands)
    {
      JobCommand command{kind, id, {}, {}, {}};
      for (const std::string& name : names)
      {
        command.keys.push_back({name, nullptr, {}, {}, {}});
      }
      all.commands.push_back(std::move(command));
    }
  }
  return InStableOrder(std::move(all));
}

class Comparer
{
public:
  Comparer(const Job& before, const Job& after)
    : m_before(before), m_after(after), m_index_before(before), m_index_after(after)
  {
  }

  Comparison Result()
  {
    for (const JobCommand& command : CommandsOf(m_before, m_after).commands)
    {
      CompareCommand(command);
    }
    CompareEmptyKinds();
    CompareForeignObjects();
    return std::move(m_result);
  }

private:
  void CompareCommand(const JobCommand& both)
  {
    const JobCommand* before = m_index_before.Find(both.kind, both.id);
    const JobCommand* after = m_index_after.Find(both.kind, both.id);
    if (before == nullptr || after == nullptr)
    {
      const Change change = before == nullptr ? Change::Added : Change::Removed;
      m_result.differences.push_back({change, both.kind, both.id, {}, nullptr, nullptr, {}, {}, {}});
      return;
    }
    for (const JobKey& key : both.keys)
    {
      CompareKey(both, key.name, FindKey(*before, key.name), FindKey(*after, key.name));
    }
  }

  void CompareKey(const JobCommand& command, const std::string& name, const JobKey* before, const JobKey* after)
  {
    if (before == nullptr || after == nullptr || !AreSameKeys(*before, *after))
    {
      const Change change = before == nullptr ? Change::Added : after == nullptr ? Change::Removed : Change::Changed;
      m_result.differences.push_back({change, command.kind, command.id, name, before, after, {}, {}, {}});
    }
    else if (before->type == nullptr)
    {
      m_result.not_compared.push_back(PlainText(command.kind) + " " + PlainText(command.id) + " " + PlainText(name) +
                                      " is " + before->unreadable + " in both; its values are not compared");
    }
  }

  void CompareEmptyKinds()
  {
    const std::set<std::string> before = EmptyKindsOf(m_before);
    const std::set<std::string> after = EmptyKindsOf(m_after);
    std::set<std::string> both = before;
    both.insert(after.begin(), after.end());
    for (const std::string& kind : both)
    {
      const bool was_there = before.count(kind) > 0 || !m_index_before.Ids(kind).empty();
      const bool is_there = after.count(kind) > 0 || !m_index_after.Ids(kind).empty();
      if (was_there != is_there)
      {
        const Change change = is_there ? Change::Added : Change::Removed;
        m_result.differences.push_back({change, kind, {}, {}, nullptr, nullptr, {}, {}, {}});
      }
    }
  }

  // A path may have several: an attribute of a group, and a link of the same name.
  static std::map<std::string, std::string> ObjectsOf(const Job& job)
  {
    std::map<std::string, std::string> objects;
    for (const ForeignObject& object : job.foreign_objects)
    {
      std::string& what = objects[object.path];
      what += (what.empty() ? "" : ", ") + object.what;
    }
    return objects;
  }

  void CompareForeignObjects()
  {
    const std::map<std::string, std::string> before = ObjectsOf(m_before);
    const std::map<std::string, std::string> after = ObjectsOf(m_after);
    std::map<std::string, std::string> both = before;
    both.insert(after.begin(), after.end());
    for (const auto& [path, ignored] : both)
    {
      const auto was = before.find(path);
      const auto is = after.find(path);
      const std::string what_before = was != before.end() ? was->second : "";
      const std::string what_after = is != after.end() ? is->second : "";
      if (what_before != what_after)
      {
        const Change change = what_before.empty()  ? Change::Added
                              : what_after.empty() ? Change::Removed
                                                   : Change::Changed;
        m_result.differences.push_back({change, {}, {}, {}, nullptr, nullptr, path, what_before, what_after});
      }
      else
      {
        m_result.not_compared.push_back(PlainText(path) + " is " + what_before + " in both, and not compared");
      }
    }
  }

  const Job& m_before;
  const Job& m_after;
  JobIndex m_index_before;
  JobIndex m_index_after;
  Comparison m_result;
};

}  // namespace

Comparison Compare(const Job& before, const Job& after)
{
  return Comparer(before, after).Result();
}
