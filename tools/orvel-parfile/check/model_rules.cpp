#include "rules.h"

#include "name_offers.h"
#include "support/plain_text.h"
#include "support/schema_names.h"

#include <algorithm>
#include <map>
#include <optional>

namespace schema = orvel::schema;

namespace
{

// Where a job uses a name: the commands, of which two are enough to know.
using Users = std::map<std::string, std::set<const JobCommand*>>;

// What the commands of a kind define for the model.
std::optional<KLV_IdType> DefinedType(std::string_view kind)
{
  return kind == "ELEMENT_GROUP_" ? std::optional<KLV_IdType>(KLV_IdType::element_group)
         : kind == "FACE_GROUP_"  ? std::optional<KLV_IdType>(KLV_IdType::face_group)
         : kind == "NODE_GROUP_"  ? std::optional<KLV_IdType>(KLV_IdType::node_group)
                                  : std::nullopt;
}

// A name of a group that the library does not check against the model, in a smoothing command.
bool IsPlainGroupName(const schema::Field& field)
{
  return field.type == vtmString && field.key.find("GROUP_") != std::string_view::npos;
}

class ModelCheck
{
public:
  ModelCheck(const CheckSubject& subject, std::vector<Finding>& findings) : m_subject(subject), m_findings(findings)
  {
    ForEachKnownKey(subject.job, [&](const JobCommand& command, const JobKey& key, const schema::Field& field) {
      CollectNames(command, key, field);
    });
    for (const JobCommand& command : subject.job.commands)
    {
      CollectRefused(command);
    }
  }

  void FindUnknown()
  {
    ForEachKnownKey(m_subject.job, [&](const JobCommand& command, const JobKey& key, const schema::Field& field) {
      if (field.type == vtmModelId && m_subject.model_ids != nullptr)
      {
        CheckNames(command, key, *field.id_type);
      }
    });
  }

  void FindUnusedGroups()
  {
    for (const JobCommand& command : m_subject.job.commands)
    {
      const auto type = DefinedType(command.kind);
      if (type && m_doubtful.count(*type) == 0 && !IsUsedBeside(&command, *type))
      {
        m_findings.push_back(About(rules::unused_group, command, "is named by no other command",
                                   "name it where it belongs, or " + m_subject.remedies.Remove(command)));
      }
    }
  }

  void NoteUnusedNames()
  {
    for (const auto& [type, names] : m_subject.model_ids->lists)
    {
      for (const auto& [name, place] : names)
      {
        if (m_doubtful.count(type) == 0 && m_with_unknown.count(type) == 0 && !IsBuiltByJob(type, name) &&
            !IsUsedBeside(nullptr, type, name))
        {
          m_findings.push_back(
            {&rules::unused_model_group,
             {},
             {},
             IdListName(type),
             name,
             place,
             "the job never uses " + PlainText(name) + ", one of the " + IdListName(type) + " of the model",
             {}});
        }
      }
    }
  }

private:
  void CollectNames(const JobCommand& command, const JobKey& key, const schema::Field& field)
  {
    for (const JobItem& item : key.items)
    {
      const auto* name = std::get_if<std::string>(&item.value);
      if (name != nullptr && field.type == vtmModelId)
      {
        m_users[*field.id_type][*name].insert(&command);
      }
      else if (name != nullptr && IsPlainGroupName(field))
      {
        m_plain_names[*name].insert(&command);
      }
    }
  }

  // A key that was refused, or whose values are no texts, may have named any group.
  void CollectRefused(const JobCommand& command)
  {
    for (const std::string& key : command.refused_keys)
    {
      DoubtNamesIn(FieldOf(command, key));
    }
    for (const JobKey& key : command.keys)
    {
      if (key.type != &TextType())
      {
        DoubtNamesIn(FieldOf(command, key.name));
      }
    }
  }

  void DoubtNamesIn(const schema::Field* field)
  {
    if (field != nullptr && field->id_type)
    {
      m_doubtful.insert(*field->id_type);
    }
    else if (field != nullptr && IsPlainGroupName(*field))
    {
      m_doubtful.insert({KLV_IdType::element_group, KLV_IdType::face_group, KLV_IdType::node_group});
    }
  }

  static bool IsUsedBeside(const JobCommand* command, const Users& users, const std::string& name)
  {
    const auto found = users.find(name);
    return found != users.end() && found->second.size() > found->second.count(command);
  }

  bool IsUsedBeside(const JobCommand* command, KLV_IdType type, const std::string& name)
  {
    return IsUsedBeside(command, m_users[type], name) || IsUsedBeside(command, m_plain_names, name);
  }

  bool IsUsedBeside(const JobCommand* command, KLV_IdType type) { return IsUsedBeside(command, type, command->id); }

  bool IsBuiltByJob(KLV_IdType type, const std::string& name) const
  {
    return std::any_of(schema::Commands().begin(), schema::Commands().end(), [&](const schema::Command& kind) {
      return DefinedType(kind.kind) == type && m_subject.index.Find(std::string(kind.kind), name) != nullptr;
    });
  }

  // The names of a list, collected once.
  const std::vector<std::string>& NamesOf(KLV_IdType type)
  {
    const auto [names, is_new] = m_names.try_emplace(type);
    const auto list = m_subject.model_ids->lists.find(type);
    if (is_new && list != m_subject.model_ids->lists.end())
    {
      std::transform(list->second.begin(), list->second.end(), std::back_inserter(names->second),
                     [](const auto& name_and_place) { return name_and_place.first; });
    }
    return names->second;
  }

  void CheckNames(const JobCommand& command, const JobKey& key, KLV_IdType type)
  {
    const auto list = m_subject.model_ids->lists.find(type);
    for (std::size_t place = 0; place < key.items.size(); ++place)
    {
      const auto* name = std::get_if<std::string>(&key.items[place].value);
      if (name != nullptr && (list == m_subject.model_ids->lists.end() || list->second.count(*name) == 0))
      {
        m_with_unknown.insert(type);
        m_findings.push_back(
          About(rules::unknown_model_id, command, key, key.items[place],
                "names " + PlainText(*name) + ", which is none of the " + IdListName(type) + " of the model",
                RemedyFor(command, key, place, type)));
      }
    }
  }

  std::string RemedyFor(const JobCommand& command, const JobKey& key, std::size_t place, KLV_IdType type)
  {
    const auto& name = std::get<std::string>(key.items[place].value);
    if (NamesOf(type).empty())
    {
      return "the model has no " + IdListName(type);
    }
    const NameOffers::Offer offer = m_offers.For(name, NamesOf(type));
    return offer.nearest == nullptr
             ? offer.text
             : Joined(offer.text, m_subject.remedies.Replace(command, key, place, *offer.nearest));
  }

  const CheckSubject& m_subject;
  std::vector<Finding>& m_findings;
  std::map<KLV_IdType, Users> m_users;
  Users m_plain_names;
  std::set<KLV_IdType> m_doubtful;
  std::set<KLV_IdType> m_with_unknown;
  std::map<KLV_IdType, std::vector<std::string>> m_names;
  NameOffers m_offers;
};

}  // namespace

void CheckModel(const CheckSubject& subject, std::vector<Finding>& findings)
{
  ModelCheck check(subject, findings);
  check.FindUnknown();
  check.FindUnusedGroups();
  if (subject.model_ids != nullptr)
  {
    check.NoteUnusedNames();
  }
}
