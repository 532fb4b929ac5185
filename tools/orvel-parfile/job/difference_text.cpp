#include "difference_text.h"

#include "support/plain_text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace schema = orvel::schema;
using Json = nlohmann::ordered_json;

namespace
{

using Texts = std::vector<std::string>;

constexpr std::size_t kShortText = 60;
constexpr std::size_t kFewItems = 3;
constexpr std::size_t kMostItems = 8;

// With its bits, for numbers that look alike and are not the same.
std::string BitsText(double value)
{
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  std::array<char, 24> text{};
  std::snprintf(text.data(), text.size(), " (0x%016llx)", static_cast<unsigned long long>(bits));
  return NumberText(value) + text.data();
}

struct ItemText
{
  const schema::Field* field;
  bool with_bits;

  std::string operator()(double value) const { return with_bits ? BitsText(value) : NumberText(value); }
  std::string operator()(const std::string& value) const { return PlainText(value); }
  std::string operator()(const JobReference& value) const
  {
    return value.IsNull() ? "nothing" : PlainText(value.kind) + " " + PlainText(value.id);
  }
  std::string operator()(std::int64_t value) const { return ValueText(value, field); }
  template <class Item>
  std::string operator()(const std::vector<Item>& values) const
  {
    std::string text;
    for (const Item& value : values)
    {
      text += (text.empty() ? "" : ", ") + (*this)(value);
    }
    return "[" + text + "]";
  }
};

// The values of a key. Where it has one, a list, these are the items of the list.
Texts TextsOf(const JobKey& key, const ItemText& text)
{
  Texts texts;
  const auto add = [&](const auto& values) {
    std::transform(values.begin(), values.end(), std::back_inserter(texts), text);
    return true;
  };
  if (key.items.size() == 1)
  {
    const JobValue& value = key.items.front().value;
    const auto* integers = std::get_if<std::vector<std::int64_t>>(&value);
    const auto* numbers = std::get_if<std::vector<double>>(&value);
    if ((integers != nullptr && add(*integers)) || (numbers != nullptr && add(*numbers)))
    {
      return texts;
    }
  }
  for (const JobItem& item : key.items)
  {
    texts.push_back(std::visit(text, item.value));
  }
  return texts;
}

std::string Joined(Texts::const_iterator first, Texts::const_iterator last)
{
  std::string text;
  std::size_t count = 0;
  for (; first != last; ++first, ++count)
  {
    if (count == kMostItems)
    {
      return text + ", ... (" + std::to_string(last - first) + " more)";
    }
    text += (text.empty() ? "" : ", ") + *first;
  }
  return text.empty() ? "nothing" : text;
}

std::string WholeText(const JobKey& key, const Texts& texts)
{
  if (key.type == nullptr)
  {
    return "(" + key.unreadable + ")";
  }
  return key.items.empty() ? "(no values)" : texts.empty() ? "[]" : Joined(texts.begin(), texts.end());
}

std::string EachChange(const Texts& before, const Texts& after)
{
  std::string text;
  for (std::size_t place = 0; place < before.size(); ++place)
  {
    if (before[place] != after[place])
    {
      text += (text.empty() ? "item " : ", item ") + std::to_string(place + 1) + " of " +
              std::to_string(before.size()) + ": " + before[place] + " -> " + after[place];
    }
  }
  return text;
}

// What lies between the items that are the same at the begin and at the end.
std::string MiddleChange(const Texts& before, const Texts& after)
{
  const auto [first_before, first_after] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  auto last_before = before.end();
  auto last_after = after.end();
  while (last_before != first_before && last_after != first_after && *(last_before - 1) == *(last_after - 1))
  {
    --last_before;
    --last_after;
  }
  return std::to_string(before.size()) + " -> " + std::to_string(after.size()) + " items, from item " +
         std::to_string(first_before - before.begin() + 1) + ": " + Joined(first_before, last_before) + " -> " +
         Joined(first_after, last_after);
}

std::string ListChange(const Texts& before, const Texts& after)
{
  std::string text = Joined(before.begin(), before.end()) + " -> " + Joined(after.begin(), after.end());
  if ((before.size() <= kMostItems && after.size() <= kMostItems && text.size() <= kShortText) ||
      std::max(before.size(), after.size()) <= 1)
  {
    return text;
  }
  if (before.size() == after.size())
  {
    std::size_t differing = 0;
    for (std::size_t place = 0; place < before.size(); ++place)
    {
      differing += before[place] != after[place] ? 1 : 0;
    }
    if (differing <= kFewItems)
    {
      return EachChange(before, after);
    }
  }
  return MiddleChange(before, after);
}

std::string TypeName(const JobKey& key)
{
  return key.type != nullptr ? " (" + std::string(key.type->name) + ")" : "";
}

const schema::Field* FieldOf(const Difference& difference)
{
  const schema::Command* command = schema::FindCommand(difference.kind);
  return command != nullptr ? schema::FindField(*command, difference.key) : nullptr;
}

std::string KeyChange(const Difference& difference)
{
  const schema::Field* field = FieldOf(difference);
  const JobKey& before = *difference.before;
  const JobKey& after = *difference.after;
  const auto text_of = [&](const JobKey& key, bool with_bits) { return TextsOf(key, {field, with_bits}); };
  if (before.type != after.type)
  {
    return WholeText(before, text_of(before, false)) + TypeName(before) + " -> " +
           WholeText(after, text_of(after, false)) + TypeName(after);
  }
  if (before.items.empty() || after.items.empty())
  {
    return WholeText(before, text_of(before, false)) + " -> " + WholeText(after, text_of(after, false));
  }
  const bool look_alike = text_of(before, false) == text_of(after, false);
  return ListChange(text_of(before, look_alike), text_of(after, look_alike));
}

std::string KeyText(const Difference& difference)
{
  if (difference.change == Change::Changed)
  {
    return KeyChange(difference);
  }
  const JobKey& key = difference.change == Change::Added ? *difference.after : *difference.before;
  const schema::Field* field = FieldOf(difference);
  return WholeText(key, TextsOf(key, {field, false})) + (field == nullptr ? TypeName(key) : "");
}

std::string ObjectText(const Difference& difference)
{
  switch (difference.change)
  {
    case Change::Added: return difference.what_after;
    case Change::Removed: return difference.what_before;
    default: return difference.what_before + " -> " + difference.what_after;
  }
}

Role RoleOf(Change change)
{
  return change == Change::Added ? Role::Added : change == Change::Removed ? Role::Removed : Role::Changed;
}

const char* MarkOf(Change change)
{
  return change == Change::Added ? "+" : change == Change::Removed ? "-" : "~";
}

const char* NameOf(Change change)
{
  return change == Change::Added ? "added" : change == Change::Removed ? "removed" : "changed";
}

struct ItemJson
{
  const schema::Field* field;

