/// \file
/// How to mend what a check finds, in the words of whoever has the parameter file or the job description.
#pragma once

#include "job/job.h"

#include <filesystem>
#include <string>
#include <vector>

/// The commands of the tool that change a parameter file, or the lines to write into a job description.
class Remedies
{
public:
  /// \param file what was checked, as the user named it
  Remedies(std::filesystem::path file, bool is_description);

  /// Gives a key these values, each as a person writes it: "orvel-parfile set run DV_ porosity TYPE_ DENSITY", or
  /// "write TYPE_ = \"DENSITY\"". Without values the words stand for them and what they may be.
  std::string Set(const JobCommand& command, const orvel::schema::Field& field,
                  const std::vector<std::string>& values) const;

  /// The word that stands for a reference: its id, or for one to nothing, which needs a remedy of its own, "ID".
  static std::string WordFor(const JobReference& target);

  /// Gives a key its values with another one at a place.
  std::string Replace(const JobCommand& command, const JobKey& key, std::size_t place, const std::string& value) const;

  /// Gives a key its values with a word at a place that stands for what may be there, and tells what that is.
  std::string ReplaceByAny(const JobCommand& command, const JobKey& key, std::size_t place) const;

  /// Takes a key away.
  std::string Remove(const JobCommand& command, const std::string& key) const;

  /// Takes a command away.
  std::string Remove(const JobCommand& command) const;

  /// Takes a kind away with all its commands.
  std::string RemoveKind(const std::string& kind, const std::vector<std::string>& ids) const;

  /// Takes away what is no part of the layout, which only a parameter file can hold.
  /// \param names kind, id and key, as far as its path goes
  std::string RemoveForeign(const std::vector<std::string>& names, bool is_attribute) const;

private:
  std::string Command(const std::string& subcommand, std::vector<std::string> words,
                      const std::string& option = {}) const;
  std::string TakeAway(const std::vector<std::string>& words, const std::string& option = {}) const;

  std::filesystem::path m_file;
  bool m_is_description;
};

/// What the values of a key are for a reader: "a whole number", "one of NO, YES".
std::string ExpectedText(const orvel::schema::Field& field);

/// The values of a key as \p field would have them, empty unless all can be read so.
std::vector<std::string> ConvertedValues(const JobKey& key, const orvel::schema::Field& field);

/// Both sentences, without what is empty.
std::string Joined(const std::string& one, const std::string& other);
