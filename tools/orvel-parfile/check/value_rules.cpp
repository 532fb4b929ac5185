#include "rules.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace schema = orvel::schema;

namespace
{

// Two keys of one kind that belong together.
struct KeyPair
{
  const schema::Field* one;
  const schema::Field* other;
};

struct Endings
{
  std::string_view one;
  std::string_view other;
};

bool EndsWith(std::string_view text, std::string_view ending)
{
  return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

// The pairs of keys whose names differ in their endings alone.
std::vector<KeyPair> PairsOf(const schema::Command& kind, const Endings& endings)
{
  std::vector<KeyPair> pairs;
  for (const schema::Field& field : kind.fields)
  {
    if (EndsWith(field.key, endings.one))
    {
      const std::string stem(field.key.substr(0, field.key.size() - endings.one.size()));
      if (const schema::Field* other = schema::FindField(kind, stem + std::string(endings.other)))
      {
        pairs.push_back({&field, other});
      }
    }
  }
  return pairs;
}

bool IsRepeated(const schema::Field& field)
{
  return field.presence == schema::Presence::Repeated;
}

bool IsInDoubt(const JobCommand& command, const schema::Field& field)
{
  const JobKey* key = FindKey(command, field.key);
  return IsRefused(command, field.key) || (key != nullptr && key->type == nullptr);
}

// The value of a number's key that loading takes.
std::optional<double> NumberIn(const JobCommand& command, std::string_view key_name)
{
  const JobKey* key = FindKey(command, key_name);
  if (key == nullptr || key->items.empty())
  {
    return std::nullopt;
  }
  const JobValue& value = key->items.front().value;
  if (const auto* integer = std::get_if<std::int64_t>(&value))
  {
    return static_cast<double>(*integer);
  }
  const auto* number = std::get_if<double>(&value);
  return number != nullptr ? std::optional<double>(*number) : std::nullopt;
}

std::string CountText(const schema::Field& field, std::size_t count)
{
  return std::string(field.key) + " has " + std::to_string(count) + (count == 1 ? " value" : " values");
}

void CheckListLengths(const CheckSubject& subject, const JobCommand& command, const KeyPair& pair,
                      std::vector<Finding>& findings)
{
  if (!IsRepeated(*pair.one) || !IsRepeated(*pair.other) || IsInDoubt(command, *pair.one) ||
      IsInDoubt(command, *pair.other))
  {
    return;
  }
  const JobKey* one = FindKey(command, pair.one->key);
  const JobKey* other = FindKey(command, pair.other->key);
  const std::size_t count = one != nullptr ? one->items.size() : 0;
  const std::size_t other_count = other != nullptr ? other->items.size() : 0;
  if (count != other_count)
  {
    Finding finding = About(rules::list_lengths, command, *(other != nullptr ? other : one), {}, {});
    finding.text = NameOf(command) + ": " + CountText(*pair.one, count) + " and " +
                   CountText(*pair.other, other_count) + ", though they stand beside each other";
    finding.value = std::to_string(count) + " and " + std::to_string(other_count);
    finding.remedy = "give both the same number of values";
    if (count == 0 || other_count == 0)
    {
      finding.remedy += ", or " + subject.remedies.Remove(command, finding.key);
    }
    findings.push_back(std::move(finding));
  }
}

void CheckLimits(const CheckSubject& subject, const JobCommand& command, const KeyPair& pair,
                 std::vector<Finding>& findings)
{
  const auto lower = NumberIn(command, pair.one->key);
  const auto upper = NumberIn(command, pair.other->key);
  if (lower && upper && *lower > *upper)
  {
    const JobKey& key = *FindKey(command, pair.one->key);
    const std::string most = ValueText(FindKey(command, pair.other->key)->items.front().value, pair.other);
    const std::string text = "is " + ValueText(key.items.front().value, pair.one) + ", above " +
                             std::string(pair.other->key) + ", which is " + most;
    findings.push_back(About(rules::limits, command, key, key.items.front(), text,
                             "lower the one or raise the other: " + subject.remedies.Set(command, *pair.one, {most})));
  }
}

void CheckResponseOrOperator(const CheckSubject& subject, const JobCommand& command, const schema::Command& kind,
                             std::vector<Finding>& findings)
{
  const schema::Field* response = schema::FindField(kind, "DRESP_");
  const schema::Field* combination = schema::FindField(kind, "OPERATOR_");
  const auto is_either = [](const schema::Field* field) {
    return field != nullptr && field->presence == schema::Presence::Optional;
  };
  if (!is_either(response) || !is_either(combination) || IsRefused(command, response->key) ||
      IsRefused(command, combination->key))
  {
    return;
  }
  const bool has_response = FindKey(command, response->key) != nullptr;
  const JobKey* second = FindKey(command, combination->key);
  if (has_response && second != nullptr)
  {
    findings.push_back(
      About(rules::response_or_operator, command, *second, "stands beside DRESP_, where one of both is read",
            "one of both is too much; of this one: " + subject.remedies.Remove(command, second->name)));
  }
  else if (!has_response && second == nullptr)
  {
    findings.push_back(About(rules::response_or_operator, command, "has neither DRESP_ nor OPERATOR_",
                             subject.remedies.Set(command, *response, {})));
  }
}

using Vector = std::array<double, 3>;

constexpr double kSmallestVolume = 1e-6;

double Length(const Vector& vector)
{
  return std::hypot(vector[0], vector[1], vector[2]);
}

// A vector of the same direction and length 1. Its components may be of any size.
Vector Unit(Vector vector)
{
  const double largest = std::max({std::abs(vector[0]), std::abs(vector[1]), std::abs(vector[2])});
  for (double& component : vector)
  {
    component /= largest;
  }
  const double length = Length(vector);
  return {vector[0] / length, vector[1] / length, vector[2] / length};
}

double Volume(const Vector& a, const Vector& b, const Vector& c)
{
  return std::abs(a[0] * (b[1] * c[2] - b[2] * c[1]) - a[1] * (b[0] * c[2] - b[2] * c[0]) +
                  a[2] * (b[0] * c[1] - b[1] * c[0]));
}

std::optional<Vector> VectorIn(const JobCommand& command, const std::string& ending)
{
  const auto x = NumberIn(command, "X_" + ending);
  const auto y = NumberIn(command, "Y_" + ending);
  const auto z = NumberIn(command, "Z_" + ending);
  return x && y && z ? std::optional<Vector>({*x, *y, *z}) : std::nullopt;
}

// What is wrong with three vectors as a basis, empty if nothing is.
std::string FaultOfBasis(const std::array<Vector, 3>& vectors)
{
  for (std::size_t place = 0; place < vectors.size(); ++place)
  {
    const std::string name = "vector " + std::to_string(place + 1);
    const double length = Length(vectors[place]);
    if (!std::isfinite(vectors[place][0]) || !std::isfinite(vectors[place][1]) || !std::isfinite(vectors[place][2]))
    {
      return name + " has a component that is no finite number";
    }
    if (length == 0.0)
    {
      return name + " is zero";
    }
  }
  const double volume = Volume(Unit(vectors[0]), Unit(vectors[1]), Unit(vectors[2]));
  return volume > kSmallestVolume ? "" : "the three vectors lie in one plane";
}

void CheckBasis(const JobCommand& command, const schema::Command& kind, std::vector<Finding>& findings)
{
  if (schema::FindField(kind, "X_VEC1_") == nullptr)
  {
    return;
  }
  const auto first = VectorIn(command, "VEC1_");
  const auto second = VectorIn(command, "VEC2_");
  const auto third = VectorIn(command, "VEC3_");
  const std::string fault = first && second && third ? FaultOfBasis({*first, *second, *third}) : std::string();
  if (!fault.empty())
  {
    findings.push_back(About(rules::no_basis, command, "is no basis: " + fault,
                             "choose three vectors that span the space; they need not stand at right angles"));
  }
}

}  // namespace

void CheckValues(const CheckSubject& subject, std::vector<Finding>& findings)
{
  constexpr std::array<Endings, 2> kListEndings = {{{"_", "_WEIGHT_"}, {"_NAME_", "_VALUE_"}}};
  constexpr std::array<Endings, 2> kLimitEndings = {{{"MIN_", "MAX_"}, {"LOW_", "UP_"}}};
  for (const JobCommand& command : subject.job.commands)
  {
    const schema::Command* kind = schema::FindCommand(command.kind);
    if (kind == nullptr)
    {
      continue;
    }
    for (const Endings& endings : kListEndings)
    {
      for (const KeyPair& pair : PairsOf(*kind, endings))
      {
        CheckListLengths(subject, command, pair, findings);
      }
    }
    CheckResponseOrOperator(subject, command, *kind, findings);
    for (const Endings& endings : kLimitEndings)
    {
      for (const KeyPair& pair : PairsOf(*kind, endings))
      {
        CheckLimits(subject, command, pair, findings);
      }
    }
    CheckBasis(command, *kind, findings);
  }
}
