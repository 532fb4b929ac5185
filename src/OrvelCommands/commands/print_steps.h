/// \file
/// The steps by which a command prints itself into the debug log. One thread at a time.
#pragma once

#include "OrvelCommands/commands/OrvelCommand.h"
#include "OrvelUtilities/KLV_ListFormatUtil.h"
#include "OrvelUtilities/OrvelStringUtil.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvel::detail
{

/// Builds the text of one command line by line and logs it in one call.
class CommandPrinter
{
public:
  /// Begins with the line of the id.
  explicit CommandPrinter(const std::string& id);

  /// The line of a value. An enumerator is passed as its text.
  void Always(const char* key, int value) { Line(key, OrvelStringUtil::String(value)); }
  void Always(const char* key, double value) { Line(key, OrvelStringUtil::String(value)); }
  void Always(const char* key, const std::string& value) { Line(key, value); }

  /// The line of a reference, empty behind the label when it is not resolved.
  void Always(const char* key, const OrvelCommand* target) { Line(key, IdOf(target)); }

  /// The block of a list that is one value.
  void Always(const char* key, const std::vector<int>& list) { Block(key, ListText(list)); }
  void Always(const char* key, const std::vector<double>& list) { Block(key, ListText(list)); }

  /// The line of the flag, and the value only where it is set.
  template <class Value>
  void Optional(const char* key, bool has, const Value& value)
  {
    FlagLine(key, has);
    if (has)
    {
      Always(key, value);
    }
  }

  /// The line of the count and the block of the values.
  template <class Value>
  void Repeated(const char* key, std::uint64_t count, const std::vector<Value>& values)
  {
    CountLine(key, count);
    Block(key, ListText(values));
  }

  /// The line of the count and the block of the texts of enumerators.
  template <class Enumeration>
  void RepeatedEnum(const char* key, std::uint64_t count, const std::vector<Enumeration>& values,
                    std::string (*name)(Enumeration))
  {
    std::string names;
    for (const Enumeration value : values)
    {
      names += name(value) + " ";
    }
    CountLine(key, count);
    Block(key, names);
  }

  /// Sends the text through the bounded print, as its format, to the debug log with the prefix of the class: at most
  /// 1023 characters reach the log, and a "%" in a value acts as a conversion of a zero or empty argument.
  void Log(const char* source, int line, const std::string& class_name) const;

private:
  static std::string IdOf(const OrvelCommand* target);

  template <class Value>
  static std::string ListText(const std::vector<Value>& list)
  {
    return KLV_ListFormatUtil::format_list_as_line(list, " ");
  }

  template <class Target>
  static std::string ListText(const std::vector<const Target*>& list)
  {
    std::string ids;
    for (const Target* target : list)
    {
      ids += IdOf(target) + " ";
    }
    return ids;
  }

  void Line(const char* key, const std::string& value);
  void Block(const char* key, const std::string& contents);
  void FlagLine(const char* key, bool has);
  void CountLine(const char* key, std::uint64_t count);

  std::string m_text;
};

}  // namespace orvel::detail