  Json operator()(double value) const { return std::isfinite(value) ? Json(value) : Json(BitsText(value)); }
  Json operator()(std::int64_t value) const
  {
    const std::string text = ValueText(value, field);
    return text == std::to_string(value) ? Json(value) : Json(text);
  }
  Json operator()(const std::string& value) const { return value; }
  Json operator()(const JobReference& value) const
  {
    return value.IsNull() ? std::string() : value.kind + "/" + value.id;
  }
  template <class Item>
  Json operator()(const std::vector<Item>& values) const
  {
    Json items = Json::array();
    std::transform(values.begin(), values.end(), std::back_inserter(items), *this);
    return items;
  }
};

Json KeyJson(const JobKey& key, const schema::Field* field)
{
  if (key.type == nullptr)
  {
    return {{"unreadable", key.unreadable}};
  }
  Json values = Json::array();
  for (const JobItem& item : key.items)
  {
    values.push_back(std::visit(ItemJson{field}, item.value));
  }
  return {{"type", key.type->name}, {"values", values}};
}

Json DifferenceJson(const Difference& difference)
{
  Json json = {{"change", NameOf(difference.change)}};
  const auto add = [&](const char* name, const std::string& text) {
    if (!text.empty())
    {
      json[name] = text;
    }
  };
  add("path", difference.path);
  add("kind", difference.kind);
  add("id", difference.id);
  add("key", difference.key);
  add("before", difference.what_before);
  add("after", difference.what_after);
  const schema::Field* field = FieldOf(difference);
  if (difference.before != nullptr)
  {
    json["before"] = KeyJson(*difference.before, field);
  }
  if (difference.after != nullptr)
  {
    json["after"] = KeyJson(*difference.after, field);
  }
  return json;
}

}  // namespace

std::string AsLine(const Difference& difference, const Style& style)
{
  std::string line = style(RoleOf(difference.change), MarkOf(difference.change)) + " ";
  if (!difference.path.empty())
  {
    return line + PlainText(difference.path) + ": " + ObjectText(difference);
  }
  line += style(Role::Kind, PlainText(difference.kind)) + " ";
  line += difference.id.empty() ? style(Role::Remark, "(no commands)") : style(Role::Id, PlainText(difference.id));
  return difference.key.empty() ? line
                                : line + " " + style(Role::Key, PlainText(difference.key)) + ": " + KeyText(difference);
}

std::string AsJson(const Comparison& comparison)
{
  Json differences = Json::array();
  for (const Difference& difference : comparison.differences)
  {
    differences.push_back(DifferenceJson(difference));
  }
  const Json json = {{"differences", differences}, {"not_compared", comparison.not_compared}};
  return PrintableLines(json.dump(2, ' ', false, Json::error_handler_t::replace)) + "\n";
}
